// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "services/AppService.h"
#include "services/DatabaseService.h"
#include "services/SettingsKeys.h"
#include "services/SetupService.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/FileSizeLimit.h"
#include "support/FullSettingsDisk.h"
#include "support/LogCapture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <functional>

/// What the start of the program does with a staged backup.
class tst_PendingRestore : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void nothingStagedIsNothingToDo();
    void withoutAConfiguredPathTheStagedFileWaits();
    void theStagedFileTakesThePlaceOfTheConfiguredOne_data();
    void theStagedFileTakesThePlaceOfTheConfiguredOne();
    void theFolderOfTheConfiguredPathIsMade();
    void leftoversOfTheOldDatabaseGo();
    void anUnfitStagedFileIsForgotten_data();
    void anUnfitStagedFileIsForgotten();
    void aFileSwappedAfterTheStagingIsRefused();
    void aFailedCopyIsTriedAgainAtTheNextStart();
    void aCopyThatFailsOnAFullDiskLeavesTheStagedFileWhole();
    void theLiveFileItselfIsNotLost();
    void aLiveFileThatSomebodyHasOpenIsReplacedWholeOrNotAtAll();
    void aRestoredStoreMayBeWritten();
    void aLiveFileThatMayNotBeWrittenIsReplaced();
    void aRestoreThatCannotBeForgottenIsNotWorkedOn();
    void aRestoreStagedBeforeIsDropped_data();
    void aRestoreStagedBeforeIsDropped();

private:
    static void stage(const QString &staged, const QString &configured);
};

void tst_PendingRestore::stage(const QString &staged, const QString &configured)
{
    QSettings settings;
    settings.setValue(SettingsKeys::pendingRestore, staged);
    settings.setValue(SettingsKeys::databasePath, configured);
}

void tst_PendingRestore::nothingStagedIsNothingToDo()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    QSettings().setValue(SettingsKeys::databasePath, inFolder("Zelvan.db"));

    QVERIFY(DatabaseService::applyPendingRestore());

    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("live"));
}

void tst_PendingRestore::withoutAConfiguredPathTheStagedFileWaits()
{
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    QSettings().setValue(SettingsKeys::pendingRestore, inFolder("old.db"));

    QVERIFY(!DatabaseService::applyPendingRestore());

    QCOMPARE(QSettings().value(SettingsKeys::pendingRestore).toString(), inFolder("old.db"));
}

void tst_PendingRestore::theStagedFileTakesThePlaceOfTheConfiguredOne_data()
{
    addFolderNames();
}

void tst_PendingRestore::theStagedFileTakesThePlaceOfTheConfiguredOne()
{
    QFETCH(QString, name);
    const QString live = inFolder(name + "/Zelvan.db");
    const QString old = inFolder(name + "/backups/old.db");
    DatabaseFiles::makeStore(live, "live");
    DatabaseFiles::makeStore(old, "old");
    stage(old, live);

    QVERIFY(DatabaseService::applyPendingRestore());

    QCOMPARE(DatabaseFiles::storeName(live), QStringLiteral("old"));
    QCOMPARE(DatabaseFiles::storeName(old), QStringLiteral("old"));
    QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
    QVERIFY(!QSqlDatabase::contains(DatabaseManager::mainConnectionName));
}

void tst_PendingRestore::theFolderOfTheConfiguredPathIsMade()
{
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    stage(inFolder("old.db"), inFolder("a/b/Zelvan.db"));

    QVERIFY(DatabaseService::applyPendingRestore());

    QCOMPARE(DatabaseFiles::storeName(inFolder("a/b/Zelvan.db")), QStringLiteral("old"));
}

void tst_PendingRestore::leftoversOfTheOldDatabaseGo()
{
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    DatabaseFiles::makeText(inFolder("Zelvan.db"));
    DatabaseFiles::makeText(inFolder("Zelvan.db-wal"));
    DatabaseFiles::makeText(inFolder("Zelvan.db-shm"));
    stage(inFolder("old.db"), inFolder("Zelvan.db"));

    QVERIFY(DatabaseService::applyPendingRestore());

    QVERIFY(!QFile::exists(inFolder("Zelvan.db-wal")));
    QVERIFY(!QFile::exists(inFolder("Zelvan.db-shm")));
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("old"));
}

