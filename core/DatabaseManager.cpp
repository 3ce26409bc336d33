// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"

#include "core/DatabaseCheck.h"
#include "core/Durable.h"
#include "core/Identity.h"
#include "core/Logging.h"
#include "core/Migrations.h"
#include "core/Patience.h"
#include "core/platform/FileSystem.h"
#include "core/ShortLivedConnection.h"
#include "core/TransactionWatch.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>

const QString DatabaseManager::mainConnectionName = QStringLiteral("main_connection");

namespace {
const QString driverName = QStringLiteral("QSQLITE");

bool isRegistered()
{
    return QSqlDatabase::contains(DatabaseManager::mainConnectionName);
}

/// Longer than any reading of one row of a small table takes.
constexpr std::chrono::seconds identityPatience{1};

void dropMainConnection()
{
    if (!isRegistered()) {
        return;
    }
    {
        QSqlDatabase database = QSqlDatabase::database(DatabaseManager::mainConnectionName, false);
        if (database.isOpen()) {
            database.close();
        }
    }
    QSqlDatabase::removeDatabase(DatabaseManager::mainConnectionName);
}

QSqlDatabase addMainConnection()
{
    return QSqlDatabase::addDatabase(driverName, DatabaseManager::mainConnectionName);
}

/// SQLite would let every account of the computer read a file that it makes, and gives the files
/// beside it the same rights. What fails here is told by the opening that follows.
void makePrivately(const QString &path)
{
    static_cast<void>(Durable::makeFolder(QFileInfo(path).absolutePath()));
    if (!QFile::exists(path)) {
        FileSystem::createPrivateFile(path);
    }
}

/// One that does nothing where the connection does not exist.
QSqlDriver *mainDriver()
{
    return QSqlDatabase::database(DatabaseManager::mainConnectionName, false).driver();
}

struct TransactionWords
{
    const char *missing;
    const char *closed;
    const char *failed;
};

/// The three transaction operations share their checks and differ in words and in the call.
bool transactionStep(const TransactionWords &words, bool (QSqlDatabase::*step)())
{
    if (!isRegistered()) {
        qCWarning(lcDatabase) << words.missing;
        return false;
    }
    QSqlDatabase database = QSqlDatabase::database(DatabaseManager::mainConnectionName, false);
    if (!database.isOpen()) {
        qCWarning(lcDatabase) << words.closed;
        return false;
    }
    if (!(database.*step)()) {
        qCWarning(lcDatabase) << words.failed << database.lastError().text();
        return false;
    }
    return true;
}

/// Journal rows are read to the end and the query finished, so that no statement stays open.
void enablePragmas(const QSqlDatabase &database)
{
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("PRAGMA foreign_keys = ON;"))) {
        qCWarning(lcDatabase) << "Failed to enable foreign keys:" << query.lastError().text();
    }
    if (query.exec(QStringLiteral("PRAGMA journal_mode = WAL;"))) {
        while (query.next()) {
        }
        query.finish();
    } else {
        qCWarning(lcDatabase) << "Failed to enable WAL:" << query.lastError().text();
    }
}
} // namespace

QSqlDatabase DatabaseManager::connection()
{
    return QSqlDatabase::database(mainConnectionName, true);
}

bool DatabaseManager::testConnection(const QString &path)
{
    ShortLivedConnection connection(QStringLiteral("test_connection"), path);
    const bool opened = connection.handle().open();
    if (!opened) {
        qCWarning(lcDatabase) << "Failed to open database test connection:" << path
                              << connection.handle().lastError().text();
    }
    return opened;
}

bool DatabaseManager::isZelvanDatabase(const QString &path)
{
    if (path.isEmpty() || !QFile::exists(path)) {
        return false;
    }
    ShortLivedConnection connection(QStringLiteral("zelvan_db_validation"), path);
    if (!connection.handle().open()) {
        qCWarning(lcDatabase) << "Failed to open database for Zelvan validation:"
                              << connection.handle().lastError().text();
        return false;
    }
    const Patience patience(connection.handle(), identityPatience);
    const QString problem =
        DatabaseCheck::schemaProblem(connection.handle(), {QStringLiteral("app_state")});
    if (!problem.isEmpty()) {
        qCWarning(lcDatabase) << "Failed to check database identity:" << problem;
        return false;
    }
    QSqlQuery query(connection.handle());
    const bool ran =
        query.prepare(QStringLiteral("SELECT value FROM app_state WHERE key = 'app.id' LIMIT 1")) &&
        query.exec();
    if (!ran) {
        qCWarning(lcDatabase) << "Failed to check database identity:" << query.lastError().text();
        return false;
    }
    return query.next() && query.value(0).toString() == Identity::appId;
}

