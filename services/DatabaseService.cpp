// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/DatabaseService.h"

#include "core/DatabaseBackup.h"
#include "core/DatabaseCheck.h"
#include "core/DatabaseManager.h"
#include "core/Durable.h"
#include "core/Logging.h"
#include "services/AppService.h"
#include "services/database/DatabaseMove.h"
#include "services/database/DatabaseReplacement.h"
#include "services/database/PendingRestore.h"

#include <QDateTime>
#include <QFileInfo>

namespace {
QString backupName()
{
    return QStringLiteral("backup_%1.db")
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss")));
}
} // namespace

DatabaseService::DatabaseService(AppService *app, DatabaseManager *databases, QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_databases(databases)
{}

bool DatabaseService::applyPendingRestore()
{
    return PendingRestore::apply();
}

bool DatabaseService::backupDatabase()
{
    const QFileInfo database(m_app->databasePath());
    if (!database.exists()) {
        qCWarning(lcDatabase) << "Database file does not exist:" << database.absoluteFilePath();
        return false;
    }
    const QString folder = database.absolutePath() + QStringLiteral("/backups");
    if (!Durable::makeFolder(folder)) {
        qCWarning(lcDatabase) << "Failed to create backup directory.";
        return false;
    }
    const QString target = folder + QLatin1Char('/') + backupName();
    if (!m_databases->connection().isOpen()) {
        qCWarning(lcDatabase) << "Database is not open.";
        return false;
    }
    if (!m_databases->checkpointWal()) {
        qCWarning(lcDatabase) << "Failed to checkpoint database before backup.";
        return false;
    }
    return DatabaseBackup::writeCopy(target);
}

bool DatabaseService::restoreDatabase(const QString &dbFilePath)
{
    return PendingRestore::stage(dbFilePath);
}

bool DatabaseService::openDatabase(const QString &dbFilePath)
{
    if (!QFileInfo(dbFilePath).isFile()) {
        qCWarning(lcDatabase) << "Database file does not exist.";
        return false;
    }
    if (!m_databases->testConnection(dbFilePath)) {
        qCWarning(lcDatabase) << "Database cannot be opened.";
        return false;
    }
    if (!m_databases->isZelvanDatabase(dbFilePath) || !DatabaseCheck::isSound(dbFilePath)) {
        qCWarning(lcDatabase) << "Database is not a Zelvan database.";
        return false;
    }
    if (!m_app->storeDatabasePath(dbFilePath)) {
        qCWarning(lcDatabase) << "Failed to save the database path.";
        return false;
    }
    qCInfo(lcDatabase) << "Database selected successfully.";
    return true;
}

bool DatabaseService::moveDatabase(const QString &destinationFolder)
{
    return DatabaseMove(m_app, m_databases).below(destinationFolder);
}

bool DatabaseService::replaceDatabase(const QString &dbPath)
{
    return DatabaseReplacement(m_app, m_databases, dbPath).run();
}
