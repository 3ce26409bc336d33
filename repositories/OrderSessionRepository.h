// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/OrderSession.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The SQL of `order_sessions`. Money is cents in doubles.
class OrderSessionRepository final
{
public:
    explicit OrderSessionRepository(const QSqlDatabase &database);

    /// The highest display number of the sessions opened on that date ("yyyy-MM-dd", compared with
    /// the stored UTC stamps); 0 for none or on failure.
    [[nodiscard]] int getMaxDisplayNumber(const QString &date) const;
    /// The id of the table's open dine-in session, 0 for none or on failure.
    [[nodiscard]] int findOpenDineInSession(int tableId) const;
    /// The new id, also stored in the record; 0 on failure. No receipt number and no closing time
    /// yet.
    int create(OrderSession &session);
    /// All but `opened_at` and `closed_at`.
    bool update(const OrderSession &session);
    /// Status "paid" and the closing time of the moment, in UTC.
    bool markPaid(int id);

    [[nodiscard]] std::optional<OrderSession> getSessionById(int id) const;
    [[nodiscard]] std::optional<OrderSession> getSessionByOrderId(int orderId) const;
    /// Newest payment first.
    [[nodiscard]] QList<OrderSession> getRecentPaidSessions(int limit) const;
    [[nodiscard]] QList<OrderSession> getOpenSessions() const;

private:
    QSqlDatabase m_database;
};
