// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/AnalyticsRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"

#include <QDate>
#include <QHash>

namespace {
/// A figure that is NULL over no sales reads as 0.
double readReal(Statement &statement)
{
    return statement.run() && statement.next() ? statement.real(0) : 0.0;
}

int readInteger(Statement &statement)
{
    return statement.run() && statement.next() ? statement.integer(0) : 0;
}

TopItem readTopItem(const Statement &row)
{
    TopItem item;
    item.name = row.text(0);
    item.quantity = row.integer(1);
    return item;
}

HourRevenue readHour(const Statement &row)
{
    HourRevenue hour;
    hour.hour = row.integer(0);
    hour.amount = row.real(1);
    return hour;
}
constexpr auto amongTodays = "AND id IN (SELECT id FROM temp.working_sessions"
                             " WHERE closed_day = DATE('now') OR closed_day IS NULL)";

/// The lines are what the join begins with, as without the bound: so their order stays.
constexpr auto amongTodaysLines =
    "AND oi.id IN (SELECT line.id FROM temp.working_sessions session"
    " CROSS JOIN temp.working_orders batch ON batch.session_id = session.id"
    " CROSS JOIN temp.working_lines line ON line.order_id = batch.id"
    " WHERE session.closed_day = DATE('now') OR session.closed_day IS NULL)";
} // namespace

AnalyticsRepository::AnalyticsRepository(const QSqlDatabase &database)
    : m_database(database)
{}

const BoundedSql revenueTodaySql(R"(
    SELECT SUM(total) FROM order_sessions
    WHERE status = 'paid' AND closed_at IS NOT NULL
    AND DATE(closed_at) = DATE('now') {bound})",
                                 amongTodays);

double AnalyticsRepository::revenueToday() const
{
    Statement statement(m_database, revenueTodaySql.text(WorkingSet::isReady(m_database)),
                        {"AnalyticsRepository::revenueToday failed:"});
    return readReal(statement);
}

const BoundedSql ordersCountTodaySql(R"(
    SELECT COUNT(*) FROM order_sessions
    WHERE status = 'paid' AND closed_at IS NOT NULL
    AND DATE(closed_at) = DATE('now') {bound})",
                                     amongTodays);

int AnalyticsRepository::ordersCountToday() const
{
    Statement statement(m_database, ordersCountTodaySql.text(WorkingSet::isReady(m_database)),
                        {"AnalyticsRepository::ordersCountToday failed:"});
    return readInteger(statement);
}

const BoundedSql averageOrderTodaySql(R"(
    SELECT AVG(total) FROM order_sessions
    WHERE status = 'paid' AND closed_at IS NOT NULL
    AND DATE(closed_at) = DATE('now') {bound})",
                                      amongTodays);

double AnalyticsRepository::averageOrderToday() const
{
    Statement statement(m_database, averageOrderTodaySql.text(WorkingSet::isReady(m_database)),
                        {"AnalyticsRepository::averageOrderToday failed:"});
    return readReal(statement);
}

const BoundedSql itemsSoldTodaySql(R"(
    SELECT SUM(oi.quantity)
    FROM order_items oi
    JOIN orders o ON o.id = oi.order_id
    JOIN order_sessions os ON os.id = o.order_session_id
    WHERE os.status = 'paid' AND os.closed_at IS NOT NULL
    AND DATE(os.closed_at) = DATE('now') {bound})",
                                   amongTodaysLines);

int AnalyticsRepository::itemsSoldToday() const
{
    Statement statement(m_database, itemsSoldTodaySql.text(WorkingSet::isReady(m_database)),
                        {"AnalyticsRepository::itemsSoldToday failed:"});
    return readInteger(statement);
}

const BoundedSql topItemsTodaySql(R"(
    SELECT oi.item_name, SUM(oi.quantity) AS total_quantity
    FROM order_items oi
    JOIN orders o ON o.id = oi.order_id
    JOIN order_sessions os ON os.id = o.order_session_id
    WHERE os.status = 'paid' AND os.closed_at IS NOT NULL
    AND DATE(os.closed_at) = DATE('now') {bound}
    GROUP BY oi.item_name
    ORDER BY total_quantity DESC
    LIMIT 5)",
                                  amongTodaysLines);

QList<TopItem> AnalyticsRepository::topItemsToday() const
{
    Statement statement(m_database, topItemsTodaySql.text(WorkingSet::isReady(m_database)),
                        {"AnalyticsRepository::topItemsToday failed:"});
    return statement.rows(readTopItem);
}

const BoundedSql revenueByHourTodaySql(R"(
    SELECT STRFTIME('%H', closed_at) AS hour, SUM(total) AS amount FROM order_sessions
    WHERE status = 'paid' AND closed_at IS NOT NULL
    AND DATE(closed_at) = DATE('now') {bound}
    GROUP BY hour
    ORDER BY hour ASC)",
                                       amongTodays);

QList<HourRevenue> AnalyticsRepository::revenueByHourToday() const
{
    Statement statement(m_database, revenueByHourTodaySql.text(WorkingSet::isReady(m_database)),
                        {"AnalyticsRepository::revenueByHourToday failed:"});
    return statement.rows(readHour);
}

const BoundedSql revenueLastSevenDaysSql(R"(
    SELECT DATE(closed_at) AS day, SUM(total) AS amount FROM order_sessions
    WHERE status = 'paid' AND closed_at IS NOT NULL
    AND DATE(closed_at) >= DATE('now', '-6 days') {bound}
    GROUP BY day
    ORDER BY day ASC)",
                                         "AND id IN (SELECT id FROM temp.working_sessions"
                                         " WHERE closed_day >= DATE('now', '-6 days')"
                                         " OR closed_day IS NULL)");

QList<DayRevenue> AnalyticsRepository::revenueLastSevenDays() const
{
    Statement statement(m_database, revenueLastSevenDaysSql.text(WorkingSet::isReady(m_database)),
                        {"AnalyticsRepository::revenueLastSevenDays failed:"});
    if (!statement.run()) {
        return {};
    }
    QHash<QString, double> amounts;
    while (statement.next()) {
        amounts.insert(statement.text(0), statement.real(1));
    }
    // Local days are walked over sums of UTC days: a day that is not among the seven drops out.
    const QDate today = QDate::currentDate();
    QList<DayRevenue> days;
    for (int offset = -6; offset <= 0; ++offset) {
        DayRevenue day;
        day.day = today.addDays(offset).toString(QStringLiteral("yyyy-MM-dd"));
        day.amount = amounts.value(day.day, 0.0);
        days.append(day);
    }
    return days;
}
