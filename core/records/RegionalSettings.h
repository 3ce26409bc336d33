// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// Language and currency of the store.
struct RegionalSettings
{
    int id = -1;
    /// A locale name such as "en_US".
    QString locale;
    /// ISO 4217.
    QString currency_code;
};
