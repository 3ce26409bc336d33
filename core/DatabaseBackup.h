// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

namespace DatabaseBackup {
/// Lets SQLite write a consistent, compacted copy of the working database, complete and on the disk
/// before it has its name. Fails, with a line in
/// the log, where the target exists already; a copy that was cut short is removed.
[[nodiscard]] bool writeCopy(const QString &targetPath);
} // namespace DatabaseBackup
