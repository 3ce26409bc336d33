// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/OrderSessionRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"

namespace {
/// By position: the columns of a "SELECT *" stand in the order in which the table was created, and
/// this row is read too often to look them up by name.
OrderSession readSession(const Statement &row)
{
    OrderSession session;
    session.id = row.integer(0);
    session.display_number = row.integer(1);
    session.receipt_number = row.optionalText(2);
    session.table_id = row.optionalInteger(3);
    session.order_type = row.text(4);
    session.status = row.text(5);
    session.points_earned = row.integer(6);
    session.points_redeemed = row.integer(7);
    session.subtotal = row.real(8);
    session.tax = row.real(9);
    session.discount = row.real(10);
    session.total = row.real(11);
    session.opened_at = row.optionalText(12);
    session.closed_at = row.optionalText(13);
    return session;
}

std::optional<OrderSession> readOneSession(Statement &statement)
{
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readSession(statement);
}

/// What creation and update write alike.
void bindFields(Statement &statement, const OrderSession &session)
{
    statement.bind(":display_number", session.display_number);
    statement.bind(":table_id", session.table_id);
    statement.bind(":order_type", session.order_type);
    statement.bind(":status", session.status);
    statement.bind(":points_earned", session.points_earned);
    statement.bind(":points_redeemed", session.points_redeemed);
    statement.bind(":subtotal", session.subtotal);
    statement.bind(":tax", session.tax);
    statement.bind(":discount", session.discount);
    statement.bind(":total", session.total);
}
} // namespace

OrderSessionRepository::OrderSessionRepository(const QSqlDatabase &database)
    : m_database(database)
{}

const BoundedSql getMaxDisplayNumberSql(
    "SELECT MAX(display_number) FROM order_sessions WHERE DATE(opened_at) = :date{bound}",
    " AND id IN (SELECT id FROM temp.working_sessions"
    " WHERE opened_day = :date OR opened_day IS NULL)");

int OrderSessionRepository::getMaxDisplayNumber(const QString &date) const
{
    Statement statement(m_database,
                        getMaxDisplayNumberSql.text(WorkingSet::holdsDay(m_database, date)),
                        {"Failed to get max display number:"});
    statement.bind(":date", date);
    // MAX over no rows is NULL, which reads as 0.
    return statement.run() && statement.next() ? statement.integer(0) : 0;
}

constexpr auto amongUnpaid = "AND id IN (SELECT id FROM temp.working_sessions WHERE paid = 0)";

const BoundedSql findOpenDineInSessionSql(R"(
    SELECT id FROM order_sessions
    WHERE table_id = :table_id
    AND status = 'open'
    AND order_type = 'dine_in' {bound}
    LIMIT 1)",
                                          amongUnpaid);

int OrderSessionRepository::findOpenDineInSession(int tableId) const
{
    Statement statement(m_database, findOpenDineInSessionSql.text(WorkingSet::isReady(m_database)),
                        {nullptr});
    statement.bind(":table_id", tableId);
    return statement.run() && statement.next() ? statement.integer(0) : 0;
}

constexpr auto createSql = R"(
    INSERT INTO order_sessions (display_number, receipt_number, table_id, order_type, status,
        points_earned, points_redeemed, subtotal, tax, discount, total, closed_at)
    VALUES (:display_number, NULL, :table_id, :order_type, :status,
        :points_earned, :points_redeemed, :subtotal, :tax, :discount, :total, NULL))";

int OrderSessionRepository::create(OrderSession &session)
{
    Statement statement(m_database, createSql, {"Failed to create order session:"});
    bindFields(statement, session);
    if (!statement.run()) {
        return 0;
    }
    session.id = statement.insertedId();
    return session.id;
}

constexpr auto updateSql = R"(
    UPDATE order_sessions SET display_number = :display_number, receipt_number = :receipt_number,
        table_id = :table_id, order_type = :order_type, status = :status,
        points_earned = :points_earned, points_redeemed = :points_redeemed,
        subtotal = :subtotal, tax = :tax, discount = :discount, total = :total
    WHERE id = :id)";

bool OrderSessionRepository::update(const OrderSession &session)
{
    Statement statement(m_database, updateSql, {"Failed to update order session:"});
    bindFields(statement, session);
    statement.bind(":receipt_number", session.receipt_number);
    statement.bind(":id", session.id);
    return statement.run();
}

constexpr auto markPaidSql =
    "UPDATE order_sessions SET status = 'paid', closed_at = CURRENT_TIMESTAMP WHERE id = :id";

bool OrderSessionRepository::markPaid(int id)
{
    Statement statement(m_database, markPaidSql, {"Failed to mark order as closed:"});
    statement.bind(":id", id);
    return statement.run();
}

std::optional<OrderSession> OrderSessionRepository::getSessionById(int id) const
{
    Statement statement(m_database, "SELECT * FROM order_sessions WHERE id = :id",
                        {"Failed to get order session by id:"});
    statement.bind(":id", id);
    return readOneSession(statement);
}

constexpr auto getSessionByOrderIdSql = R"(
    SELECT s.* FROM order_sessions s
    JOIN orders o ON o.order_session_id = s.id
    WHERE o.id = :order_id
    LIMIT 1)";

std::optional<OrderSession> OrderSessionRepository::getSessionByOrderId(int orderId) const
{
    Statement statement(m_database, getSessionByOrderIdSql,
                        {"Failed to get order session by order id:"});
    statement.bind(":order_id", orderId);
    return readOneSession(statement);
}

const BoundedSql getRecentPaidSessionsSql(R"(
    SELECT * FROM order_sessions
    WHERE status = 'paid' {bound}
    ORDER BY closed_at DESC
    LIMIT :limit)",
                                          R"(AND id IN (
        SELECT id FROM temp.working_sessions
        WHERE paid = 1 AND closed_at >= (
            SELECT closed_at FROM temp.working_sessions
            WHERE paid = 1
            ORDER BY closed_at DESC
            LIMIT 1 OFFSET :limit - 1)))");

QList<OrderSession> OrderSessionRepository::getRecentPaidSessions(int limit) const
{
    Statement statement(m_database,
                        getRecentPaidSessionsSql.text(WorkingSet::holdsLastPaid(m_database, limit)),
                        {"Failed to get recent paid sessions:"});
    statement.bind(":limit", limit);
    return statement.rows(readSession);
}

const BoundedSql getOpenSessionsSql("SELECT * FROM order_sessions WHERE status = 'open' {bound}",
                                    amongUnpaid);

QList<OrderSession> OrderSessionRepository::getOpenSessions() const
{
    Statement statement(m_database, getOpenSessionsSql.text(WorkingSet::isReady(m_database)),
                        {"Failed to get active order sessions:"});
    return statement.rows(readSession);
}
