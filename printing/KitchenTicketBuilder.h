// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QList>

class EscPosBuilder;
class RegionalSettingsRepository;
struct Order;
struct OrderItem;
struct OrderSession;
struct Printer;

/// Lays one order out as a kitchen ticket. No price is printed.
class KitchenTicketBuilder final
{
public:
    /// The repository is asked for the store's locale at every build and is not owned.
    explicit KitchenTicketBuilder(const RegionalSettingsRepository &regionalSettings);

    /// The bytes for this printer's paper width and cut, dated with the local clock; cannot fail.
    [[nodiscard]] QByteArray build(const Order &order, const OrderSession &session,
                                   const QList<OrderItem> &items, const Printer &printer) const;

private:
    void appendPrintTime(EscPosBuilder &ticket) const;

    const RegionalSettingsRepository &m_regionalSettings;
};
