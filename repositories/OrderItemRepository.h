// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/OrderItem.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The SQL of `order_items`. Prices are cents in doubles.
class OrderItemRepository final
{
public:
    explicit OrderItemRepository(const QSqlDatabase &database);

    void create(const OrderItem &item);
    /// Everything but `id` and `order_id`.
    void update(const OrderItem &item);
    void remove(int id);
    void removeByOrderId(int orderId);
    bool markItemsByOrderId(int orderId, const QString &status);

    [[nodiscard]] std::optional<OrderItem> getOrderItemById(int id) const;
    [[nodiscard]] QList<OrderItem> getAllOrderItems() const;
    [[nodiscard]] QList<OrderItem> getOrderItemsByOrderId(int orderId) const;
    /// The lines of many orders in one statement; empty at once for no ids.
    [[nodiscard]] QList<OrderItem> getOrderItemsByOrderIds(const QList<int> &orderIds) const;

private:
    QSqlDatabase m_database;
};
