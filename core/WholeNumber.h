// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <cmath>
#include <limits>

/// Truncates towards zero to a 32-bit integer. Beyond the range the nearest end is answered, and
/// zero for what is no number, so that whatever a user types stores something.
[[nodiscard]] inline int truncatedToInt(double value)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= static_cast<double>(Limits::max())) {
        return Limits::max();
    }
    if (value <= static_cast<double>(Limits::min())) {
        return Limits::min();
    }
    return static_cast<int>(value);
}
