// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/SetupService.h"

#include "core/DatabaseManager.h"
#include "core/DatabaseSeeder.h"
#include "core/Durable.h"
#include "core/Logging.h"
#include "repositories/RegionalSettingsRepository.h"
#include "services/AppService.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

SetupService::SetupService(AppService *app, DatabaseManager *databases, QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_databases(databases)
{}

SetupService::SetupResult SetupService::initializeApp(const QString &dbPath)
{
    qCInfo(lcApplication) << "Starting app initialization...";
    if (dbPath.isEmpty()) {
        qCInfo(lcSetup) << "Invalid setup input.";
        return InvalidPath;
    }
    if (QFile::exists(dbPath)) {
        qCInfo(lcSetup) << "Existing database found.";
        return DatabaseExists;
    }
    if (!buildDatabase(dbPath)) {
        return InitializationFailed;
    }
    if (!m_app->storeDatabasePath(dbPath)) {
        // The file stays, and can be opened once there is room to say where it is.
        qCCritical(lcSetup) << "Failed to save the database path.";
        return InitializationFailed;
    }
    RegionalSettingsRepository regional(m_databases->connection());
    DatabaseSeeder::seedRegionalSettings(regional);
    qCInfo(lcApplication) << "App initialization completed successfully.";
    return Success;
}

void SetupService::restartApp()
{
    // The new process may have to put another file in the place of this one, which no system does
    // well and some refuse while it is open here.
    m_databases->releaseFile();
    // The list's first element is the program itself and stays in: each restart hands on one
    // argument more, and nothing reads them.
    QProcess::startDetached(QCoreApplication::applicationFilePath(), QCoreApplication::arguments(),
                            QString());
    QCoreApplication::quit();
}

bool SetupService::buildDatabase(const QString &dbPath)
{
    if (!m_databases->initialize(dbPath)) {
        qCCritical(lcDatabase) << "Database initialization failed.";
        // An open file cannot be removed everywhere.
        m_databases->releaseFile();
        // Only the file itself: what SQLite left beside it stays.
        QFile::remove(dbPath);
        return false;
    }
    if (!DatabaseSeeder(m_databases->connection()).seedAll()) {
        // The half-seeded file stays, and its path is not saved.
        qCCritical(lcDatabase) << "Database seeding failed.";
        return false;
    }
    if (!Durable::sync(dbPath)) {
        qCCritical(lcDatabase) << "Failed to write the database to the disk.";
        return false;
    }
    return true;
}
