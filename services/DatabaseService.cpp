// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/DatabaseService.h"

#include "core/DatabaseBackup.h"
#include "core/DatabaseManager.h"
#include "core/DatabaseSeeder.h"
#include "core/Logging.h"
#include "repositories/RegionalSettingsRepository.h"
#include "services/AppService.h"
#include "services/FolderTidying.h"
#include "services/SettingsKeys.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {
QString backupName()
{
    return QStringLiteral("backup_%1.db")
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss")));
}

/// What SQLite may have left beside the file. Mostly there is nothing, so no result is looked at.
void removeCompanions(const QString &dbPath)
{
    QFile::remove(dbPath + QStringLiteral("-wal"));
    QFile::remove(dbPath + QStringLiteral("-shm"));
}

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
    if (!DatabaseManager::isZelvanDatabase(path)) {
        qCWarning(lcDatabase) << "Database is not a Zelvan Database";
        return false;
    }
    return true;
}

/// Whether the platform's settings store took what was set, which only its status tells.
bool areSettingsStored()
{
    QSettings settings;
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

bool isSameFile(const QString &path, const QString &otherPath)
{
    return QFileInfo(path).canonicalFilePath() == QFileInfo(otherPath).canonicalFilePath();
}

bool removePreviousBackup(const QString &backupPath)
{
    if (!QFile::exists(backupPath)) {
        return true;
    }
    qCWarning(lcSetup) << "Removing previous database backup";
    if (!QFile::remove(backupPath)) {
        qCCritical(lcDatabase) << "Failed to remove previous database backup:" << backupPath;
        return false;
    }
    return true;
}
} // namespace

