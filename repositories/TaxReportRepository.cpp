// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TaxReportRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"
#include "repositories/WorkingSetSql.h"

namespace {
const QLoggingCategory &lcDefault()
{
    return *QLoggingCategory::defaultCategory();
}

void bindPeriod(Statement &statement, const QDate &from, const QDate &to)
{
    statement.bind(":from", from.toString(Qt::ISODate));
    statement.bind(":to", to.toString(Qt::ISODate));
}

TaxDailyRow readDay(const Statement &row)
{
    TaxDailyRow day;
    day.day = row.text(0);
    day.transaction_count = row.integer(1);
    day.subtotal = row.real(2);
    day.tax_collected = row.real(3);
    day.discount = row.real(4);
    day.total_sales = row.real(5);
    return day;
}

TaxSessionRow readSession(const Statement &row)
{
    TaxSessionRow session;
    session.id = row.integer(0);
    session.receipt_number = row.text(1);
    session.order_type = row.text(2);
    session.table_name = row.text(3);
    session.subtotal = row.real(4);
    session.tax = row.real(5);
    session.discount = row.real(6);
    session.total = row.real(7);
    session.closed_at = row.text(8);
    return session;
}

/// The sessions that may have been closed in the period: the blocks of the calendar that reach into
/// it, and the held ones, which may have been closed since it was made.
#define SESSIONS_OF_THE_PERIOD                                                                     \
    "SELECT session.id FROM temp.working_calendar CROSS JOIN order_sessions session"               \
    " ON session.id BETWEEN block * 128 AND block * 128 + 127"                                     \
    " WHERE " ZELVAN_BLOCK_OF_THE_PERIOD("") " UNION SELECT id FROM temp.working_sessions"

constexpr auto amongPeriod = "AND id IN (" SESSIONS_OF_THE_PERIOD ")";

constexpr FailureReport summaryFailure{"TaxReportRepository::getSummary failed:", lcDefault};

const BoundedSql sumsSql(R"(
    SELECT COUNT(*) as transaction_count,
        COALESCE(SUM(subtotal), 0) as subtotal,
        COALESCE(SUM(tax), 0) as tax_collected,
        COALESCE(SUM(discount), 0) as discount,
        COALESCE(SUM(total), 0) as total_sales
    FROM order_sessions
    WHERE status = 'paid' AND closed_at IS NOT NULL
    AND date(closed_at) >= :from AND date(closed_at) <= :to {bound})",
                         amongPeriod);

bool readSums(const QSqlDatabase &database, TaxSummary &summary)
{
    Statement statement(database,
                        sumsSql.text(WorkingSet::narrows(database, summary.from, summary.to)),
                        summaryFailure);
    bindPeriod(statement, summary.from, summary.to);
    if (!statement.run() || !statement.next()) {
        return false;
    }
    summary.transaction_count = statement.integer(0);
    summary.subtotal = statement.real(1);
    summary.tax_collected = statement.real(2);
    summary.discount = statement.real(3);
    summary.total_sales = statement.real(4);
    return true;
}

const BoundedSql identitySql(R"(
    SELECT tax_name, tax_rate, tax_registration_number FROM receipt_snapshot
    WHERE order_session_id IN (
        SELECT id FROM order_sessions
        WHERE status = 'paid' AND closed_at IS NOT NULL
        AND date(closed_at) >= :from AND date(closed_at) <= :to {inner})
    {bound}
    ORDER BY created_at DESC
    LIMIT 1)",
                             R"(AND id IN (
        SELECT receipt.id FROM temp.working_receipts block
        CROSS JOIN receipt_snapshot receipt
            ON receipt.id BETWEEN block.block * 128 AND block.block * 128 + 127
        WHERE EXISTS (
            SELECT 1 FROM temp.working_calendar day
            WHERE day.block BETWEEN block.low >> 7 AND block.high >> 7
            AND )" ZELVAN_BLOCK_OF_THE_PERIOD("day.") R"()
        UNION SELECT id FROM temp.working_snapshots))",
                             amongPeriod);

/// The tax as the latest sale of the period named it.
void readIdentity(const QSqlDatabase &database, TaxSummary &summary)
{
    Statement statement(database,
                        identitySql.text(WorkingSet::narrows(database, summary.from, summary.to)),
                        summaryFailure);
    bindPeriod(statement, summary.from, summary.to);
    if (!statement.run() || !statement.next()) {
        return;
    }
    summary.tax_name = statement.text(0);
    summary.tax_rate = statement.integer(1);
    summary.tax_registration_number = statement.text(2);
}
} // namespace

TaxReportRepository::TaxReportRepository(const QSqlDatabase &database)
    : m_database(database)
{}

TaxSummary TaxReportRepository::getSummary(const QDate &from, const QDate &to) const
{
    TaxSummary summary;
    summary.from = from;
    summary.to = to;
    if (readSums(m_database, summary)) {
        readIdentity(m_database, summary);
    }
    return summary;
}

const BoundedSql getDailyBreakdownSql(R"(
    SELECT date(closed_at) as day,
        COUNT(*) as transaction_count,
        COALESCE(SUM(subtotal), 0) as subtotal,
        COALESCE(SUM(tax), 0) as tax_collected,
        COALESCE(SUM(discount), 0) as discount,
        COALESCE(SUM(total), 0) as total_sales
    FROM order_sessions
    WHERE status = 'paid' AND closed_at IS NOT NULL
    AND date(closed_at) >= :from AND date(closed_at) <= :to {bound}
    GROUP BY date(closed_at)
    ORDER BY day ASC)",
                                      amongPeriod);

QList<TaxDailyRow> TaxReportRepository::getDailyBreakdown(const QDate &from, const QDate &to) const
{
    Statement statement(m_database,
                        getDailyBreakdownSql.text(WorkingSet::narrows(m_database, from, to)),
                        {"TaxReportRepository::getDailyBreakdown failed:", lcDefault});
    bindPeriod(statement, from, to);
    return statement.rows(readDay);
}

const BoundedSql getSessionsSql(R"(
    SELECT os.id, os.receipt_number, os.order_type, t.table_name, os.subtotal, os.tax,
        os.discount, os.total, os.closed_at
    FROM order_sessions os
    LEFT JOIN tables t ON t.id = os.table_id
    WHERE os.status = 'paid' AND os.closed_at IS NOT NULL
    AND date(os.closed_at) >= :from AND date(os.closed_at) <= :to {bound}
    ORDER BY os.closed_at DESC)",
                                "AND os.id IN (" SESSIONS_OF_THE_PERIOD ")");

QList<TaxSessionRow> TaxReportRepository::getSessions(const QDate &from, const QDate &to) const
{
    Statement statement(m_database, getSessionsSql.text(WorkingSet::narrows(m_database, from, to)),
                        {"TaxReportRepository::getSessions failed:", lcDefault});
    bindPeriod(statement, from, to);
    return statement.rows(readSession);
}
