// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A currency as the screens show it.
struct CurrencyInfo
{
    /// ISO 4217.
    QString code;
    QString symbol;
    QString name;
    /// Held and read by no display.
    int decimals = 2;
    /// Held and read by no display.
    QString position;
};
