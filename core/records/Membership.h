// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A member, known by phone number.
struct Membership
{
    int id = -1;
    QString phone_number;
    int total_points = 0;
    /// "active" or "revoked".
    QString status;
};
