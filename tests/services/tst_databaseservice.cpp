// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "services/AppService.h"
#include "services/DatabaseService.h"
#include "services/SettingsKeys.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/FileSizeLimit.h"
#include "support/FullSettingsDisk.h"
#include "support/LogHook.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QSqlQuery>

/// Backup, staging of a restore, and choosing another database.
class tst_DatabaseService : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void aBackupIsACompleteCopyNamedByTheLocalTime();
    void aBackupWorksInAnyFolder_data();
    void aBackupWorksInAnyFolder();
    void aBackupHoldsWhatIsStillInTheWriteAheadLog();
    void aSecondBackupInTheSameSecondFails();
    void aBackupOfAMissingFileFails();
    void aBackupFailsWhereItsFolderCannotBeMade();
    void aBackupNeedsAnOpenDatabase();
    void aBackupNeedsACheckpoint();
    void whatAnEarlierBackupLeftUnfinishedGoes();
    void anUnfinishedBackupHasNoBackupsName();
    void aBackupCutShortByAFullDiskLeavesNothing_data();
    void aBackupCutShortByAFullDiskLeavesNothing();

    void aRestoreIsOnlyStaged();
    void aSecondRestoreKeepsTheLastPath();
    void aRestoreThatCannotBeStagedFails();
    void anUnfitRestoreFileIsRefusedAtOnce_data();
    void anUnfitRestoreFileIsRefusedAtOnce();

    void anOpenedDatabaseBecomesTheConfiguredOne();
    void aRestoreThatFailedLeavesTheDatabaseOpenedInsteadAlone();
    void aPathThatCannotBeSavedFailsTheOpening();
    void anUnfitDatabaseIsNotOpened_data();
    void anUnfitDatabaseIsNotOpened();

private:
    /// Makes the store's database, configures it and opens it as the working one.
    void openStore(const QString &path);

    AppService m_app;
    DatabaseManager m_databases;
    DatabaseService m_service{&m_app, &m_databases};
};

void tst_DatabaseService::openStore(const QString &path)
{
    DatabaseFiles::makeStore(path, "live");
    m_app.setDatabasePath(path);
    QVERIFY(DatabaseManager::initialize(path));
}

namespace {
QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden);
}

/// Whatever the second in which the backup is made, its name is taken.
void takeBackupNamesOfTheNextSeconds(const QString &folder)
{
    constexpr int seconds = 20;
    QDir().mkpath(folder);
    const QDateTime now = QDateTime::currentDateTime();
    for (int second = 0; second < seconds; ++second) {
        DatabaseFiles::makeText(folder +
                                now.addSecs(second).toString("'/backup_'yyyy-MM-dd_hh-mm-ss'.db'"));
    }
}
} // namespace

void tst_DatabaseService::aBackupIsACompleteCopyNamedByTheLocalTime()
{
    openStore(inFolder("Zelvan.db"));
    const QDateTime before = QDateTime::currentDateTime();

    expectLog(QtInfoMsg, "Creating backup with SQL.");
    QVERIFY(m_service.backupDatabase());

    const QStringList files = filesIn(inFolder("backups"));
    QCOMPARE(files.size(), 1);
    const QDateTime stamp =
        QDateTime::fromString(files.constFirst(), "'backup_'yyyy-MM-dd_hh-mm-ss'.db'");
    QVERIFY2(stamp.isValid(), qPrintable(files.constFirst()));
    QVERIFY(stamp.secsTo(before) <= 1 && stamp <= QDateTime::currentDateTime());
    QCOMPARE(DatabaseFiles::storeName(inFolder("backups/") + files.constFirst()),
             QStringLiteral("live"));
    QVERIFY(DatabaseManager::isZelvanDatabase(inFolder("backups/") + files.constFirst()));
    QVERIFY(DatabaseManager::connection().isOpen());
}

void tst_DatabaseService::aBackupWorksInAnyFolder_data()
{
    addFolderNames();
}

