// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Order.h"
#include "core/records/OrderItem.h"
#include "core/records/OrderSession.h"

#include <QList>
#include <QVariantList>
#include <QVariantMap>

class TableNames;

/// The rows that the checkout screen shows. Amounts are currency units (cents / 100.0).
namespace CheckoutMaps {
[[nodiscard]] QVariantMap openSession(const OrderSession &session, const TableNames &tableNames);
[[nodiscard]] QVariantMap recentOrder(const OrderSession &session);

/// One map an order, with its lines under "items".
[[nodiscard]] QVariantList orders(const QList<Order> &orders, const QList<OrderItem> &items);

/// Adds "subtotal", "tax", "discount" and "total".
void insertAmounts(QVariantMap &map, const OrderSession &session);
} // namespace CheckoutMaps
