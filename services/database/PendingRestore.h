// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// The way of a backup back to the database's place: staged while the program runs, copied by the
/// next start before any connection exists. Failures are told in the log.
namespace PendingRestore {
/// Validates the file and has the next start copy it.
[[nodiscard]] bool stage(const QString &backupPath);

/// True where nothing is staged or the copy stands. A staged file that is no good is forgotten; a
/// copy that failed is tried again at the next start, and until then no database stands there.
[[nodiscard]] bool apply();
} // namespace PendingRestore
