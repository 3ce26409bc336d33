// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Order.h"

#include <QList>

/// The ids of orders, to ask for all their lines in one statement.
[[nodiscard]] inline QList<int> idsOf(const QList<Order> &orders)
{
    QList<int> ids;
    ids.reserve(orders.size());
    for (const Order &order : orders) {
        ids.append(order.id);
    }
    return ids;
}
