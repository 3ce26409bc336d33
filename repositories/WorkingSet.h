// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDate>
#include <QList>
#include <QObject>
#include <QSqlDatabase>
#include <QString>

/// The rows that a till works with, known by their ids: all sessions that are unpaid, young by
/// their number or young by their stamps, the orders and lines of these, and the bookings that
/// still hold a table. The schema has no indexes of its own, so without this every tap would read
/// the years behind it.
///
/// The ids stand in temporary tables of the connection, which triggers of the connection keep up to
/// date with whatever it writes, inside transactions and through their roll-back. Nothing of it is
/// in the store's file. What another program writes is noticed, and all is found anew.
///
/// A statement that is bounded by it carries one more condition, which holds for every row that the
/// statement can answer: its result, and the order of its rows, are those of the unbounded form.
/// Where the set cannot tell, the caller uses the unbounded form.
///
/// It belongs to the connection's driver, like the prepared statements, and is used on the driver's
/// own thread only.
class WorkingSet final : public QObject
{
    Q_OBJECT

public:
    /// Whether it stands, as of now; makes it at the first question, outside of transactions only.
    [[nodiscard]] static bool isReady(const QSqlDatabase &database);
    /// Whether all rows stamped with that UTC day ("yyyy-MM-dd") are in it.
    [[nodiscard]] static bool holdsDay(const QSqlDatabase &database, const QString &day);
    /// Whether that session is in it with all its orders, points and its snapshot.
    [[nodiscard]] static bool holdsSession(const QSqlDatabase &database, int sessionId);
    /// Whether these orders are in it with all their lines.
    [[nodiscard]] static bool holdsOrder(const QSqlDatabase &database, int orderId);
    [[nodiscard]] static bool holdsOrders(const QSqlDatabase &database, const QList<int> &orderIds);
    /// Whether the sessions closed last, that many of them, are in it.
    [[nodiscard]] static bool holdsLastPaid(const QSqlDatabase &database, int count);
    /// Whether the map of older sessions stands beside it, in which a period is looked up; makes it
    /// at the first question.
    [[nodiscard]] static bool hasCalendar(const QSqlDatabase &database);
    /// Whether looking that period up there is worth it: where it is most of the history, reading
    /// the table from end to end is quicker. UTC days, both included.
    [[nodiscard]] static bool narrows(const QSqlDatabase &database, const QDate &from,
                                      const QDate &to);

    /// From now on the connection's statements are unbounded.
    static void turnOff(const QSqlDatabase &database);

private:
    explicit WorkingSet(QObject *driver);

    /// nullptr where it must not be used: the connection is closed, or this is not its thread.
    [[nodiscard]] static WorkingSet *of(const QSqlDatabase &database);
    /// The same, once it stands.
    [[nodiscard]] static WorkingSet *standing(const QSqlDatabase &database);

    [[nodiscard]] bool isCurrent(const QSqlDatabase &database) const;
    [[nodiscard]] bool make(const QSqlDatabase &database);
    [[nodiscard]] bool fill(const QSqlDatabase &database);
    [[nodiscard]] bool lastPaidAreHeld(const QSqlDatabase &database, int count);

    bool m_off = false;
    bool m_made = false;
    bool m_calendarMade = false;
    /// What "PRAGMA data_version" said when it was made.
    int m_version = 0;
    QDate m_madeOn;
    /// Rows stamped on this UTC day or later are in it, whatever their numbers.
    QDate m_youngFrom;
    /// From these ids on everything is in it.
    qlonglong m_firstSession = 0;
    qlonglong m_firstOrder = 0;
    /// The latest closing time of what is not in it; null while nobody has asked.
    QString m_latestOutside;
};