void tst_DatabaseService::aBackupWorksInAnyFolder()
{
    QFETCH(QString, name);
    openStore(inFolder(name + "/Zelvan.db"));

    QVERIFY(m_service.backupDatabase());

    const QString backups = inFolder(name + "/backups");
    QCOMPARE(filesIn(backups).size(), 1);
    QCOMPARE(DatabaseFiles::storeName(backups + '/' + filesIn(backups).constFirst()),
             QStringLiteral("live"));
}

void tst_DatabaseService::aBackupHoldsWhatIsStillInTheWriteAheadLog()
{
    openStore(inFolder("Zelvan.db"));
    DatabaseFiles::run(inFolder("Zelvan.db"), "UPDATE restaurant SET name = 'changed'");

    QVERIFY(m_service.backupDatabase());

    QCOMPARE(
        DatabaseFiles::storeName(inFolder("backups/") + filesIn(inFolder("backups")).constFirst()),
        QStringLiteral("changed"));
}

void tst_DatabaseService::aSecondBackupInTheSameSecondFails()
{
    openStore(inFolder("Zelvan.db"));
    takeBackupNamesOfTheNextSeconds(inFolder("backups"));
    const QStringList before = filesIn(inFolder("backups"));

    expectLog(QtInfoMsg, "Creating backup with SQL.");
    expectLog(QtWarningMsg, "Backup failed:");
    QVERIFY(!m_service.backupDatabase());

    QCOMPARE(filesIn(inFolder("backups")), before);
}

void tst_DatabaseService::aBackupOfAMissingFileFails()
{
    m_app.setDatabasePath(inFolder("gone.db"));

    expectLog(QtWarningMsg,
              QStringLiteral("Database file does not exist: \"%1\"").arg(inFolder("gone.db")));
    QVERIFY(!m_service.backupDatabase());

    QVERIFY(!QFile::exists(inFolder("backups")));
}

void tst_DatabaseService::aBackupFailsWhereItsFolderCannotBeMade()
{
    openStore(inFolder("Zelvan.db"));
    DatabaseFiles::makeText(inFolder("backups"));

    expectLog(QtWarningMsg, "Failed to create backup directory.");
    QVERIFY(!m_service.backupDatabase());
}

void tst_DatabaseService::aBackupNeedsAnOpenDatabase()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    m_app.setDatabasePath(inFolder("Zelvan.db"));

    expectLog(QtWarningMsg, "Database is not open.");
    QVERIFY(!m_service.backupDatabase());

    QVERIFY(filesIn(inFolder("backups")).isEmpty());
}

