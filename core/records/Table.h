// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A seat group of the restaurant.
struct Table
{
    int id = -1;
    QString table_name;
    int capacity = 0;
    /// "available", "occupied" or "reserved".
    QString status;
    /// UTC, as stored.
    QString created_at;
};
