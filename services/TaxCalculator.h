// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QtGlobal>

/// The store's one tax. Stateless.
class TaxCalculator final
{
public:
    /// Tax in cents on a net amount in cents. `scaledRate` is 100 for 1%. Cut towards zero, never
    /// rounded to nearest: 1999 cents at 600 is 119. 0 where tax is off.
    [[nodiscard]] qint64 calculateTax(qint64 taxableCents, qint32 scaledRate, bool enabled) const;
};
