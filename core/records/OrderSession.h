// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <optional>

/// One guest visit: one bill. All money is whole cents held in doubles.
struct OrderSession
{
    int id = -1;
    int display_number = 0;
    /// Given at payment.
    std::optional<QString> receipt_number;
    /// Set for dine-in only.
    std::optional<int> table_id;
    /// "dine_in", "takeaway" or "delivery".
    QString order_type;
    /// "open" or "paid".
    QString status;
    int points_earned = 0;
    int points_redeemed = 0;
    double subtotal = 0.0;
    double tax = 0.0;
    double discount = 0.0;
    double total = 0.0;
    /// UTC, as stored.
    std::optional<QString> opened_at;
    /// UTC, as stored.
    std::optional<QString> closed_at;
};