DatabaseService::DatabaseService(AppService *app, DatabaseManager *databases, QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_databases(databases)
{}

bool DatabaseService::applyPendingRestore()
{
    QSettings settings;
    const QString staged = settings.value(SettingsKeys::pendingRestore).toString();
    if (staged.isEmpty()) {
        return true;
    }
    const QString path = settings.value(SettingsKeys::databasePath).toString();
    if (path.isEmpty()) {
        return false;
    }
    if (!isRestorable(staged, "Database restore file does not exist")) {
        settings.remove(SettingsKeys::pendingRestore);
        return false;
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
    // Someone restored the live file: it is in its place, and removing it would lose it.
    if (!isSameFile(staged, path)) {
        QFile::remove(path);
        removeCompanions(path);
        if (!QFile::copy(staged, path)) {
            return false;
        }
    }
    settings.remove(SettingsKeys::pendingRestore);
    return true;
}

bool DatabaseService::backupDatabase()
{
    const QFileInfo database(m_app->databasePath());
    if (!database.exists()) {
        qCWarning(lcDatabase) << "Database file does not exist:" << database.absoluteFilePath();
        return false;
    }
    const QString folder = database.absolutePath() + QStringLiteral("/backups");
    if (!QDir().mkpath(folder)) {
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
    if (!isRestorable(dbFilePath, "Database file does not exist")) {
        return false;
    }
    QSettings().setValue(SettingsKeys::pendingRestore, dbFilePath);
    return true;
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
    if (!m_databases->isZelvanDatabase(dbFilePath)) {
        qCWarning(lcDatabase) << "Database is not a Zelvan database.";
        return false;
    }
    // A restore that is still waiting for the next start, since its copy failed, was meant for the
    // file before this one: it would take the chosen one's place.
    QSettings().remove(SettingsKeys::pendingRestore);
    m_app->setDatabasePath(dbFilePath);
    qCInfo(lcDatabase) << "Database selected successfully.";
    return true;
}

bool DatabaseService::moveDatabase(const QString &destinationFolder)
{
    const QString source = m_app->databasePath();
    if (source.isEmpty()) {
        qCWarning(lcDatabase) << "No database configured.";
        return false;
    }
    if (!QFile::exists(source)) {
        qCWarning(lcDatabase) << "Database file does not exist.";
        return false;
    }
    const QString folder =
        QDir(destinationFolder).absoluteFilePath(QStringLiteral("ZelvanPOS/data"));
    if (!QDir().mkpath(folder)) {
        qCWarning(lcDatabase) << "Failed to create destination directory.";
        return false;
    }
    const QString target = folder + QLatin1Char('/') + QFileInfo(source).fileName();
    if (!isFreeTarget(source, target)) {
        return false;
    }
    if (!m_databases->checkpointWal()) {
        qCWarning(lcDatabase) << "Failed to checkpoint database.";
        return false;
    }
    m_databases->closeDatabase();
    if (!switchTo(target, source)) {
        m_databases->initialize(source);
        return false;
    }
    removeMovedSource(source);
    qCInfo(lcDatabase) << "Database moved successfully.";
    return true;
}

bool DatabaseService::isFreeTarget(const QString &source, const QString &target)
{
    if (target == source) {
        qCWarning(lcDatabase) << "Source and destination are identical.";
        return false;
    }
    if (QFile::exists(target)) {
        qCWarning(lcDatabase) << "Destination database already exists.";
        return false;
    }
    return true;
}

bool DatabaseService::switchTo(const QString &target, const QString &source)
{
    // The log of a database that is gone: SQLite would play it into the copy.
    removeCompanions(target);
    if (!QFile::copy(source, target)) {
        qCWarning(lcDatabase) << "Failed to copy database.";
        return false;
    }
    if (!takesOver(target) || !configure(target, source)) {
        // Closed first: an open file cannot be removed everywhere.
        m_databases->closeDatabase();
        QFile::remove(target);
        return false;
    }
    return true;
}

bool DatabaseService::takesOver(const QString &target)
{
    if (!m_databases->testConnection(target)) {
        qCWarning(lcDatabase) << "Copied database could not be opened.";
        return false;
    }
    if (!m_databases->initialize(target)) {
        qCWarning(lcDatabase) << "Failed to initialize moved database.";
        return false;
    }
    return true;
}

bool DatabaseService::configure(const QString &target, const QString &source)
{
    m_app->setDatabasePath(target);
    if (!areSettingsStored()) {
        // The next start will look for the old file, so that one has to stay.
        qCWarning(lcDatabase) << "Failed to save the new database path.";
        m_app->setDatabasePath(source);
        return false;
    }
    return true;
}

void DatabaseService::removeMovedSource(const QString &source)
{
    // The move has happened: nothing from here on undoes it or fails it.
    if (!QFile::remove(source)) {
        qCWarning(lcDatabase) << "Failed to delete old database.";
    }
    removeCompanions(source);
    QDir emptied = QFileInfo(source).absoluteDir();
    emptied.cdUp();
    if (holdsNoFile(emptied) && !emptied.removeRecursively()) {
        qCWarning(lcDatabase) << "Failed to remove empty directory.";
    }
}

bool DatabaseService::replaceDatabase(const QString &dbPath)
{
    qCInfo(lcApplication) << "Starting database replacement...";
    if (dbPath.isEmpty()) {
        qCWarning(lcSetup) << "Invalid database path.";
        return false;
    }
    if (!QFile::exists(dbPath)) {
        qCWarning(lcSetup) << "Database does not exist.";
        return false;
    }
    const QString backupPath = dbPath + QStringLiteral(".backup");
    if (!removePreviousBackup(backupPath) || !foldForReplacement(dbPath)) {
        return false;
    }
    qCInfo(lcSetup) << "Creating database backup.";
    if (!QFile::rename(dbPath, backupPath)) {
        qCCritical(lcDatabase) << "Failed to backup existing database.";
        return false;
    }
    qCInfo(lcDatabase) << "Creating replacement database";
    if (!m_databases->initialize(dbPath)) {
        rollBackReplacement(dbPath, backupPath);
        return false;
    }
    adoptReplacement(dbPath, backupPath);
    return true;
}

bool DatabaseService::foldForReplacement(const QString &dbPath)
{
    qCInfo(lcDatabase) << "Closing current database.";
    m_databases->closeDatabase();
    if (!m_databases->openExisting(dbPath)) {
        qCCritical(lcDatabase) << "Failed to open database for checkpoint:" << dbPath;
        return false;
    }
    if (!m_databases->checkpointWal()) {
        qCWarning(lcDatabase) << "Checkpoint failed before replace";
        m_databases->closeDatabase();
        return false;
    }
    m_databases->closeDatabase();
    removeCompanions(dbPath);
    return true;
}

void DatabaseService::adoptReplacement(const QString &dbPath, const QString &backupPath)
{
    // The regional row and nothing else: identity and settings are not seeded into a replacement.
    {
        RegionalSettingsRepository regional(m_databases->connection());
        DatabaseSeeder::seedRegionalSettings(regional);
    }
    m_app->setDatabasePath(dbPath);
    qCInfo(lcApplication) << "Replacement database initialized successfully.";
    if (!QFile::remove(backupPath)) {
        qCWarning(lcSetup) << "Failed to remove database backup. The backup has been retained.";
    }
    qCInfo(lcApplication) << "Database replacement completed successfully.";
}

void DatabaseService::rollBackReplacement(const QString &dbPath, const QString &backupPath)
{
    qCCritical(lcDatabase) << "Failed to initialize replacement database.";
    m_databases->closeDatabase();
    if (QFile::exists(dbPath) && !QFile::remove(dbPath)) {
        qCCritical(lcDatabase) << "Failed to remove partially-created replacement database";
    } else {
        // What belonged to the replacement must not stand beside the original.
        removeCompanions(dbPath);
    }
    qCWarning(lcSetup) << "Restoring original database from backup.";
    if (QFile::rename(backupPath, dbPath)) {
        qCInfo(lcSetup) << "Database replacement rolled back successfully.";
    } else {
        qCCritical(lcDatabase) << "Failed to restore original database";
    }
}
