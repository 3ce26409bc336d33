// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/TaxReportService.h"

#include "repositories/TaxReportRepository.h"

namespace {
QVariantMap dailyMap(const TaxDailyRow &row)
{
    return {{QStringLiteral("date"), row.day},
            {QStringLiteral("transactionCount"), row.transaction_count},
            {QStringLiteral("subtotal"), row.subtotal},
            {QStringLiteral("taxCollected"), row.tax_collected},
            {QStringLiteral("discount"), row.discount},
            {QStringLiteral("totalSales"), row.total_sales}};
}

QVariantMap sessionMap(const TaxSessionRow &row)
{
    return {{QStringLiteral("sessionId"), row.id},
            {QStringLiteral("receiptNumber"), row.receipt_number},
            {QStringLiteral("orderType"), row.order_type},
            {QStringLiteral("tableName"), row.table_name},
            {QStringLiteral("subtotal"), row.subtotal},
            {QStringLiteral("tax"), row.tax},
            {QStringLiteral("discount"), row.discount},
            {QStringLiteral("total"), row.total},
            {QStringLiteral("closedAt"), row.closed_at}};
}

QDate firstOfMonth(const QDate &date)
{
    return {date.year(), date.month(), 1};
}
} // namespace

TaxReportService::TaxReportService(TaxReportRepository *reports, QObject *parent)
    : QObject(parent)
    , m_reports(reports)
{}

QVariantMap TaxReportService::getSummary(const QDate &from, const QDate &to) const
{
    const TaxSummary summary = m_reports->getSummary(from, to);
    return {{QStringLiteral("from"), from.toString(Qt::ISODate)},
            {QStringLiteral("to"), to.toString(Qt::ISODate)},
            {QStringLiteral("transactionCount"), summary.transaction_count},
            {QStringLiteral("subtotal"), summary.subtotal},
            {QStringLiteral("taxCollected"), summary.tax_collected},
            {QStringLiteral("discount"), summary.discount},
            {QStringLiteral("totalSales"), summary.total_sales},
            {QStringLiteral("taxName"), summary.tax_name},
            {QStringLiteral("taxRate"), summary.tax_rate},
            {QStringLiteral("taxRegistrationNumber"), summary.tax_registration_number}};
}

QVariantList TaxReportService::getDailyBreakdown(const QDate &from, const QDate &to) const
{
    QVariantList maps;
    for (const TaxDailyRow &row : m_reports->getDailyBreakdown(from, to)) {
        maps.append(dailyMap(row));
    }
    return maps;
}

QVariantList TaxReportService::getSessions(const QDate &from, const QDate &to) const
{
    QVariantList maps;
    for (const TaxSessionRow &row : m_reports->getSessions(from, to)) {
        maps.append(sessionMap(row));
    }
    return maps;
}

QVariantMap TaxReportService::getTodaySummary() const
{
    const QDate today = QDate::currentDate();
    return getSummary(today, today);
}

QVariantMap TaxReportService::getYesterdaySummary() const
{
    const QDate yesterday = QDate::currentDate().addDays(-1);
    return getSummary(yesterday, yesterday);
}

QVariantMap TaxReportService::getThisWeekSummary() const
{
    const QDate today = QDate::currentDate();
    return getSummary(today.addDays(1 - today.dayOfWeek()), today);
}

QVariantMap TaxReportService::getThisMonthSummary() const
{
    const QDate today = QDate::currentDate();
    return getSummary(firstOfMonth(today), today);
}

QVariantMap TaxReportService::getLastMonthSummary() const
{
    const QDate thisMonth = firstOfMonth(QDate::currentDate());
    return getSummary(thisMonth.addMonths(-1), thisMonth.addDays(-1));
}
