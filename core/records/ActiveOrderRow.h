// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <optional>

/// An order of the current day joined with its unpaid session.
struct ActiveOrderRow
{
    int order_id = -1;
    int order_display_number = 0;
    int order_session_id = -1;
    QString order_status;
    QString order_notes;
    QString session_order_type;
    std::optional<int> session_table_id;
};
