// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// Sales and tax of one UTC day, in cents.
struct TaxDailyRow
{
    QString day;
    int transaction_count = 0;
    double subtotal = 0.0;
    double tax_collected = 0.0;
    double discount = 0.0;
    double total_sales = 0.0;
};
