// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/OrderSessionRepository.h"

#include "repositories/Statement.h"

namespace {
/// Where the columns of a "SELECT *" stand, looked up once a result.
struct SessionColumns
{
    explicit SessionColumns(const Statement &statement)
        : id(statement.column("id"))
        , displayNumber(statement.column("display_number"))
        , receiptNumber(statement.column("receipt_number"))
        , tableId(statement.column("table_id"))
        , orderType(statement.column("order_type"))
        , status(statement.column("status"))
        , pointsEarned(statement.column("points_earned"))
        , pointsRedeemed(statement.column("points_redeemed"))
        , subtotal(statement.column("subtotal"))
        , tax(statement.column("tax"))
        , discount(statement.column("discount"))
        , total(statement.column("total"))
        , openedAt(statement.column("opened_at"))
        , closedAt(statement.column("closed_at"))
    {}

    int id, displayNumber, receiptNumber, tableId, orderType, status, pointsEarned, pointsRedeemed;
    int subtotal, tax, discount, total, openedAt, closedAt;
};

OrderSession readSession(const Statement &row, const SessionColumns &at)
{
    OrderSession session;
    session.id = row.integer(at.id);
    session.display_number = row.integer(at.displayNumber);
    session.receipt_number = row.optionalText(at.receiptNumber);
    session.table_id = row.optionalInteger(at.tableId);
    session.order_type = row.text(at.orderType);
    session.status = row.text(at.status);
    session.points_earned = row.integer(at.pointsEarned);
    session.points_redeemed = row.integer(at.pointsRedeemed);
    session.subtotal = row.real(at.subtotal);
    session.tax = row.real(at.tax);
    session.discount = row.real(at.discount);
    session.total = row.real(at.total);
    session.opened_at = row.optionalText(at.openedAt);
    session.closed_at = row.optionalText(at.closedAt);
    return session;
}

QList<OrderSession> readSessions(Statement &statement)
{
    if (!statement.run()) {
        return {};
    }
    const SessionColumns at(statement);
    QList<OrderSession> sessions;
    while (statement.next()) {
        sessions.append(readSession(statement, at));
    }
    return sessions;
}

std::optional<OrderSession> readOneSession(Statement &statement)
{
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readSession(statement, SessionColumns(statement));
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

constexpr auto getMaxDisplayNumberSql =
    "SELECT MAX(display_number) FROM order_sessions WHERE DATE(opened_at) = :date";

int OrderSessionRepository::getMaxDisplayNumber(const QString &date) const
{
    Statement statement(m_database, getMaxDisplayNumberSql, {"Failed to get max display number:"});
    statement.bind(":date", date);
    // MAX over no rows is NULL, which reads as 0.
    return statement.run() && statement.next() ? statement.integer(0) : 0;
}

constexpr auto findOpenDineInSessionSql = R"(
    SELECT id FROM order_sessions
    WHERE table_id = :table_id
    AND status = 'open'
    AND order_type = 'dine_in'
    LIMIT 1)";

int OrderSessionRepository::findOpenDineInSession(int tableId) const
{
    Statement statement(m_database, findOpenDineInSessionSql, {nullptr});
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

constexpr auto getRecentPaidSessionsSql = R"(
    SELECT * FROM order_sessions
    WHERE status = 'paid'
    ORDER BY closed_at DESC
    LIMIT :limit)";

QList<OrderSession> OrderSessionRepository::getRecentPaidSessions(int limit) const
{
    Statement statement(m_database, getRecentPaidSessionsSql,
                        {"Failed to get recent paid sessions:"});
    statement.bind(":limit", limit);
    return readSessions(statement);
}

QList<OrderSession> OrderSessionRepository::getOpenSessions() const
{
    Statement statement(m_database, "SELECT * FROM order_sessions WHERE status = 'open'",
                        {"Failed to get active order sessions:"});
    return readSessions(statement);
}
