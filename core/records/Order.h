// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// One batch of dishes ordered inside a session.
struct Order
{
    int id = -1;
    int order_session_id = -1;
    int display_number = 0;
    /// "pending", "in_progress", "ready" or "served".
    QString status;
    QString notes;
    /// Local ISO time of serving; empty while open.
    QString closed_at;
};
