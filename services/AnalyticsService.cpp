// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/AnalyticsService.h"

#include "repositories/AnalyticsRepository.h"

#include <QVariantList>

namespace {
double unitsOf(double cents)
{
    return cents / 100.0;
}

QVariantList topItemMaps(const QList<TopItem> &items)
{
    QVariantList maps;
    for (const TopItem &item : items) {
        maps.append(QVariantMap{{QStringLiteral("name"), item.name},
                                {QStringLiteral("count"), item.quantity}});
    }
    return maps;
}

QVariantList hourMaps(const QList<HourRevenue> &hours)
{
    QVariantList maps;
    for (const HourRevenue &hour : hours) {
        maps.append(QVariantMap{{QStringLiteral("hour"), AnalyticsService::hourLabel(hour.hour)},
                                {QStringLiteral("amount"), unitsOf(hour.amount)}});
    }
    return maps;
}

QVariantList dayMaps(const QList<DayRevenue> &days)
{
    QVariantList maps;
    for (const DayRevenue &day : days) {
        maps.append(QVariantMap{{QStringLiteral("day"), day.day},
                                {QStringLiteral("amount"), unitsOf(day.amount)}});
    }
    return maps;
}
} // namespace

AnalyticsService::AnalyticsService(AnalyticsRepository *analytics, QObject *parent)
    : QObject(parent)
    , m_analytics(analytics)
{}

QVariantMap AnalyticsService::getSnapshot() const
{
    QVariantMap map;
    map[QStringLiteral("revenueToday")] = unitsOf(m_analytics->revenueToday());
    map[QStringLiteral("ordersToday")] = m_analytics->ordersCountToday();
    map[QStringLiteral("averageOrder")] = unitsOf(m_analytics->averageOrderToday());
    map[QStringLiteral("itemsSold")] = m_analytics->itemsSoldToday();
    map[QStringLiteral("topItems")] = topItemMaps(m_analytics->topItemsToday());
    map[QStringLiteral("revenueByHour")] = hourMaps(m_analytics->revenueByHourToday());
    map[QStringLiteral("last7Days")] = dayMaps(m_analytics->revenueLastSevenDays());
    return map;
}

QString AnalyticsService::hourLabel(int hour)
{
    if (hour == 0) {
        return QStringLiteral("12am-1am");
    }
    // 11 ends in "12am" and 23 in "12pm": the labels count on within their half of the day.
    if (hour < 12) {
        return QStringLiteral("%1am-%2am").arg(hour).arg(hour + 1);
    }
    if (hour == 12) {
        return QStringLiteral("12pm-1pm");
    }
    return QStringLiteral("%1pm-%2pm").arg(hour - 12).arg(hour - 11);
}
