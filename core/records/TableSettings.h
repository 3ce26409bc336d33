// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// How tables are laid out on the order screens.
struct TableSettings
{
    int id = -1;
    /// "simple" or "floor_plan".
    QString layout_mode;
};
