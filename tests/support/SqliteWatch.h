// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

/// Stands between the driver and SQLite: the program that is linked with it has SQLite's calls
/// under their own names, notes which thread makes each of them, and hands them on.
namespace SqliteWatch {
/// Calls made so far by the thread that made the first one, and by all others.
[[nodiscard]] long callsOfFirstThread();
[[nodiscard]] long callsOfOtherThreads();
/// How often a thread came in while another was inside, or had a statement under way.
[[nodiscard]] long collisions();
} // namespace SqliteWatch
