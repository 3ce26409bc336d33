// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/AppService.h"

#include "core/AdminCheck.h"
#include "core/DatabaseManager.h"
#include "core/LocalPath.h"
#include "core/Logging.h"
#include "services/database/StoredPaths.h"
#include "services/SettingsKeys.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

AppService::AppService(QObject *parent)
    : QObject(parent)
    , m_pathKey(SettingsKeys::databasePath)
{}

AppService::AppState AppService::determineState()
{
    if (!hasDatabasePath()) {
        qCInfo(lcApplication) << "No DB path configured";
        return NeedsSetup;
    }
    const QString path = databasePath();
    if (!QFile::exists(path)) {
        qCWarning(lcApplication) << "DB file not found";
        return FileNotFoundNeedsSetup;
    }
    if (!DatabaseManager::testConnection(path)) {
        qCWarning(lcApplication) << "DB cannot be opened";
        return UnableToOpenNeedsSetup;
    }
    if (!DatabaseManager::isZelvanDatabase(path)) {
        qCWarning(lcApplication) << "DB is not a Zelvan DB";
        return NotZelvanDBNeedsSetup;
    }
    if (!AdminCheck::hasActiveAdmin(path)) {
        qCInfo(lcApplication) << "No admin user found";
        return NeedsAdminSetup;
    }
    return Ready;
}

QString AppService::databasePath() const
{
    return QSettings().value(m_pathKey).toString();
}

void AppService::setDatabasePath(const QString &path)
{
    static_cast<void>(storeDatabasePath(path));
}

bool AppService::storeDatabasePath(const QString &path)
{
    return StoredPaths::configure(path);
}

bool AppService::hasDatabasePath() const
{
    return QSettings().contains(m_pathKey) && !databasePath().isEmpty();
}

QString AppService::localPath(const QString &urlOrPath) const
{
    return ::localPath(urlOrPath);
}

QUrl AppService::folderUrl(const QString &path) const
{
    if (path.isEmpty()) {
        return {};
    }
    QString folder = QDir::cleanPath(path);
    while (!QFileInfo(folder).isDir()) {
        const QString above = QFileInfo(folder).path();
        if (above == folder) {
            return {};
        }
        folder = above;
    }
    return QUrl::fromLocalFile(QFileInfo(folder).absoluteFilePath());
}
