// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "services/AppService.h"
#include "services/DatabaseService.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/FileSizeLimit.h"
#include "support/FullSettingsDisk.h"
#include "support/LogHook.h"

#include <QDir>
#include <QFile>

/// Putting an empty database in the place of another, with each step failing in turn.
class tst_DatabaseReplace : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void init();

    void anEmptyDatabaseTakesTheOldOnesPlace_data();
    void anEmptyDatabaseTakesTheOldOnesPlace();
    void theReplacementHasItsRegionalRowAndNothingElse();
    void everyStepIsToldInTheLog();
    void aBackupLeftByAnEarlierFailureGoes();
    void theRunningDatabaseIsClosedFirst();

    void anEmptyPathIsRefused();
    void aMissingDatabaseIsRefused();
    void aPreviousBackupThatStaysEndsTheReplacement();
    void aDatabaseThatCannotBeOpenedStays();
    void aDatabaseThatCannotBeFoldedStays();
    void aDatabaseThatCannotBeSetAsideStays();
    void aReplacementThatCannotBeInitialisedIsRolledBack();
    void aFullDiskIsRolledBack();
    void leftoversOfTheReplacementGo();
    void aPartialReplacementThatStaysKeepsTheOldDatabaseBesideIt();
    void anOldDatabaseThatCannotBePutBackIsKeptBeside();
    void aBackupThatStaysDoesNotFailTheReplacement();
    void aPathThatCannotBeSavedIsRolledBack();

private:
    QString m_path;
    QString m_backup;
    AppService m_app;
    DatabaseManager m_databases;
    DatabaseService m_service{&m_app, &m_databases};
};

void tst_DatabaseReplace::init()
{
    DatabaseFileTest::init();
    m_path = inFolder("Zelvan.db");
    m_backup = m_path + ".backup";
}

namespace {
bool mainConnectionExists()
{
    return QSqlDatabase::contains(DatabaseManager::mainConnectionName);
}
} // namespace

void tst_DatabaseReplace::anEmptyDatabaseTakesTheOldOnesPlace_data()
{
    addFolderNames();
}

void tst_DatabaseReplace::anEmptyDatabaseTakesTheOldOnesPlace()
{
    QFETCH(QString, name);
    const QString path = inFolder(name + "/Zelvan.db");
    DatabaseFiles::makeStore(path, "old");

    QVERIFY(m_service.replaceDatabase(path));

    QCOMPARE(m_app.databasePath(), path);
    QCOMPARE(DatabaseManager::connection().databaseName(), path);
    QVERIFY(!DatabaseFiles::value(path, "SELECT name FROM restaurant").isValid());
    QVERIFY(!QFile::exists(path + ".backup"));
}

void tst_DatabaseReplace::theReplacementHasItsRegionalRowAndNothingElse()
{
    DatabaseFiles::makeStore(m_path, "old");

    QVERIFY(m_service.replaceDatabase(m_path));

    QCOMPARE(DatabaseFiles::value(m_path, "SELECT id FROM regional_settings"), QVariant(1));
    for (const char *table : {"app_state", "tax_settings", "kitchen_settings", "users"}) {
        const QString sql = QStringLiteral("SELECT COUNT(*) FROM %1").arg(table);
        QCOMPARE(DatabaseFiles::value(m_path, sql), QVariant(0));
    }
    QVERIFY(!DatabaseManager::isZelvanDatabase(m_path));
}

void tst_DatabaseReplace::everyStepIsToldInTheLog()
{
    DatabaseFiles::makeStore(m_path, "old");

    for (const char *line : {"Starting database replacement...", "Closing current database.",
                             "Creating database backup.", "Creating replacement database",
                             "Replacement database initialized successfully.",
                             "Database replacement completed successfully."}) {
        expectLog(QtInfoMsg, line);
    }
    QVERIFY(m_service.replaceDatabase(m_path));
}

void tst_DatabaseReplace::aBackupLeftByAnEarlierFailureGoes()
{
    DatabaseFiles::makeStore(m_path, "old");
    DatabaseFiles::makeText(m_backup);

    expectLog(QtWarningMsg, "Removing previous database backup");
    QVERIFY(m_service.replaceDatabase(m_path));

    QVERIFY(!QFile::exists(m_backup));
}

void tst_DatabaseReplace::theRunningDatabaseIsClosedFirst()
{
    DatabaseFiles::makeStore(m_path, "old");
    QVERIFY(DatabaseManager::initialize(m_path));

    expectLog(QtInfoMsg, "Database closed");
    QVERIFY(m_service.replaceDatabase(m_path));

    QVERIFY(!DatabaseFiles::value(m_path, "SELECT name FROM restaurant").isValid());
}

