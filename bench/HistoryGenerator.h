// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDate>
#include <QString>

/// What every generated store has, whatever the length of its history.
namespace HistoryShape {
constexpr int menuItems = 200;
constexpr int tables = 60;
/// Tables 1 to 30 have a booking for tomorrow; 31 to 60 are free.
constexpr int bookings = 30;
constexpr int members = 50000;
constexpr int sessionsPerDay = 250;
constexpr int linesPerOrder = 4;

/// A phone number for each member from 1 to `members`, no two alike.
[[nodiscard]] QByteArray memberPhone(int member);
extern const QString adminName;
extern const QString adminPassword;
} // namespace HistoryShape

/// Writes the database of a store with so many paid sessions behind it, the last of them today:
/// 1.25 orders of 4 lines each, a receipt snapshot each, a member on every fourth. The same number
/// and day give the same rows, but for the salt of the passwords.
class HistoryGenerator final
{
public:
    /// `todayUtc` is the day of the last sessions, by the UTC clock as SQLite's stamps are.
    HistoryGenerator(int pastSessions, const QDate &todayUtc);

    /// Makes the file anew and leaves it folded into that one file.
    void write(const QString &path) const;

    /// A file made by `write` in that folder; made only where there is none of this day yet.
    [[nodiscard]] QString cachedIn(const QString &folder) const;

private:
    int m_pastSessions;
    QDate m_todayUtc;
};
