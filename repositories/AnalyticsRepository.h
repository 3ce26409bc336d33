// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/DayRevenue.h"
#include "core/records/HourRevenue.h"
#include "core/records/TopItem.h"

#include <QList>
#include <QSqlDatabase>

/// The figures of the day, which is the UTC day. Money is cents.
class AnalyticsRepository final
{
public:
    explicit AnalyticsRepository(const QSqlDatabase &database);

    [[nodiscard]] double revenueToday() const;
    [[nodiscard]] int ordersCountToday() const;
    [[nodiscard]] double averageOrderToday() const;
    [[nodiscard]] int itemsSoldToday() const;
    [[nodiscard]] QList<TopItem> topItemsToday() const;
    [[nodiscard]] QList<HourRevenue> revenueByHourToday() const;
    /// Seven rows, oldest first. The days walked are local and the days summed UTC: that is meant.
    [[nodiscard]] QList<DayRevenue> revenueLastSevenDays() const;

private:
    QSqlDatabase m_database;
};
