// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/database/PendingRestore.h"

#include "core/DatabaseCheck.h"
#include "core/DatabaseManager.h"
#include "core/Durable.h"
#include "core/Logging.h"
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

bool isSameFile(const QString &path, const QString &otherPath)
{
    return QFileInfo(path).canonicalFilePath() == QFileInfo(otherPath).canonicalFilePath();
}

bool putInPlace(const QString &staged, const QString &path)
{
    static_cast<void>(Durable::makeFolder(QFileInfo(path).absolutePath()));
    QFile::remove(path);
    removeCompanions(path);
    QString reason;
    if (!Durable::copy(staged, path, &reason)) {
        qCCritical(lcDatabase) << "Failed to copy the database to restore:" << staged << reason;
        return false;
    }
    return true;
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
    const bool isLive = isFit && isSameFile(staged, path);
    if (isFit && !isLive && !putInPlace(staged, path)) {
        return false;
    }
    if (!StoredPaths::dropRestore()) {
        qCCritical(lcDatabase) << "Failed to forget the database to restore:" << staged;
        if (isFit && !isLive) {
            // The next start copies it again, over whatever would be sold until then.
            QFile::remove(path);
        }
        return false;
    }
    return isFit;
}
