// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A dish and how many of it were sold today.
struct TopItem
{
    QString name;
    int quantity = 0;
};
