// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDate>
#include <QString>

/// Sales and tax of a period. Amounts are cents; the tax identity is that of the latest sale.
struct TaxSummary
{
    QDate from;
    QDate to;
    int transaction_count = 0;
    double subtotal = 0.0;
    double tax_collected = 0.0;
    double discount = 0.0;
    double total_sales = 0.0;
    QString tax_name;
    /// Scaled so that 1% = 100.
    int tax_rate = 0;
    QString tax_registration_number;
};
