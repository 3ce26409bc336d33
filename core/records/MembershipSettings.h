// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// The loyalty rule: earn `earn_points` for every `earn_spend` cents spent;
/// `redeem_points` points are worth `redeem_value` cents.
struct MembershipSettings
{
    int id = -1;
    bool enabled = false;
    int earn_points = 0;
    /// Cents.
    int earn_spend = 0;
    int redeem_points = 0;
    /// Cents.
    int redeem_value = 0;
    /// "subtotal" or "total".
    QString earn_on;
};
