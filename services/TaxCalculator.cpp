// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/TaxCalculator.h"

#include "core/Arithmetic.h"

qint64 TaxCalculator::calculateTax(qint64 taxableCents, qint32 scaledRate, bool enabled) const
{
    if (!enabled) {
        return 0;
    }
    return Arithmetic::wrapMultiply<qint64>(taxableCents, scaledRate) / 10000;
}
