// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QtGlobal>

#include <cmath>
#include <concepts>
#include <limits>
#include <type_traits>

/// Whole-number arithmetic that has a result whatever was typed in: operations wrap as two's
/// complement does, and a double that does not fit ends at the nearest bound.
namespace Arithmetic {
/// Any integer operation carried out on the unsigned twin, where overflow is defined.
template<std::signed_integral T>
[[nodiscard]] constexpr T wrapAdd(T a, T b)
{
    using Unsigned = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<Unsigned>(a) + static_cast<Unsigned>(b));
}

template<std::signed_integral T>
[[nodiscard]] constexpr T wrapSubtract(T a, T b)
{
    using Unsigned = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<Unsigned>(a) - static_cast<Unsigned>(b));
}

template<std::signed_integral T>
[[nodiscard]] constexpr T wrapMultiply(T a, T b)
{
    using Unsigned = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<Unsigned>(a) * static_cast<Unsigned>(b));
}

/// Cuts towards zero; not a number gives 0.
template<std::signed_integral T>
[[nodiscard]] T truncate(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    // The highest bound is not exact in a double, so it is compared as the power of two above it.
    if (value >= -static_cast<double>(std::numeric_limits<T>::min())) {
        return std::numeric_limits<T>::max();
    }
    if (value <= static_cast<double>(std::numeric_limits<T>::min())) {
        return std::numeric_limits<T>::min();
    }
    return static_cast<T>(value);
}

/// As truncate(), to the nearest whole number.
template<std::signed_integral T>
[[nodiscard]] T nearest(double value)
{
    return truncate<T>(std::round(value));
}
} // namespace Arithmetic
