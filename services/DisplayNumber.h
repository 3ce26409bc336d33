// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

/// The numbers that staff call out. There is no stored counter: each follows the day's highest.
namespace DisplayNumber {
/// The number after `highestOfDay`. A day that has none yet (0) starts at a random point from 4000
/// to 7999; after 9999 comes 4000 again, and the same again for every further number of that day,
/// since the highest stays 9999: that is meant, numbers may repeat.
[[nodiscard]] int after(int highestOfDay);
} // namespace DisplayNumber