void tst_DatabaseReplace::anEmptyPathIsRefused()
{
    expectLog(QtWarningMsg, "Invalid database path.");
    QVERIFY(!m_service.replaceDatabase(QString()));
}

void tst_DatabaseReplace::aMissingDatabaseIsRefused()
{
    expectLog(QtWarningMsg, "Database does not exist.");
    QVERIFY(!m_service.replaceDatabase(m_path));

    QVERIFY(!QFile::exists(m_path));
}

void tst_DatabaseReplace::aPreviousBackupThatStaysEndsTheReplacement()
{
    DatabaseFiles::makeStore(m_path, "old");
    QDir().mkpath(m_backup);
    QVERIFY(DatabaseManager::initialize(m_path));

    expectLog(QtWarningMsg, "Removing previous database backup");
    expectLog(QtCriticalMsg,
              QStringLiteral("Failed to remove previous database backup: \"%1\"").arg(m_backup));
    QVERIFY(!m_service.replaceDatabase(m_path));

    QCOMPARE(DatabaseFiles::storeName(m_path), QStringLiteral("old"));
    QVERIFY(DatabaseManager::connection().isOpen());
}

void tst_DatabaseReplace::aDatabaseThatCannotBeOpenedStays()
{
    DatabaseFiles::makeStore(m_path, "old");
    const QString path = DatabaseFiles::makeUnopenableFolder(folder()) + "/Zelvan.db";
    QVERIFY(QFile::copy(m_path, path));
    QVERIFY(DatabaseManager::initialize(m_path));

    expectLog(QtCriticalMsg, "openExisting failed:");
    expectLog(QtCriticalMsg,
              QStringLiteral("Failed to open database for checkpoint: \"%1\"").arg(path));
    QVERIFY(!m_service.replaceDatabase(path));

    QVERIFY(QFile::exists(path));
    QVERIFY(!QFile::exists(path + ".backup"));
    QVERIFY(!mainConnectionExists());
}

void tst_DatabaseReplace::aDatabaseThatCannotBeFoldedStays()
{
    DatabaseFiles::makeText(m_path);

    expectLog(QtWarningMsg, "Failed to checkpoint WAL:");
    expectLog(QtWarningMsg, "Checkpoint failed before replace");
    QVERIFY(!m_service.replaceDatabase(m_path));

    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("this is no database\n"));
    QVERIFY(!QFile::exists(m_backup));
    QVERIFY(!mainConnectionExists());
}

void tst_DatabaseReplace::aDatabaseThatCannotBeSetAsideStays()
{
    DatabaseFiles::makeStore(m_path, "old");
    const LogHook inTheWay("Creating database backup.", [this] { QDir().mkpath(m_backup); });

    expectLog(QtCriticalMsg, "Failed to backup existing database.");
    QVERIFY(!m_service.replaceDatabase(m_path));

    QCOMPARE(DatabaseFiles::storeName(m_path), QStringLiteral("old"));
    QVERIFY(!mainConnectionExists());
}

void tst_DatabaseReplace::aReplacementThatCannotBeInitialisedIsRolledBack()
{
    DatabaseFiles::makeStore(m_path, "old");
    const LogHook inTheWay("Creating replacement database",
                           [this] { DatabaseFiles::makeText(m_path); });

    expectLog(QtWarningMsg, "Failed to enable WAL:");
    expectLog(QtCriticalMsg, "Failed to create applied_migrations:");
    expectLog(QtCriticalMsg, "Failed to initialize replacement database.");
    expectLog(QtWarningMsg, "Restoring original database from backup.");
    expectLog(QtInfoMsg, "Database replacement rolled back successfully.");
    QVERIFY(!m_service.replaceDatabase(m_path));

    QCOMPARE(DatabaseFiles::storeName(m_path), QStringLiteral("old"));
    QVERIFY(!QFile::exists(m_backup));
    QVERIFY(!m_app.hasDatabasePath());
    QVERIFY(!mainConnectionExists());
}

void tst_DatabaseReplace::aFullDiskIsRolledBack()
{
    constexpr qint64 limit = 64 * 1024;
    DatabaseFiles::makeStore(m_path, "old");

    expectLog(QtCriticalMsg, "Failed to commit transaction:");
    expectLog(QtCriticalMsg, "Failed to initialize replacement database.");
    expectLog(QtWarningMsg, "Restoring original database from backup.");
    expectLog(QtInfoMsg, "Database replacement rolled back successfully.");
    {
        const FileSizeLimit fullDisk(limit);
        QVERIFY(!m_service.replaceDatabase(m_path));
    }

    QCOMPARE(DatabaseFiles::storeName(m_path), QStringLiteral("old"));
    QVERIFY(!QFile::exists(m_backup));
}

