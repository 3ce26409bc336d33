// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A heading of the menu.
struct Category
{
    int id = -1;
    QString category;
};
