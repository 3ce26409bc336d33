// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// Files that are still there after a power cut. Each operation answers true only once the disk
/// itself has it, names in folders included; what it makes, no other account can read. A failure
/// leaves nothing half made.
namespace Durable {
/// With all folders above. True for one that exists.
[[nodiscard]] bool makeFolder(const QString &path);

/// For a file that somebody else wrote: its content, and its name.
[[nodiscard]] bool sync(const QString &path);

/// Never overwrites; the new name stands only beside the whole content. `reason`, where given,
/// takes what the system said about a failure.
[[nodiscard]] bool copy(const QString &source, const QString &target, QString *reason = nullptr);

/// Within one folder; never overwrites. After a failure the file has its old name.
[[nodiscard]] bool rename(const QString &path, const QString &newPath);
} // namespace Durable
