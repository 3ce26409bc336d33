// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// Takings of one day.
struct DayRevenue
{
    /// "yyyy-MM-dd".
    QString day;
    /// Cents.
    double amount = 0.0;
};