void tst_DatabaseReplace::leftoversOfTheReplacementGo()
{
    // No room even for the index of the write-ahead log, which then stays behind half-made.
    constexpr qint64 limit = 16 * 1024;
    DatabaseFiles::makeStore(m_path, "old");
    std::unique_ptr<FileSizeLimit> fullDisk;
    {
        const LogHook inTheWay("Creating replacement database", [&fullDisk, limit] {
            fullDisk = std::make_unique<FileSizeLimit>(limit);
        });

        expectLog(QtCriticalMsg, "Failed to create applied_migrations:");
        expectLog(QtCriticalMsg, "Failed to initialize replacement database.");
        expectLog(QtWarningMsg, "Restoring original database from backup.");
        expectLog(QtInfoMsg, "Database replacement rolled back successfully.");
        QVERIFY(!m_service.replaceDatabase(m_path));
    }
    fullDisk.reset();

    QVERIFY(!QFile::exists(m_path + "-wal"));
    QVERIFY(!QFile::exists(m_path + "-shm"));
    QCOMPARE(DatabaseFiles::storeName(m_path), QStringLiteral("old"));
}

void tst_DatabaseReplace::aPartialReplacementThatStaysKeepsTheOldDatabaseBesideIt()
{
    DatabaseFiles::makeStore(m_path, "old");
    const LogHook inTheWay("Creating replacement database",
                           [this] { QDir().mkpath(m_path + "/in the way"); });

    expectLog(QtCriticalMsg, "Cannot open database:");
    expectLog(QtCriticalMsg, "Failed to initialize replacement database.");
    expectLog(QtCriticalMsg, "Failed to remove partially-created replacement database");
    expectLog(QtWarningMsg, "Restoring original database from backup.");
    expectLog(QtCriticalMsg, "Failed to restore original database");
    QVERIFY(!m_service.replaceDatabase(m_path));

    QCOMPARE(DatabaseFiles::storeName(m_backup), QStringLiteral("old"));
    QVERIFY(!mainConnectionExists());
}

void tst_DatabaseReplace::anOldDatabaseThatCannotBePutBackIsKeptBeside()
{
    DatabaseFiles::makeStore(m_path, "old");
    QString blockedPath;
    const LogHook inTheWay("", [this, &blockedPath] {
        // The same hook serves both moments: a text in the new file's place, later a folder.
        if (!QFile::exists(m_path) && QFile::exists(m_backup)) {
            blockedPath.isEmpty() ? DatabaseFiles::makeText(m_path) : void(QDir().mkpath(m_path));
            blockedPath = m_path;
        }
    });

    expectLog(QtWarningMsg, "Failed to enable WAL:");
    expectLog(QtCriticalMsg, "Failed to create applied_migrations:");
    expectLog(QtCriticalMsg, "Failed to initialize replacement database.");
    expectLog(QtWarningMsg, "Restoring original database from backup.");
    expectLog(QtCriticalMsg, "Failed to restore original database");
    QVERIFY(!m_service.replaceDatabase(m_path));

    QCOMPARE(DatabaseFiles::storeName(m_backup), QStringLiteral("old"));
    QVERIFY(!QFileInfo(m_path).isFile());
    QVERIFY(!mainConnectionExists());
}

void tst_DatabaseReplace::aBackupThatStaysDoesNotFailTheReplacement()
{
    DatabaseFiles::makeStore(m_path, "old");
    const LogHook inTheWay("Replacement database initialized successfully.", [this] {
        QFile::rename(m_backup, inFolder("kept.db"));
        QDir().mkpath(m_backup + "/in the way");
    });

    expectLog(QtWarningMsg, "Failed to remove database backup. The backup has been retained.");
    expectLog(QtInfoMsg, "Database replacement completed successfully.");
    QVERIFY(m_service.replaceDatabase(m_path));

    QCOMPARE(m_app.databasePath(), m_path);
    QCOMPARE(DatabaseManager::connection().databaseName(), m_path);
    QVERIFY(QFile::exists(m_backup));
}

void tst_DatabaseReplace::aPathThatCannotBeSavedIsRolledBack()
{
    DatabaseFiles::makeStore(m_path, "old");

    expectLog(QtCriticalMsg, "Failed to save the database path.");
    expectLog(QtCriticalMsg, "Failed to initialize replacement database.");
    expectLog(QtWarningMsg, "Restoring original database from backup.");
    expectLog(QtInfoMsg, "Database replacement rolled back successfully.");
    {
        const FullSettingsDisk full;
        QVERIFY(!m_service.replaceDatabase(m_path));
    }

    QCOMPARE(DatabaseFiles::storeName(m_path), QStringLiteral("old"));
    QVERIFY(!QFile::exists(m_backup));
    QVERIFY(!m_app.hasDatabasePath());
}

ZELVAN_TEST(tst_DatabaseReplace)
#include "tst_databasereplace.moc"
