// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/KitchenOrderService.h"

#include "core/Logging.h"
#include "core/records/Order.h"
#include "core/records/OrderItem.h"
#include "core/records/OrderSession.h"
#include "repositories/OrderItemRepository.h"
#include "repositories/OrderRepository.h"
#include "repositories/OrderSessionRepository.h"
#include "repositories/TableRepository.h"
#include "services/OrderIds.h"
#include "services/TableNames.h"

#include <QDateTime>
#include <QHash>
#include <QVariantMap>

#include <optional>

namespace {
const QString served = QStringLiteral("served");

QVariantMap lineMap(const OrderItem &item)
{
    return {
        {QStringLiteral("id"), item.id},
        {QStringLiteral("item_name"), item.item_name},
        {QStringLiteral("quantity"), item.quantity},
        {QStringLiteral("portion_size"), item.portion_size},
        {QStringLiteral("item_status"), item.item_status},
        {QStringLiteral("notes"), item.notes},
    };
}
} // namespace

KitchenOrderService::KitchenOrderService(OrderSessionRepository *sessions, OrderRepository *orders,
                                         OrderItemRepository *items, TableRepository *tables,
                                         QObject *parent)
    : QObject(parent)
    , m_sessions(sessions)
    , m_orders(orders)
    , m_items(items)
    , m_tables(tables)
{}

QVariantList KitchenOrderService::getOrdersByStatus(const QString &status)
{
    const QList<Order> orders = m_orders->getOrdersByStatus(status);
    if (orders.isEmpty()) {
        return {};
    }
    QHash<int, QVariantList> linesByOrder;
    for (const OrderItem &item : m_items->getOrderItemsByOrderIds(idsOf(orders))) {
        linesByOrder[item.order_id].append(lineMap(item));
    }
    const TableNames tableNames(*m_tables);

    QVariantList list;
    list.reserve(orders.size());
    for (const Order &order : orders) {
        QVariantMap map{
            {QStringLiteral("id"), order.id},
            {QStringLiteral("display_number"), order.display_number},
            {QStringLiteral("status"), order.status},
            {QStringLiteral("notes"), order.notes},
            {QStringLiteral("items"), linesByOrder.value(order.id)},
        };
        if (const std::optional<OrderSession> session =
                m_sessions->getSessionById(order.order_session_id)) {
            map.insert(QStringLiteral("table_name"), tableNames.shown(session->table_id));
            map.insert(QStringLiteral("order_type"), session->order_type);
        }
        list.append(map);
    }
    return list;
}

bool KitchenOrderService::markState(int orderId, const QString &state)
{
    std::optional<Order> order = m_orders->getOrderById(orderId);
    if (!order) {
        qCWarning(lcOrder) << "markState failed: order not found, id=" << orderId;
        return false;
    }
    // Neither the word nor the step is checked: the board offers only what follows.
    order->status = state;
    if (state == served) {
        order->closed_at = QDateTime::currentDateTime().toString(Qt::ISODate);
        m_items->markItemsByOrderId(orderId, served);
    }
    m_orders->update(*order);
    emit ordersChanged();
    return true;
}
