// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A member of staff. `password` is the hash text; it is empty in lists.
struct User
{
    int id = -1;
    QString username;
    QString password;
    /// "admin", "service_staff", "kitchen_staff", or whatever a screen stored.
    QString role;
    /// Empty for an active user; UTC otherwise.
    QString deactivated_at;
};