bool DatabaseManager::checkpointWal()
{
    if (!isRegistered()) {
        return false;
    }
    const QSqlDatabase database = QSqlDatabase::database(mainConnectionName, false);
    if (!database.isOpen()) {
        return false;
    }
    // The row it answers (busy flag, page counts) is not read: only a failing statement counts.
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("PRAGMA wal_checkpoint(FULL);"))) {
        qCWarning(lcDatabase) << "Failed to checkpoint WAL:" << query.lastError().text();
        return false;
    }
    return true;
}

bool DatabaseManager::beginTransaction()
{
    const bool begun = transactionStep(
        {"Cannot begin transaction: database connection does not exist.",
         "Cannot begin transaction: database is not open.", "Failed to begin transaction:"},
        &QSqlDatabase::transaction);
    if (begun) {
        TransactionWatch::begin(mainDriver());
    }
    return begun;
}

bool DatabaseManager::transactionStands()
{
    return TransactionWatch::stands(mainDriver());
}

bool DatabaseManager::commitTransaction()
{
    if (!transactionStands()) {
        qCWarning(lcDatabase) << "Failed to commit transaction:"
                              << "SQLite ended it when a statement failed";
        abandonTransaction();
        return false;
    }
    const bool committed =
        transactionStep({"Cannot commit: database connection does not exist.",
                         "Cannot commit: database is not open.", "Failed to commit transaction:"},
                        &QSqlDatabase::commit);
    if (!committed) {
        // Left open it would refuse the next one and take all that follows with it at the end.
        abandonTransaction();
    }
    TransactionWatch::end(mainDriver());
    return committed;
}

bool DatabaseManager::rollbackTransaction()
{
    const bool rolledBack = transactionStep({"Cannot rollback: database connection does not exist.",
                                             "Cannot rollback: database is not open.",
                                             "Failed to rollback transaction:"},
                                            &QSqlDatabase::rollback);
    TransactionWatch::end(mainDriver());
    return rolledBack;
}

void DatabaseManager::abandonTransaction()
{
    QSqlDatabase database = QSqlDatabase::database(mainConnectionName, false);
    if (database.isOpen()) {
        database.rollback();
    }
    TransactionWatch::end(database.driver());
}

void DatabaseManager::closeDatabase()
{
    if (!isRegistered()) {
        return;
    }
    dropMainConnection();
    qCInfo(lcDatabase) << "Database closed";
}

void DatabaseManager::releaseFile()
{
    QSqlDatabase::database(mainConnectionName, false).close();
}

bool DatabaseManager::openExisting(const QString &path)
{
    if (path.isEmpty()) {
        qCWarning(lcDatabase) << "openExisting: empty path";
        return false;
    }
    if (!QFile::exists(path)) {
        qCWarning(lcDatabase) << "openExisting: file does not exist:" << path;
        return false;
    }
    dropMainConnection();
    QSqlDatabase database = addMainConnection();
    database.setDatabaseName(path);
    if (!database.open()) {
        qCCritical(lcDatabase) << "openExisting failed:" << database.lastError().text();
        database = QSqlDatabase();
        QSqlDatabase::removeDatabase(mainConnectionName);
        return false;
    }
    // The results are deliberately not examined: the next statement on a bad file tells.
    {
        QSqlQuery query(database);
        query.exec(QStringLiteral("PRAGMA foreign_keys = ON"));
        query.exec(QStringLiteral("PRAGMA journal_mode = WAL"));
    }
    qCInfo(lcDatabase) << "Opened existing database:" << path;
    return true;
}

bool DatabaseManager::initialize(const QString &path)
{
    dropMainConnection();
    QSqlDatabase database = addMainConnection();
    makePrivately(path);
    database.setDatabaseName(path);
    if (!database.open()) {
        qCCritical(lcDatabase) << "Cannot open database:" << database.lastError().text();
        return false;
    }
    enablePragmas(database);
    return runMigrations();
}

bool DatabaseManager::runMigrations()
{
    QSqlDatabase database = connection();
    if (!database.isOpen()) {
        qCCritical(lcDatabase) << "Database is not open.";
        return false;
    }
    if (!database.transaction()) {
        qCCritical(lcDatabase) << "Failed to begin transaction:" << database.lastError().text();
        return false;
    }
    if (!applyPendingMigrations(database)) {
        database.rollback();
        return false;
    }
    if (!database.commit()) {
        // No rollback here: what a failed commit leaves is SQLite's to say.
        qCCritical(lcDatabase) << "Failed to commit transaction:" << database.lastError().text();
        return false;
    }
    return true;
}
