// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDate>
#include <QObject>
#include <QVariantList>
#include <QVariantMap>

class TaxReportRepository;

/// Sales and tax of a period of days, both ends included. Amounts stay in cents up to the screen.
class TaxReportService final : public QObject
{
    Q_OBJECT

public:
    explicit TaxReportService(TaxReportRepository *reports, QObject *parent = nullptr);

    /// The tax's name, rate and number are those of the period's latest sale.
    Q_INVOKABLE [[nodiscard]] QVariantMap getSummary(const QDate &from, const QDate &to) const;
    Q_INVOKABLE [[nodiscard]] QVariantList getDailyBreakdown(const QDate &from,
                                                             const QDate &to) const;
    /// Latest first; `closedAt` is UTC, as stored.
    Q_INVOKABLE [[nodiscard]] QVariantList getSessions(const QDate &from, const QDate &to) const;

    /// The presets go by the local date.
    Q_INVOKABLE [[nodiscard]] QVariantMap getTodaySummary() const;
    Q_INVOKABLE [[nodiscard]] QVariantMap getYesterdaySummary() const;
    /// From this week's Monday to today.
    Q_INVOKABLE [[nodiscard]] QVariantMap getThisWeekSummary() const;
    Q_INVOKABLE [[nodiscard]] QVariantMap getThisMonthSummary() const;
    Q_INVOKABLE [[nodiscard]] QVariantMap getLastMonthSummary() const;

private:
    TaxReportRepository *m_reports;
};
