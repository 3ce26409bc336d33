// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A named sheet on which tables and dividers are drawn.
struct Floor
{
    int id = -1;
    QString name;
    int floor_number = 0;
    int sort_order = 0;
    /// Stored and never consulted: inactive floors are listed like any other.
    int is_active = 1;
};
