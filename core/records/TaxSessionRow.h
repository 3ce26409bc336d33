// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A paid session of a tax report. Amounts are cents.
struct TaxSessionRow
{
    int id = -1;
    QString receipt_number;
    QString order_type;
    QString table_name;
    double subtotal = 0.0;
    double tax = 0.0;
    double discount = 0.0;
    double total = 0.0;
    /// UTC, as stored.
    QString closed_at;
};
