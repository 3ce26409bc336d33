// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// How orders reach the kitchen.
struct KitchenSettings
{
    int id = -1;
    /// "none", "kds", "tickets" or "hybrid".
    QString mode;
    /// "order_created" or "manual".
    QString ticket_print_timing;
    bool require_ready_for_checkout = false;
    bool allow_edit_after_send = false;
};
