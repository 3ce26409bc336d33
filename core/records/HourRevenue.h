// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

/// Takings of one UTC hour.
struct HourRevenue
{
    /// 0 to 23.
    int hour = 0;
    /// Cents.
    double amount = 0.0;
};
