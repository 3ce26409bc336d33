// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/database/PendingRestore.h"

#include "core/DatabaseCheck.h"
#include "core/DatabaseManager.h"
#include "core/Durable.h"
#include "core/Logging.h"
#include "core/platform/FileSystem.h"
#include "services/database/DatabaseCompanions.h"
#include "services/database/StoredPaths.h"
#include "services/SettingsKeys.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {
/// Only the words for a missing file tell the staging from the start that applies it.
bool isRestorable(const QString &path, const char *missingText)
{
    if (!QFile::exists(path)) {
        qCWarning(lcDatabase) << missingText;
        return false;
    }
    if (!DatabaseManager::testConnection(path)) {
        qCWarning(lcDatabase) << "Unable to open database file";
        return false;
    }
    if (!DatabaseManager::isZelvanDatabase(path) || !DatabaseCheck::isSound(path)) {
        qCWarning(lcDatabase) << "Database is not a Zelvan Database";
        return false;
    }
    return true;
}

/// False where another program has the live file open and the system therefore keeps it. Its log
/// stays then too: it may hold what was sold last.
bool makeRoom(const QString &path)
{
    static_cast<void>(Durable::makeFolder(QFileInfo(path).absolutePath()));
    if (!FileSystem::remove(path) && QFileInfo(path).isFile()) {
        qCCritical(lcDatabase) << "Failed to remove the database that the restored one replaces:"
                               << path;
        return false;
    }
    removeCompanions(path);
    return true;
}

bool putInPlace(const QString &staged, const QString &path)
{
    QString reason;
    if (!Durable::copy(staged, path, &reason)) {
        qCCritical(lcDatabase) << "Failed to copy the database to restore:" << staged << reason;
        return false;
    }
    return true;
}

bool forget(const QString &staged)
{
    const bool isForgotten = StoredPaths::dropRestore();
    if (!isForgotten) {
        qCCritical(lcDatabase) << "Failed to forget the database to restore:" << staged;
    }
    return isForgotten;
}
} // namespace

bool PendingRestore::stage(const QString &backupPath)
{
    if (!isRestorable(backupPath, "Database file does not exist")) {
        return false;
    }
    if (!StoredPaths::stageRestore(backupPath)) {
        qCWarning(lcDatabase) << "Failed to save the path of the database to restore.";
        return false;
    }
    return true;
}

bool PendingRestore::apply()
{
    const QString staged = StoredPaths::stagedRestore();
    if (staged.isEmpty()) {
        return true;
    }
    const QString path = QSettings().value(SettingsKeys::databasePath).toString();
    if (path.isEmpty()) {
        return false;
    }
    const bool isFit = isRestorable(staged, "Database restore file does not exist");
    // Someone restored the live file: it is in its place, and removing it would lose it.
    const bool isCopied = isFit && !FileSystem::isSameFile(staged, path);
    if (isCopied && !makeRoom(path)) {
        // The live file stands and is sold on: the next start must not copy over that.
        static_cast<void>(forget(staged));
        return false;
    }
    if (isCopied && !putInPlace(staged, path)) {
        return false;
    }
    if (!forget(staged)) {
        if (isCopied) {
            // The next start copies it again, over whatever would be sold until then.
            FileSystem::remove(path);
        }
        return false;
    }
    return isFit;
}