void tst_PendingRestore::anUnfitStagedFileIsForgotten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ownLine");
    QTest::addColumn<QString>("connectionLine");

    QTest::newRow("missing") << "gone.db"
                             << "Database restore file does not exist"
                             << "";
    QTest::newRow("a folder") << "folder"
                              << "Unable to open database file"
                              << "Failed to open database test connection:";
    QTest::newRow("another program's") << "foreign.db"
                                       << "Database is not a Zelvan Database"
                                       << "Failed to check database identity:";
    QTest::newRow("damaged") << "damaged.db"
                             << "Database is not a Zelvan Database"
                             << "Failed to check database structure:";
}

void tst_PendingRestore::anUnfitStagedFileIsForgotten()
{
    QFETCH(QString, name);
    QFETCH(QString, ownLine);
    QFETCH(QString, connectionLine);
    makeUnfitFiles();
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    stage(inFolder(name), inFolder("Zelvan.db"));

    expectRefusal(connectionLine, ownLine);
    QVERIFY(!DatabaseService::applyPendingRestore());

    QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("live"));
}

void tst_PendingRestore::aFileSwappedAfterTheStagingIsRefused()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    stage(inFolder("old.db"), inFolder("Zelvan.db"));
    QVERIFY(QFile::remove(inFolder("old.db")));
    DatabaseFiles::makeForeign(inFolder("old.db"));

    expectLog(QtWarningMsg, "Failed to check database identity:");
    expectLog(QtWarningMsg, "Database is not a Zelvan Database");
    QVERIFY(!DatabaseService::applyPendingRestore());

    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("live"));
}

void tst_PendingRestore::aFailedCopyIsTriedAgainAtTheNextStart()
{
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    QDir().mkpath(inFolder("Zelvan.db/in the way"));
    stage(inFolder("old.db"), inFolder("Zelvan.db"));

    expectLog(QtCriticalMsg, "Failed to copy the database to restore:");
    QVERIFY(!DatabaseService::applyPendingRestore());

    QCOMPARE(QSettings().value(SettingsKeys::pendingRestore).toString(), inFolder("old.db"));
    QVERIFY(QDir(inFolder("Zelvan.db")).removeRecursively());
    QVERIFY(DatabaseService::applyPendingRestore());
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("old"));
    QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
}

void tst_PendingRestore::aCopyThatFailsOnAFullDiskLeavesTheStagedFileWhole()
{
    constexpr qint64 limit = 100'000;
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    stage(inFolder("old.db"), inFolder("Zelvan.db"));

    expectLog(QtCriticalMsg, QStringLiteral("Failed to copy the database to restore: \"%1\" \"%2\"")
                                 .arg(inFolder("old.db"), FileSizeLimit::reason()));
    {
        const FileSizeLimit fullDisk(limit);
        QVERIFY(!DatabaseService::applyPendingRestore());
    }

    // The one step after which no database stands at the configured path.
    QVERIFY(!QFile::exists(inFolder("Zelvan.db")));
    QCOMPARE(DatabaseFiles::storeName(inFolder("old.db")), QStringLiteral("old"));
    QCOMPARE(QSettings().value(SettingsKeys::pendingRestore).toString(), inFolder("old.db"));
    QVERIFY(DatabaseService::applyPendingRestore());
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("old"));
}

void tst_PendingRestore::theLiveFileItselfIsNotLost()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    const QString live = inFolder("Zelvan.db");
    QVERIFY(QFile::link(folder(), inFolder("other")));
    int spellings = 0;
    for (const QString &name :
         {folder() + "/./Zelvan.db", inFolder("other/Zelvan.db"), QDir::toNativeSeparators(live),
          live.toLower(), live.toUpper(), live + "."}) {
        // Which of them lead to it, the system says.
        if (!QFileInfo::exists(name)) {
            continue;
        }
        stage(name, live);

        QVERIFY2(DatabaseService::applyPendingRestore(), qPrintable(name));

        QCOMPARE(DatabaseFiles::storeName(live), QStringLiteral("live"));
        QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
        ++spellings;
    }
    QVERIFY(spellings >= 3);
}

