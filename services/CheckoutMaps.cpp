// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutMaps.h"

#include "services/TableNames.h"

#include <QHash>

#include <optional>

namespace {
double units(double cents)
{
    return cents / 100.0;
}

QVariant nullWhenAbsent(const std::optional<QString> &text)
{
    return text ? QVariant(*text) : QVariant::fromValue(nullptr);
}

QVariantMap itemMap(const OrderItem &item)
{
    const double unitPrice = units(item.price);
    return {
        {QStringLiteral("id"), item.id},
        {QStringLiteral("item_id"), item.item_id},
        {QStringLiteral("item_name"), item.item_name},
        {QStringLiteral("quantity"), item.quantity},
        {QStringLiteral("portion_size"), item.portion_size},
        {QStringLiteral("unit_price"), unitPrice},
        {QStringLiteral("total_price"), item.quantity * unitPrice},
        {QStringLiteral("item_status"), item.item_status},
        {QStringLiteral("notes"), item.notes},
    };
}
} // namespace

QVariantMap CheckoutMaps::openSession(const OrderSession &session, const TableNames &tableNames)
{
    QVariantMap map{
        {QStringLiteral("id"), session.id},
        {QStringLiteral("display_number"), session.display_number},
        {QStringLiteral("table_name"), tableNames.shown(session.table_id)},
        {QStringLiteral("order_type"), session.order_type},
        {QStringLiteral("status"), session.status},
        {QStringLiteral("opened_at"), nullWhenAbsent(session.opened_at)},
        {QStringLiteral("closed_at"), nullWhenAbsent(session.closed_at)},
    };
    insertAmounts(map, session);
    return map;
}

QVariantMap CheckoutMaps::recentOrder(const OrderSession &session)
{
    return {
        {QStringLiteral("id"), session.id},
        {QStringLiteral("display_number"), session.display_number},
        {QStringLiteral("total"), units(session.total)},
    };
}

QVariantList CheckoutMaps::orders(const QList<Order> &orders, const QList<OrderItem> &items)
{
    QHash<int, QVariantList> itemsByOrder;
    for (const OrderItem &item : items) {
        itemsByOrder[item.order_id].append(itemMap(item));
    }
    QVariantList list;
    list.reserve(orders.size());
    for (const Order &order : orders) {
        list.append(QVariantMap{
            {QStringLiteral("id"), order.id},
            {QStringLiteral("display_number"), order.display_number},
            {QStringLiteral("status"), order.status},
            {QStringLiteral("notes"), order.notes},
            {QStringLiteral("closed_at"),
             order.closed_at.isEmpty() ? QVariant::fromValue(nullptr) : QVariant(order.closed_at)},
            {QStringLiteral("items"), itemsByOrder.value(order.id)},
        });
    }
    return list;
}

void CheckoutMaps::insertAmounts(QVariantMap &map, const OrderSession &session)
{
    map.insert(QStringLiteral("subtotal"), units(session.subtotal));
    map.insert(QStringLiteral("tax"), units(session.tax));
    map.insert(QStringLiteral("discount"), units(session.discount));
    map.insert(QStringLiteral("total"), units(session.total));
}
