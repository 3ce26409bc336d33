// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/OrderItemRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"

#include <QStringList>

namespace {
const QLoggingCategory &lcDefault()
{
    return *QLoggingCategory::defaultCategory();
}

OrderItem readOrderItem(const Statement &row)
{
    OrderItem item;
    item.id = row.integer(0);
    item.order_id = row.integer(1);
    item.item_id = row.integer(2);
    item.item_name = row.text(3);
    item.quantity = row.integer(4);
    item.portion_size = row.text(5);
    item.price = row.real(6);
    item.is_taxable = row.boolean(7);
    item.item_status = row.text(8);
    item.notes = row.text(9);
    return item;
}

/// All fields that an update may change.
void bindFields(Statement &statement, const OrderItem &item)
{
    statement.bind(":item_id", item.item_id);
    statement.bind(":item_name", item.item_name);
    statement.bind(":quantity", item.quantity);
    statement.bind(":portion_size", item.portion_size);
    statement.bind(":price", item.price);
    statement.bind(":is_taxable", item.is_taxable);
    statement.bind(":item_status", item.item_status);
    statement.bind(":notes", item.notes);
}
} // namespace

OrderItemRepository::OrderItemRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO order_items (order_id, item_id, item_name, quantity, portion_size, price,
        is_taxable, item_status, notes)
    VALUES (:order_id, :item_id, :item_name, :quantity, :portion_size, :price,
        :is_taxable, :item_status, :notes))";

void OrderItemRepository::create(const OrderItem &item)
{
    Statement statement(m_database, createSql, {"[OrderItemRepository] create failed:"});
    statement.bind(":order_id", item.order_id);
    bindFields(statement, item);
    // A failure is only logged: the caller has no use for it.
    std::ignore = statement.run();
}

constexpr auto updateSql = R"(
    UPDATE order_items SET item_id = :item_id, item_name = :item_name, quantity = :quantity,
        portion_size = :portion_size, price = :price, is_taxable = :is_taxable,
        item_status = :item_status, notes = :notes
    WHERE id = :id)";

void OrderItemRepository::update(const OrderItem &item)
{
    Statement statement(m_database, updateSql, {"update failed:"});
    bindFields(statement, item);
    statement.bind(":id", item.id);
    std::ignore = statement.run();
}

void OrderItemRepository::remove(int id)
{
    Statement statement(m_database, "DELETE FROM order_items WHERE id = :id", {"remove failed:"});
    statement.bind(":id", id);
    std::ignore = statement.run();
}

const BoundedSql
    removeByOrderIdSql("DELETE FROM order_items WHERE order_id = ?{bound}",
                       " AND id IN (SELECT id FROM temp.working_lines WHERE order_id = ?)");

void OrderItemRepository::removeByOrderId(int orderId)
{
    const bool held = WorkingSet::holdsOrder(m_database, orderId);
    Statement statement(m_database, removeByOrderIdSql.text(held),
                        {"Failed to remove order items:", lcDefault, QtCriticalMsg});
    statement.addBind(orderId);
    if (held) {
        statement.addBind(orderId);
    }
    std::ignore = statement.run();
}

constexpr auto ofTheOrder =
    " AND id IN (SELECT id FROM temp.working_lines WHERE order_id = :order_id)";

const BoundedSql markItemsByOrderIdSql(
    "UPDATE order_items SET item_status = :status WHERE order_id = :order_id{bound}", ofTheOrder);

bool OrderItemRepository::markItemsByOrderId(int orderId, const QString &status)
{
    Statement statement(m_database,
                        markItemsByOrderIdSql.text(WorkingSet::holdsOrder(m_database, orderId)),
                        {"markItemsByOrderId failed:"});
    statement.bind(":status", status);
    statement.bind(":order_id", orderId);
    return statement.run();
}

constexpr auto getOrderItemByIdSql = R"(
    SELECT id, order_id, item_id, item_name, quantity, portion_size, price, is_taxable,
        item_status, notes
    FROM order_items WHERE id = :id)";

std::optional<OrderItem> OrderItemRepository::getOrderItemById(int id) const
{
    Statement statement(m_database, getOrderItemByIdSql, {"getOrderItemById failed:"});
    statement.bind(":id", id);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readOrderItem(statement);
}

constexpr auto getAllOrderItemsSql = R"(
    SELECT id, order_id, item_id, item_name, quantity, portion_size, price, is_taxable,
        item_status, notes
    FROM order_items)";

QList<OrderItem> OrderItemRepository::getAllOrderItems() const
{
    Statement statement(m_database, getAllOrderItemsSql, {"getAllOrderItems failed:"});
    return statement.rows(readOrderItem);
}

const BoundedSql getOrderItemsByOrderIdSql(R"(
    SELECT id, order_id, item_id, item_name, quantity, portion_size, price, is_taxable,
        item_status, notes
    FROM order_items WHERE order_id = :order_id{bound})",
                                           ofTheOrder);

QList<OrderItem> OrderItemRepository::getOrderItemsByOrderId(int orderId) const
{
    Statement statement(m_database,
                        getOrderItemsByOrderIdSql.text(WorkingSet::holdsOrder(m_database, orderId)),
                        {"getOrderItemsByOrderId failed:"});
    statement.bind(":order_id", orderId);
    return statement.rows(readOrderItem);
}

const BoundedSql getOrderItemsByOrderIdsSql(
    "SELECT id, order_id, item_id, item_name, quantity, portion_size, price, is_taxable, "
    "item_status, notes FROM order_items WHERE order_id IN (%1){bound}",
    " AND id IN (SELECT id FROM temp.working_lines WHERE order_id IN (%1))");

QList<OrderItem> OrderItemRepository::getOrderItemsByOrderIds(const QList<int> &orderIds) const
{
    if (orderIds.isEmpty()) {
        return {};
    }
    const QString placeholders =
        QStringList(orderIds.size(), QStringLiteral("?")).join(QLatin1Char(','));
    const bool held = WorkingSet::holdsOrders(m_database, orderIds);
    Statement statement(
        m_database, QString::fromLatin1(getOrderItemsByOrderIdsSql.text(held)).arg(placeholders),
        {"getOrderItemsByOrderIds failed:"});
    for (const QList<int> &ids : {orderIds, held ? orderIds : QList<int>()}) {
        for (const int orderId : ids) {
            statement.addBind(orderId);
        }
    }
    return statement.rows(readOrderItem);
}
