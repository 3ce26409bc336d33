// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// One movement of a member's points.
struct MembershipTransaction
{
    int id = -1;
    int membership_id = -1;
    int order_session_id = -1;
    /// "earn" or "redeem".
    QString type;
    /// Always positive.
    int points = 0;
    /// UTC, as stored; filled by the history only.
    QString created_at;
    /// The session's number, 0 when the session is gone; filled by the history only.
    int display_number = 0;
};
