// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

class OrderItemRepository;
class OrderRepository;
class OrderSessionRepository;
class TableRepository;

/// Feeds the kitchen board and moves orders from one state to the next. Serving is not paying: the
/// session, the table and the totals stay as they are.
class KitchenOrderService final : public QObject
{
    Q_OBJECT

public:
    KitchenOrderService(OrderSessionRepository *sessions, OrderRepository *orders,
                        OrderItemRepository *items, TableRepository *tables,
                        QObject *parent = nullptr);

    /// The orders of that status with their lines, oldest first, over all days.
    Q_INVOKABLE QVariantList getOrdersByStatus(const QString &status);

    /// Stores any word as the order's state; "served" also stamps the local closing time and takes
    /// the lines along. False only for an unknown order.
    Q_INVOKABLE bool markState(int orderId, const QString &state);

signals:
    void ordersChanged();

private:
    OrderSessionRepository *m_sessions;
    OrderRepository *m_orders;
    OrderItemRepository *m_items;
    TableRepository *m_tables;
};