void tst_PendingRestore::aLiveFileThatSomebodyHasOpenIsReplacedWholeOrNotAtAll()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    DatabaseFiles::makeText(inFolder("Zelvan.db-wal"));
    stage(inFolder("old.db"), inFolder("Zelvan.db"));
    QFile reader(inFolder("Zelvan.db"));
    QVERIFY(reader.open(QIODevice::ReadOnly));
    const LogCapture log;

    const bool restored = DatabaseService::applyPendingRestore();

    // What is sold from here on, the next start must not copy over.
    QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
    QCOMPARE(log.lines().isEmpty(), restored);
    QCOMPARE(QFile::exists(inFolder("Zelvan.db-wal")), !restored);
    reader.close();
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QString(restored ? "old" : "live"));
}

void tst_PendingRestore::aRestoredStoreMayBeWritten()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    QVERIFY(QFile::setPermissions(inFolder("old.db"), QFile::ReadOwner | QFile::ReadUser));
    stage(inFolder("old.db"), inFolder("Zelvan.db"));

    QVERIFY(DatabaseService::applyPendingRestore());

    QVERIFY(QFileInfo(inFolder("Zelvan.db")).isWritable());
    QVERIFY(DatabaseManager::initialize(inFolder("Zelvan.db")));
    DatabaseFiles::run(inFolder("Zelvan.db"), "UPDATE restaurant SET name = 'new'");
    QVERIFY(QFile::setPermissions(inFolder("old.db"), QFile::ReadOwner | QFile::WriteOwner));
}

void tst_PendingRestore::aLiveFileThatMayNotBeWrittenIsReplaced()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    QVERIFY(QFile::setPermissions(inFolder("Zelvan.db"), QFile::ReadOwner | QFile::ReadUser));
    stage(inFolder("old.db"), inFolder("Zelvan.db"));

    QVERIFY(DatabaseService::applyPendingRestore());

    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("old"));
}

void tst_PendingRestore::aRestoreThatCannotBeForgottenIsNotWorkedOn()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    stage(inFolder("old.db"), inFolder("Zelvan.db"));

    // The next start would copy it again, over what had been sold until then.
    expectLog(QtCriticalMsg, "Failed to forget the database to restore:");
    {
        const FullSettingsDisk full;
        QVERIFY(!DatabaseService::applyPendingRestore());
    }

    QVERIFY(!QFile::exists(inFolder("Zelvan.db")));
    QVERIFY(DatabaseService::applyPendingRestore());
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("old"));
}

void tst_PendingRestore::aRestoreStagedBeforeIsDropped_data()
{
    using Change = std::function<bool(AppService &, const QString &path)>;
    QTest::addColumn<Change>("change");

    QTest::newRow("a new store is made") << Change([](AppService &app, const QString &path) {
        DatabaseManager databases;
        QFile::remove(path);
        return SetupService(&app, &databases).initializeApp(path) == SetupService::Success;
    });
    QTest::newRow("the store is replaced") << Change([](AppService &app, const QString &path) {
        DatabaseManager databases;
        return DatabaseService(&app, &databases).replaceDatabase(path);
    });
    QTest::newRow("the store is moved") << Change([](AppService &app, const QString &path) {
        DatabaseManager databases;
        return DatabaseManager::initialize(path) &&
               DatabaseService(&app, &databases).moveDatabase(QFileInfo(path).path());
    });
    QTest::newRow("another is opened") << Change([](AppService &app, const QString &path) {
        DatabaseManager databases;
        return DatabaseService(&app, &databases).openDatabase(path);
    });
    QTest::newRow("the path is set") << Change([](AppService &app, const QString &path) {
        app.setDatabasePath(path);
        return true;
    });
}

void tst_PendingRestore::aRestoreStagedBeforeIsDropped()
{
    using Change = std::function<bool(AppService &, const QString &path)>;
    QFETCH(Change, change);
    AppService app;
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("staged.db"), "staged");
    stage(inFolder("staged.db"), inFolder("Zelvan.db"));

    QVERIFY(change(app, inFolder("Zelvan.db")));
    DatabaseManager::closeDatabase();

    QVERIFY(!QSettings().contains(SettingsKeys::pendingRestore));
    QVERIFY(DatabaseService::applyPendingRestore());
    QVERIFY(QFile::exists(app.databasePath()));
    QVERIFY(DatabaseFiles::value(app.databasePath(), "SELECT name FROM restaurant") != "staged");
}

ZELVAN_TEST(tst_PendingRestore)
#include "tst_pendingrestore.moc"
