// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/database/DatabaseReplacement.h"

#include "core/DatabaseManager.h"
#include "core/DatabaseSeeder.h"
#include "core/Durable.h"
#include "core/Logging.h"
#include "core/platform/FileSystem.h"
#include "repositories/RegionalSettingsRepository.h"
#include "services/AppService.h"
#include "services/database/DatabaseCompanions.h"

#include <QFile>

DatabaseReplacement::DatabaseReplacement(AppService *app, DatabaseManager *databases,
                                         const QString &dbPath)
    : m_app(app)
    , m_databases(databases)
    , m_path(dbPath)
    , m_backupPath(dbPath + QStringLiteral(".backup"))
{}

bool DatabaseReplacement::run()
{
    qCInfo(lcApplication) << "Starting database replacement...";
    if (!canBegin() || !removePreviousBackup() || !foldOldDatabase() || !setOldDatabaseAside()) {
        return false;
    }
    if (!createNewDatabase() || !adoptNewDatabase()) {
        rollBack();
        return false;
    }
    removeBackup();
    qCInfo(lcApplication) << "Database replacement completed successfully.";
    return true;
}

bool DatabaseReplacement::canBegin() const
{
    if (m_path.isEmpty()) {
        qCWarning(lcSetup) << "Invalid database path.";
        return false;
    }
    if (!QFile::exists(m_path)) {
        qCWarning(lcSetup) << "Database does not exist.";
        return false;
    }
    return true;
}

bool DatabaseReplacement::removePreviousBackup() const
{
    if (!QFile::exists(m_backupPath)) {
        return true;
    }
    qCWarning(lcSetup) << "Removing previous database backup";
    if (!FileSystem::remove(m_backupPath)) {
        qCCritical(lcDatabase) << "Failed to remove previous database backup:" << m_backupPath;
        return false;
    }
    return true;
}

bool DatabaseReplacement::foldOldDatabase()
{
    qCInfo(lcDatabase) << "Closing current database.";
    m_databases->closeDatabase();
    if (!m_databases->openExisting(m_path)) {
        qCCritical(lcDatabase) << "Failed to open database for checkpoint:" << m_path;
        return false;
    }
    if (!m_databases->checkpointWal()) {
        qCWarning(lcDatabase) << "Checkpoint failed before replace";
        m_databases->closeDatabase();
        return false;
    }
    m_databases->closeDatabase();
    removeCompanions(m_path);
    return true;
}

bool DatabaseReplacement::setOldDatabaseAside() const
{
    qCInfo(lcSetup) << "Creating database backup.";
    if (!Durable::rename(m_path, m_backupPath)) {
        qCCritical(lcDatabase) << "Failed to backup existing database.";
        return false;
    }
    return true;
}

bool DatabaseReplacement::createNewDatabase()
{
    qCInfo(lcDatabase) << "Creating replacement database";
    if (!m_databases->initialize(m_path)) {
        return false;
    }
    // The regional row and nothing else: identity and settings are not seeded into a replacement.
    RegionalSettingsRepository regional(m_databases->connection());
    DatabaseSeeder::seedRegionalSettings(regional);
    if (!Durable::sync(m_path)) {
        qCCritical(lcDatabase) << "Failed to write the replacement database to the disk.";
        return false;
    }
    return true;
}

bool DatabaseReplacement::adoptNewDatabase()
{
    if (!m_app->storeDatabasePath(m_path)) {
        qCCritical(lcDatabase) << "Failed to save the database path.";
        return false;
    }
    qCInfo(lcApplication) << "Replacement database initialized successfully.";
    return true;
}

void DatabaseReplacement::removeBackup() const
{
    if (!FileSystem::remove(m_backupPath)) {
        qCWarning(lcSetup) << "Failed to remove database backup. The backup has been retained.";
    }
}

void DatabaseReplacement::rollBack()
{
    qCCritical(lcDatabase) << "Failed to initialize replacement database.";
    m_databases->closeDatabase();
    if (QFile::exists(m_path) && !FileSystem::remove(m_path)) {
        qCCritical(lcDatabase) << "Failed to remove partially-created replacement database";
    } else {
        // What belonged to the replacement must not stand beside the original.
        removeCompanions(m_path);
    }
    qCWarning(lcSetup) << "Restoring original database from backup.";
    // In its place although the disk did not confirm it, rather than where nobody looks for it.
    if (Durable::rename(m_backupPath, m_path) || QFile::rename(m_backupPath, m_path)) {
        qCInfo(lcSetup) << "Database replacement rolled back successfully.";
    } else {
        qCCritical(lcDatabase) << "Failed to restore original database";
    }
}
