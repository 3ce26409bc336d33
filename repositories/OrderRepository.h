// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/ActiveOrderRow.h"
#include "core/records/Order.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The SQL of `orders`.
class OrderRepository final
{
public:
    explicit OrderRepository(const QSqlDatabase &database);

    /// The highest display number whose row was created on that date ("yyyy-MM-dd", compared with
    /// the stored UTC stamps); 0 for none or on failure.
    [[nodiscard]] int getMaxDisplayNumber(const QString &date) const;
    /// The new id, also stored in the record; 0 on failure.
    int create(Order &order);
    /// Status, notes and `closed_at` by id.
    bool update(const Order &order);
    void remove(int id);

    [[nodiscard]] std::optional<Order> getOrderById(int id) const;
    /// Oldest first, over all days.
    [[nodiscard]] QList<Order> getOrdersByStatus(const QString &status) const;
    [[nodiscard]] QList<Order> getOrdersBySession(int sessionId) const;
    /// Orders of the current local day in unpaid sessions, newest first. The stored stamps are UTC
    /// and the bounds are local: that mismatch is meant.
    [[nodiscard]] QList<ActiveOrderRow> getActiveSessionOrders() const;

private:
    QSqlDatabase m_database;
};
