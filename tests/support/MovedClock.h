// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

/// Runs the current test function, with its current row, once more in a process of its own whose
/// clock starts at `localTime` ("yyyy-MM-dd HH:mm:ss") of `timeZone`, and fails the test when that
/// process does. True in the caller, which then returns; false inside that other process, which
/// does the test.
[[nodiscard]] bool movedTo(const char *localTime, const char *timeZone);
