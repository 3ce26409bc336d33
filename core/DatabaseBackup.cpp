// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseBackup.h"

#include "core/DatabaseManager.h"
#include "core/Durable.h"
#include "core/Logging.h"
#include "core/platform/FileSystem.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

namespace {
void remove(const QString &unfinished)
{
    QFile::remove(unfinished);
    QFile::remove(unfinished + QStringLiteral("-journal"));
}

/// What went wrong, empty for nothing. SQLite takes an empty file as none.
QString vacuumInto(const QString &path)
{
    QString escapedPath = path;
    escapedPath.replace(QLatin1Char('\''), QLatin1String("''"));
    const QString sql = QStringLiteral("VACUUM INTO '%1'").arg(escapedPath);
    FileSystem::createPrivateFile(path);
    QSqlQuery query(DatabaseManager::connection());
    return query.exec(sql) ? QString() : query.lastError().text();
}

QString writeAs(const QString &targetPath, const QString &unfinished)
{
    if (QFile::exists(targetPath)) {
        return QStringLiteral("output file already exists");
    }
    const QString problem = vacuumInto(unfinished);
    if (!problem.isEmpty()) {
        return problem;
    }
    const bool isKept = Durable::sync(unfinished) && Durable::rename(unfinished, targetPath);
    return isKept ? QString() : QStringLiteral("the disk did not take it");
}
} // namespace

bool DatabaseBackup::writeCopy(const QString &targetPath)
{
    qCInfo(lcDatabase) << "Creating backup with SQL.";
    // A name that nobody takes for a backup; one that an earlier end of the program left goes.
    const QString unfinished =
        QFileInfo(targetPath).absolutePath() + QStringLiteral("/unfinished.part");
    remove(unfinished);
    const QString problem = writeAs(targetPath, unfinished);
    if (!problem.isEmpty()) {
        qCWarning(lcDatabase) << "Backup failed:" << problem;
        // No backup, and on a full disk the room that the store needs to go on.
        remove(unfinished);
    }
    return problem.isEmpty();
}
