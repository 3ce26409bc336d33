// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseBackup.h"

#include "core/DatabaseManager.h"
#include "core/Logging.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>

bool DatabaseBackup::writeCopy(const QString &targetPath)
{
    QString escapedPath = targetPath;
    escapedPath.replace(QLatin1Char('\''), QLatin1String("''"));
    const QString sql = QStringLiteral("VACUUM INTO '%1'").arg(escapedPath);

    const bool isNewFile = !QFile::exists(targetPath);
    qCInfo(lcDatabase) << "Creating backup with SQL.";
    QSqlQuery query(DatabaseManager::connection());
    if (!query.exec(sql)) {
        qCWarning(lcDatabase) << "Backup failed:" << query.lastError().text();
        if (isNewFile) {
            // No backup, and on a full disk the room that the store needs to go on.
            QFile::remove(targetPath);
            QFile::remove(targetPath + QStringLiteral("-journal"));
        }
        return false;
    }
    return true;
}
