// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

class AnalyticsRepository;

/// The day's figures for the dashboard, computed afresh at every call. The day is the UTC day.
class AnalyticsService final : public QObject
{
    Q_OBJECT

public:
    explicit AnalyticsService(AnalyticsRepository *analytics, QObject *parent = nullptr);

    /// `revenueToday`, `ordersToday`, `averageOrder`, `itemsSold`, `topItems`, `revenueByHour` and
    /// `last7Days`. Amounts are in currency units.
    Q_INVOKABLE [[nodiscard]] QVariantMap getSnapshot() const;

    /// "2pm-3pm" for 14. Fixed English, never translated.
    [[nodiscard]] static QString hourLabel(int hour);

private:
    AnalyticsRepository *m_analytics;
};
