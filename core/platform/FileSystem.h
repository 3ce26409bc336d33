// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// What Qt leaves out of a file's life: making it for its user alone, knowing it on the disk, and
/// knowing it under another name.
/// Nothing here logs, for the log itself is made with it.
namespace FileSystem {
/// An empty new file that no other account can read. Fails where something has the name already.
bool createPrivateFile(const QString &path);
/// One level; the folder above must exist.
[[nodiscard]] bool createPrivateFolder(const QString &path);

/// Returns once the file's content has reached the disk.
[[nodiscard]] bool syncFile(const QString &path);
/// Returns once the names in the folder have reached the disk. True where the system cannot tell.
[[nodiscard]] bool syncFolder(const QString &path);

/// In one step, within one file system. Whatever has the name already is replaced; it must be a
/// file.
[[nodiscard]] bool replaceBy(const QString &path, const QString &replacement);
/// Takes a file away, also one that may not be written. Where an open file cannot be taken away, it
/// waits for a moment for whoever has it.
bool remove(const QString &path);

/// Whether both names lead to one file, in whatever spelling: a short or linked name, other letter
/// case. False where one of them leads nowhere.
[[nodiscard]] bool isSameFile(const QString &path, const QString &otherPath);
/// Whether a disk, a stick or a share begins with this folder.
[[nodiscard]] bool isVolumeRoot(const QString &folder);
} // namespace FileSystem
