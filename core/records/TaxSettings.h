// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <optional>

/// The store's one tax. Prices are net.
struct TaxSettings
{
    int id = -1;
    bool enabled = false;
    /// Scaled so that 1% = 100.
    int rate = 0;
    std::optional<QString> registration_number;
    QString name;
    /// UTC, as stored.
    QString created_at;
};
