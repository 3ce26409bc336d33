// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/CurrencyInfo.h"

/// The row of the code; for a code that is not in the table one made on the spot, with "$".
[[nodiscard]] CurrencyInfo currencyInfo(const QString &code);
