// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <optional>

/// What a receipt must keep saying after the store has changed. Absent fields are NULL.
struct ReceiptSnapshot
{
    int id = -1;
    int order_session_id = -1;
    std::optional<QString> cashier_name;
    std::optional<QString> store_name;
    std::optional<QString> address;
    std::optional<QString> phone;
    std::optional<QString> email;
    std::optional<QString> website;
    std::optional<QString> tax_name;
    /// Scaled so that 1% = 100.
    std::optional<int> tax_rate;
    std::optional<QString> tax_registration_number;
    std::optional<QString> member_phone;
    std::optional<int> points_balance_before;
    std::optional<int> points_balance_after;
    std::optional<QString> order_type;
    std::optional<QString> table_name;
    /// UTC, as stored; read back only.
    std::optional<QString> created_at;
};
