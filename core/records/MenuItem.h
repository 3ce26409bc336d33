// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <optional>

/// A dish or drink on sale.
struct MenuItem
{
    int id = -1;
    QString item;
    int category_id = -1;
    /// Whole cents of the store's currency.
    int price = 0;
    std::optional<QString> portion_size;
    bool is_available = true;
    bool is_taxable = true;
};
