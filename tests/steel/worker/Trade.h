// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>
#include <QVariantList>

#include <random>

class Till;

/// A busy evening without end: orders at tables and over the counter, second orders on open bills,
/// members who earn and redeem, and payments, each told as soon as the services have answered.
class Trade final
{
public:
    /// `attempts`: how often a cashier presses the button of a bill that is refused.
    Trade(Till &till, unsigned seed, int attempts);

    /// From now on over the counter only: no bill is anybody else's.
    void leaveTables() { m_tables = 0; }
    /// One order, and mostly the payment of its bill.
    void round();
    /// Pays every bill that is open, each twice: the second time must change nothing.
    void settle();

private:
    [[nodiscard]] int pick(int from, int to);
    [[nodiscard]] QVariantList lines();
    [[nodiscard]] int order();
    void pay(int sessionId);

    Till &m_till;
    std::mt19937 m_random;
    int m_attempts;
    int m_tables;
};
