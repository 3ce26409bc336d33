// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>
#include <QStringList>

/// Listens at the border to the system, in a test program that is linked with it: what Qt, SQLite
/// and the program itself bring to the disk, take off it and rename. One at a time.
class DiskLog final
{
public:
    DiskLog();
    ~DiskLog();
    Q_DISABLE_COPY_MOVE(DiskLog)

    /// One entry a call, in order: "sync PATH", "remove PATH", "rename PATH", and "link PATH" for a
    /// second name that was asked for.
    [[nodiscard]] QStringList calls() const;
    /// Whether all of these came one after the other, whatever came in between.
    [[nodiscard]] bool hasInOrder(const QStringList &wanted) const;

    /// From now on syncing the path fails, as on a disk that breaks; where a file is named, as soon
    /// as another one has been renamed to it.
    static void failSyncOf(const QString &path, const QString &afterRenameTo = {});
    /// Once a file whose path ends so has been synced, every write in its folder fails.
    static void failWritesAfterSyncOf(const QString &endOfPath);
    /// From now on no file can have a second name, as on a memory stick.
    static void failLinks();
};
