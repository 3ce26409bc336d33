// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

class AppStateRepository;

/// The running number of receipts: the local year, a hyphen, and a counter of at least six digits.
namespace ReceiptNumber {
/// Takes the next number and stores the one after it. The counter starts again at 1 in a year other
/// than the stored one; only the year of the setup begins with 0. The results of the two writes are
/// not looked at; inside a payment's transaction a failed payment burns no number.
[[nodiscard]] QString take(AppStateRepository &appState);
} // namespace ReceiptNumber
