// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <functional>

/// What an operation left in the log, one line a message as "warning [category] text", joined by
/// line ends; empty for nothing. While it runs no message reaches anybody else. An error at the
/// end of a line stands as "<QSqlError>" when it was streamed whole and as "<error text>" when
/// only its text was.
[[nodiscard]] QString logOf(const std::function<void()> &operation);
