// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A line of an order: a snapshot of the menu at the moment of ordering.
struct OrderItem
{
    int id = -1;
    int order_id = -1;
    int item_id = -1;
    QString item_name;
    int quantity = 0;
    QString portion_size;
    /// Unit price in whole cents.
    double price = 0.0;
    bool is_taxable = false;
    /// "pending" or "served".
    QString item_status;
    QString notes;
};
