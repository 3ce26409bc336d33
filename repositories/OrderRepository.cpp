// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/OrderRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"

namespace {
const QLoggingCategory &lcDefault()
{
    return *QLoggingCategory::defaultCategory();
}

Order readOrder(const Statement &row)
{
    Order order;
    order.id = row.integer(0);
    order.order_session_id = row.integer(1);
    order.display_number = row.integer(2);
    order.status = row.text(3);
    order.notes = row.text(4);
    order.closed_at = row.text(5);
    return order;
}

ActiveOrderRow readActiveOrder(const Statement &row)
{
    ActiveOrderRow order;
    order.order_id = row.integer(0);
    order.order_display_number = row.integer(1);
    order.order_session_id = row.integer(2);
    order.order_status = row.text(3);
    order.order_notes = row.text(4);
    order.session_order_type = row.text(5);
    order.session_table_id = row.optionalInteger(6);
    return order;
}
} // namespace

OrderRepository::OrderRepository(const QSqlDatabase &database)
    : m_database(database)
{}

const BoundedSql getMaxDisplayNumberSql(
    "SELECT MAX(display_number) FROM orders WHERE DATE(created_at) = :date{bound}",
    " AND id IN (SELECT id FROM temp.working_orders"
    " WHERE created_day = :date OR created_day IS NULL)");

int OrderRepository::getMaxDisplayNumber(const QString &date) const
{
    Statement statement(m_database,
                        getMaxDisplayNumberSql.text(WorkingSet::holdsDay(m_database, date)),
                        {"Failed to get max display number:"});
    statement.bind(":date", date);
    // MAX over no rows is NULL, which reads as 0.
    return statement.run() && statement.next() ? statement.integer(0) : 0;
}

constexpr auto createSql = R"(
    INSERT INTO orders (display_number, order_session_id, status, notes)
    VALUES (:display_number, :order_session_id, :status, :notes))";

int OrderRepository::create(Order &order)
{
    Statement statement(
        m_database, createSql,
        {"Failed to create order:", lcDefault, QtCriticalMsg, FailureReport::Error::Text});
    statement.bind(":display_number", order.display_number);
    statement.bind(":order_session_id", order.order_session_id);
    statement.bind(":status", order.status);
    statement.bind(":notes", order.notes);
    if (!statement.run()) {
        return 0;
    }
    order.id = statement.insertedId();
    return order.id;
}

constexpr auto updateSql = "UPDATE orders SET status = :status, notes = :notes, closed_at = "
                           ":closed_at WHERE id = :order_id";

bool OrderRepository::update(const Order &order)
{
    Statement statement(m_database, updateSql, {"update failed:"});
    statement.bind(":status", order.status);
    statement.bind(":notes", order.notes);
    // An order that is still open keeps a NULL stamp.
    statement.bind(":closed_at",
                   order.closed_at.isEmpty() ? std::nullopt : std::optional(order.closed_at));
    statement.bind(":order_id", order.id);
    return statement.run();
}

void OrderRepository::remove(int id)
{
    Statement statement(m_database, "DELETE FROM orders WHERE id = :order_id", {"remove failed:"});
    statement.bind(":order_id", id);
    // A failure is only logged: the caller has no use for it.
    std::ignore = statement.run();
}

constexpr auto getOrderByIdSql = R"(
    SELECT id, order_session_id, display_number, status, notes, closed_at FROM orders
    WHERE id = :id)";

std::optional<Order> OrderRepository::getOrderById(int id) const
{
    Statement statement(m_database, getOrderByIdSql, {"getOrderById failed:"});
    statement.bind(":id", id);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readOrder(statement);
}

const BoundedSql getOrdersByStatusSql(R"(
    SELECT id, order_session_id, display_number, status, notes, closed_at FROM orders
    WHERE status = :status {bound}
    ORDER BY created_at ASC)",
                                      "AND id IN (SELECT id FROM temp.working_orders"
                                      " WHERE served = 0)");

QList<Order> OrderRepository::getOrdersByStatus(const QString &status) const
{
    const bool onTheBoard = status != QLatin1String("served") && WorkingSet::isReady(m_database);
    Statement statement(m_database, getOrdersByStatusSql.text(onTheBoard),
                        {"getOrdersByStatus failed:"});
    statement.bind(":status", status);
    return statement.rows(readOrder);
}

const BoundedSql getOrdersBySessionSql(R"(
    SELECT id, order_session_id, display_number, status, notes, closed_at FROM orders
    WHERE order_session_id = :sessionId {bound})",
                                       "AND id IN (SELECT id FROM temp.working_orders"
                                       " WHERE session_id = :sessionId)");

QList<Order> OrderRepository::getOrdersBySession(int sessionId) const
{
    Statement statement(m_database,
                        getOrdersBySessionSql.text(WorkingSet::holdsSession(m_database, sessionId)),
                        {"Failed to get orders for session:"});
    statement.bind(":sessionId", sessionId);
    return statement.rows(readOrder);
}

const BoundedSql getActiveSessionOrdersSql(R"(
    SELECT o.id, o.display_number, o.order_session_id, o.status, o.notes,
        s.order_type, s.table_id
    FROM orders o
    JOIN order_sessions s ON s.id = o.order_session_id
    WHERE s.status != 'paid'
    AND o.created_at >= DATETIME('now', 'localtime', 'start of day')
    AND o.created_at < DATETIME('now', 'localtime', 'start of day', '+1 day') {bound}
    ORDER BY o.created_at DESC)",
                                           "AND o.id IN (SELECT id FROM temp.working_orders)");

QList<ActiveOrderRow> OrderRepository::getActiveSessionOrders() const
{
    Statement statement(m_database, getActiveSessionOrdersSql.text(WorkingSet::isReady(m_database)),
                        {"Failed to get active order session orders:", lcDefault, QtCriticalMsg});
    return statement.rows(readActiveOrder);
}