void tst_DatabaseService::aBackupNeedsACheckpoint()
{
    openStore(inFolder("Zelvan.db"));
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(QSqlQuery(DatabaseManager::connection()).exec("DELETE FROM restaurant"));

    expectLog(QtWarningMsg, "Failed to checkpoint WAL:");
    expectLog(QtWarningMsg, "Failed to checkpoint database before backup.");
    QVERIFY(!m_service.backupDatabase());

    QVERIFY(filesIn(inFolder("backups")).isEmpty());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_DatabaseService::whatAnEarlierBackupLeftUnfinishedGoes()
{
    openStore(inFolder("Zelvan.db"));
    QDir().mkpath(inFolder("backups"));
    DatabaseFiles::makeText(inFolder("backups/unfinished.part"));
    DatabaseFiles::makeText(inFolder("backups/unfinished.part-journal"));

    QVERIFY(m_service.backupDatabase());

    QCOMPARE(filesIn(inFolder("backups")).size(), 1);
    QVERIFY(filesIn(inFolder("backups")).constFirst().startsWith("backup_"));
}

void tst_DatabaseService::anUnfinishedBackupHasNoBackupsName()
{
    openStore(inFolder("Zelvan.db"));
    QStringList names;
    const LogHook onFailure("Backup failed:",
                            [this, &names] { names = filesIn(inFolder("backups")); });

    expectLog(QtWarningMsg, "Backup failed:");
    {
        const FileSizeLimit fullDisk(100'000);
        QVERIFY(!m_service.backupDatabase());
    }

    QVERIFY(!names.isEmpty());
    QVERIFY2(names.filter("backup_").isEmpty() && names.filter(".db").isEmpty(),
             qPrintable(names.join(' ')));
}

void tst_DatabaseService::aBackupCutShortByAFullDiskLeavesNothing_data()
{
    QTest::addColumn<int>("bytes");

    QTest::newRow("held in memory until the end") << 200'000;
    QTest::newRow("partly written, with a journal") << 20'000'000;
}

void tst_DatabaseService::aBackupCutShortByAFullDiskLeavesNothing()
{
    QFETCH(int, bytes);
    openStore(inFolder("Zelvan.db"));
    DatabaseFiles::run(
        inFolder("Zelvan.db"),
        QStringLiteral("UPDATE restaurant SET address = hex(zeroblob(%1))").arg(bytes / 2));
    QVERIFY(DatabaseManager::checkpointWal());

    expectLog(QtWarningMsg, "Backup failed:");
    {
        const FileSizeLimit fullDisk(bytes / 2);
        QVERIFY(!m_service.backupDatabase());
    }

    QVERIFY(filesIn(inFolder("backups")).isEmpty());
    QVERIFY(m_service.backupDatabase());
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("live"));
}

void tst_DatabaseService::aRestoreIsOnlyStaged()
{
    openStore(inFolder("Zelvan.db"));
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    QVERIFY(DatabaseManager::initialize(inFolder("Zelvan.db")));

    QVERIFY(m_service.restoreDatabase(inFolder("old.db")));

    QCOMPARE(QSettings().value(SettingsKeys::pendingRestore).toString(), inFolder("old.db"));
    QCOMPARE(m_app.databasePath(), inFolder("Zelvan.db"));
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("live"));
    QVERIFY(DatabaseManager::connection().isOpen());
}

void tst_DatabaseService::aSecondRestoreKeepsTheLastPath()
{
    DatabaseFiles::makeStore(inFolder("one.db"), "one");
    DatabaseFiles::makeStore(inFolder("two.db"), "two");

    QVERIFY(m_service.restoreDatabase(inFolder("one.db")));
    QVERIFY(m_service.restoreDatabase(inFolder("two.db")));

    QCOMPARE(QSettings().value(SettingsKeys::pendingRestore).toString(), inFolder("two.db"));
}

void tst_DatabaseService::aRestoreThatCannotBeStagedFails()
{
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    m_app.setDatabasePath(inFolder("Zelvan.db"));

    expectLog(QtWarningMsg, "Failed to save the path of the database to restore.");
    {
        const FullSettingsDisk full;
        QVERIFY(!m_service.restoreDatabase(inFolder("old.db")));
        QVERIFY(FullSettingsDisk::stored().endsWith(inFolder("Zelvan.db").toUtf8() + '\n'));
    }

    QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
}

void tst_DatabaseService::anUnfitRestoreFileIsRefusedAtOnce_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ownLine");
    QTest::addColumn<QString>("connectionLine");

    QTest::newRow("missing") << "gone.db"
                             << "Database file does not exist"
                             << "";
    QTest::newRow("a folder") << "folder"
                              << "Unable to open database file"
                              << "Failed to open database test connection:";
    QTest::newRow("another program's") << "foreign.db"
                                       << "Database is not a Zelvan Database"
                                       << "Failed to check database identity:";
    QTest::newRow("a text") << "text.db"
                            << "Database is not a Zelvan Database"
                            << "Failed to check database identity:";
    QTest::newRow("damaged") << "damaged.db"
                             << "Database is not a Zelvan Database"
                             << "Failed to check database structure:";
}

void tst_DatabaseService::anUnfitRestoreFileIsRefusedAtOnce()
{
    QFETCH(QString, name);
    QFETCH(QString, ownLine);
    QFETCH(QString, connectionLine);
    makeUnfitFiles();

    expectRefusal(connectionLine, ownLine);
    QVERIFY(!m_service.restoreDatabase(inFolder(name)));

    QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
}

