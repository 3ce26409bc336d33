// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

class Till;

/// What a store needs before it can sell: an administrator, dishes, tables, members, a printer.
namespace StoreContent {
constexpr int dishes = 12;
constexpr int tables = 6;
/// Those that are there from the start; higher numbers enrol at their first payment.
constexpr int members = 3;

[[nodiscard]] QString phone(int member);
/// False where one of the services refused.
[[nodiscard]] bool create(Till &till);
} // namespace StoreContent
