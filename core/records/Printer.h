// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// A printer of the operating system, registered for the store's documents.
struct Printer
{
    int id = -1;
    /// The operating system's printer name.
    QString system_name;
    /// "receipt", "kitchen" or "both".
    QString role;
    /// Millimetres.
    int paper_width = 58;
    /// "full", "partial" or "none".
    QString cut_mode;
};