void tst_DatabaseService::anOpenedDatabaseBecomesTheConfiguredOne()
{
    openStore(inFolder("Zelvan.db"));
    DatabaseFiles::makeStore(inFolder("other.db"), "other");
    QVERIFY(DatabaseManager::initialize(inFolder("Zelvan.db")));

    expectLog(QtInfoMsg, "Database selected successfully.");
    QVERIFY(m_service.openDatabase(inFolder("other.db")));

    QCOMPARE(m_app.databasePath(), inFolder("other.db"));
    QCOMPARE(DatabaseManager::connection().databaseName(), inFolder("Zelvan.db"));
}

void tst_DatabaseService::aRestoreThatFailedLeavesTheDatabaseOpenedInsteadAlone()
{
    DatabaseFiles::makeStore(inFolder("other.db"), "other");
    DatabaseFiles::makeStore(inFolder("staged.db"), "staged");
    m_app.setDatabasePath(inFolder("Zelvan.db"));
    QSettings().setValue(SettingsKeys::pendingRestore, inFolder("staged.db"));

    expectLog(QtInfoMsg, "Database selected successfully.");
    QVERIFY(m_service.openDatabase(inFolder("other.db")));

    QVERIFY(DatabaseService::applyPendingRestore());
    QCOMPARE(DatabaseFiles::storeName(inFolder("other.db")), QStringLiteral("other"));
}

void tst_DatabaseService::aPathThatCannotBeSavedFailsTheOpening()
{
    DatabaseFiles::makeStore(inFolder("a database of a longer name.db"), "other");
    m_app.setDatabasePath(inFolder("Zelvan.db"));

    expectLog(QtWarningMsg, "Failed to save the database path.");
    {
        const FullSettingsDisk full;
        QVERIFY(!m_service.openDatabase(inFolder("a database of a longer name.db")));
        QVERIFY(FullSettingsDisk::stored().endsWith(inFolder("Zelvan.db").toUtf8() + '\n'));
    }

    QCOMPARE(m_app.databasePath(), inFolder("Zelvan.db"));
}

void tst_DatabaseService::anUnfitDatabaseIsNotOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ownLine");
    QTest::addColumn<QString>("connectionLine");

    QTest::newRow("missing") << "gone.db"
                             << "Database file does not exist."
                             << "";
    QTest::newRow("empty path") << ""
                                << "Database file does not exist."
                                << "";
    QTest::newRow("a folder") << "folder"
                              << "Database file does not exist."
                              << "";
    QTest::newRow("path too long") << "long"
                                   << "Database cannot be opened."
                                   << "Failed to open database test connection:";
    QTest::newRow("another program's") << "foreign.db"
                                       << "Database is not a Zelvan database."
                                       << "Failed to check database identity:";
    QTest::newRow("a text") << "text.db"
                            << "Database is not a Zelvan database."
                            << "Failed to check database identity:";
    QTest::newRow("damaged") << "damaged.db"
                             << "Database is not a Zelvan database."
                             << "Failed to check database structure:";
}

void tst_DatabaseService::anUnfitDatabaseIsNotOpened()
{
    QFETCH(QString, name);
    QFETCH(QString, ownLine);
    QFETCH(QString, connectionLine);
    makeUnfitFiles();
    QString path = name.isEmpty() ? QString() : inFolder(name);
    if (name == QLatin1String("long")) {
        DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
        path = DatabaseFiles::makeUnopenableFolder(folder()) + "/Zelvan.db";
        QVERIFY(QFile::copy(inFolder("Zelvan.db"), path));
    }

    expectRefusal(connectionLine, ownLine);
    QVERIFY(!m_service.openDatabase(path));

    QVERIFY(!m_app.hasDatabasePath());
}

ZELVAN_TEST(tst_DatabaseService)
#include "tst_databaseservice.moc"
