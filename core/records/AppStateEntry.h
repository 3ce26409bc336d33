// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A row of the key-value store inside the database.
struct AppStateEntry
{
    QString key;
    QString value;
};
