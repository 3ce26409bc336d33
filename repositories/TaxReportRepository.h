// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/TaxDailyRow.h"
#include "core/records/TaxSessionRow.h"
#include "core/records/TaxSummary.h"

#include <QDate>
#include <QList>
#include <QSqlDatabase>

/// Paid sessions of a period of UTC days, both ends included. Amounts are cents.
class TaxReportRepository final
{
public:
    explicit TaxReportRepository(const QSqlDatabase &database);

    [[nodiscard]] TaxSummary getSummary(const QDate &from, const QDate &to) const;
    [[nodiscard]] QList<TaxDailyRow> getDailyBreakdown(const QDate &from, const QDate &to) const;
    [[nodiscard]] QList<TaxSessionRow> getSessions(const QDate &from, const QDate &to) const;

private:
    QSqlDatabase m_database;
};
