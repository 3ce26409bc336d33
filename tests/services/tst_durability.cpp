// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "core/SettingsStore.h"
#include "services/AppService.h"
#include "services/DatabaseService.h"
#include "services/SettingsKeys.h"
#include "services/SetupService.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/DiskLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <sys/stat.h>

/// What a power cut would leave: nothing is removed, and no success told, before that which takes
/// its place is known to be on the disk.
class tst_Durability : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void init();

    void aMoveSyncsTheCopyBeforeTheOldFileGoes();
    void aMoveSyncsTheSettingsBeforeTheOldFileGoes();
    void aMoveWhoseCopyCannotBeSyncedEndsBackOnTheOldFile_data();
    void aMoveWhoseCopyCannotBeSyncedEndsBackOnTheOldFile();
    void aRestoreSyncsTheCopyBeforeTheStagedKeyGoes();
    void aRestoreWhoseCopyCannotBeSyncedIsTriedAgain();
    void aReplacementIsSyncedBeforeTheOldFileGoes();
    void aReplacementThatCannotBeSyncedIsRolledBack();
    void aBackupIsSyncedBeforeItHasItsName();
    void aBackupThatCannotBeSyncedFails();
    void aNewDatabaseIsSyncedBeforeItsPathIsSaved();
    void aNewDatabaseThatCannotBeSyncedFails();
    void settingsThatCannotBeWrittenAreNotTakenForEmptyOnes();
    void settingsThatCannotBeSyncedAreTheOldFileAgain();
    void withoutSecondNamesTheOldSettingsComeBackFromACopy();
    void theFirstSettingsThatCannotBeSyncedAreTakenAway();

private:
    void openStore(const QString &path);
    [[nodiscard]] QString settingsFolder() const;
    /// What lies in the settings' folder, each name with the file behind it and its content.
    [[nodiscard]] QStringList settingsFiles() const;
    /// The rename that puts a new file of settings in the old one's place.
    [[nodiscard]] static QString settingsRename(const DiskLog &disk);
    [[nodiscard]] QString sync(const QString &name) const { return "sync " + inFolder(name); }
    [[nodiscard]] QString remove(const QString &name) const { return "remove " + inFolder(name); }

    AppService m_app;
    DatabaseManager m_databases;
    DatabaseService m_service{&m_app, &m_databases};
    SetupService m_setup{&m_app, &m_databases};
};

void tst_Durability::init()
{
    DatabaseFileTest::init();
    // Made, so that the changes below find the settings' folder there.
    QSettings().setValue("a/key", 1);
}

void tst_Durability::openStore(const QString &path)
{
    DatabaseFiles::makeStore(path, "live");
    m_app.setDatabasePath(path);
    QVERIFY(DatabaseManager::initialize(path));
}

QString tst_Durability::settingsFolder() const
{
    return QFileInfo(QSettings().fileName()).absolutePath();
}

QStringList tst_Durability::settingsFiles() const
{
    QStringList found;
    const QDir folder(settingsFolder());
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        QFile file(folder.filePath(name));
        struct stat status = {};
        if (!file.open(QIODevice::ReadOnly) || fstat(file.handle(), &status) != 0) {
            return {};
        }
        found.append(QStringLiteral("%1 %2 %3")
                         .arg(name)
                         .arg(status.st_ino)
                         .arg(QString::fromUtf8(file.readAll())));
    }
    return found;
}

QString tst_Durability::settingsRename(const DiskLog &disk)
{
    const QString settings = QSettings().fileName();
    const QStringList renames = disk.calls().filter("rename " + settings + ".new");
    return renames.isEmpty() ? QString() : renames.constLast();
}

void tst_Durability::aMoveSyncsTheCopyBeforeTheOldFileGoes()
{
    openStore(inFolder("here/Zelvan.db"));
    const DiskLog disk;

    QVERIFY(m_service.moveDatabase(inFolder("there")));

    const QString partial = "there/ZelvanPOS/data/Zelvan.db.part";
    QVERIFY(disk.hasInOrder({"sync " + folder(), sync("there"), sync("there/ZelvanPOS"),
                             sync(partial), "rename " + inFolder(partial),
                             sync("there/ZelvanPOS/data"), remove("here/Zelvan.db")}));
}

void tst_Durability::aMoveSyncsTheSettingsBeforeTheOldFileGoes()
{
    openStore(inFolder("here/Zelvan.db"));
    const DiskLog disk;

    QVERIFY(m_service.moveDatabase(inFolder("there")));

    const QString renamed = settingsRename(disk);
    QVERIFY(disk.hasInOrder({"sync " + renamed.section(' ', 1), renamed, "sync " + settingsFolder(),
                             remove("here/Zelvan.db")}));
}

void tst_Durability::aMoveWhoseCopyCannotBeSyncedEndsBackOnTheOldFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("warning");

    const QString data = "there/ZelvanPOS/data";
    QTest::newRow("the copy") << data + "/Zelvan.db.part"
                              << "Failed to copy database.";
    QTest::newRow("its name") << data << "Failed to copy database.";
    QTest::newRow("its folder") << "there/ZelvanPOS"
                                << "Failed to create destination directory.";
    QTest::newRow("the settings") << ""
                                  << "Failed to save the new database path.";
}

void tst_Durability::aMoveWhoseCopyCannotBeSyncedEndsBackOnTheOldFile()
{
    QFETCH(QString, path);
    QFETCH(QString, warning);
    const QString source = inFolder("here/Zelvan.db");
    openStore(source);
    const DiskLog disk;
    DiskLog::failSyncOf(path.isEmpty() ? settingsFolder() : inFolder(path));

    expectLog(QtWarningMsg, warning);
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    QCOMPARE(m_app.databasePath(), source);
    QCOMPARE(DatabaseManager::connection().databaseName(), source);
    QCOMPARE(DatabaseFiles::storeName(source), QStringLiteral("live"));
    QVERIFY(QDir(inFolder("there/ZelvanPOS/data")).isEmpty());
}

void tst_Durability::aRestoreSyncsTheCopyBeforeTheStagedKeyGoes()
{
    openStore(inFolder("Zelvan.db"));
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    QVERIFY(m_service.restoreDatabase(inFolder("old.db")));
    DatabaseManager::closeDatabase();
    const DiskLog disk;

    QVERIFY(DatabaseService::applyPendingRestore());

    const QString forgotten = settingsRename(disk);
    QVERIFY(disk.hasInOrder({sync("Zelvan.db.part"), "rename " + inFolder("Zelvan.db.part"),
                             "sync " + folder(), forgotten, "sync " + settingsFolder()}));
}

void tst_Durability::aRestoreWhoseCopyCannotBeSyncedIsTriedAgain()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    m_app.setDatabasePath(inFolder("Zelvan.db"));
    QVERIFY(m_service.restoreDatabase(inFolder("old.db")));

    expectLog(QtCriticalMsg, "Failed to copy the database to restore:");
    {
        const DiskLog disk;
        DiskLog::failSyncOf(inFolder("Zelvan.db.part"));
        QVERIFY(!DatabaseService::applyPendingRestore());
    }

    QVERIFY(DatabaseService::applyPendingRestore());
    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("old"));
}

void tst_Durability::aReplacementIsSyncedBeforeTheOldFileGoes()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "old");
    const DiskLog disk;

    QVERIFY(m_service.replaceDatabase(inFolder("Zelvan.db")));

    QVERIFY(disk.hasInOrder({"rename " + inFolder("Zelvan.db"), "sync " + folder(),
                             sync("Zelvan.db"), "sync " + folder(), settingsRename(disk),
                             "sync " + settingsFolder(), remove("Zelvan.db.backup")}));
}

void tst_Durability::aReplacementThatCannotBeSyncedIsRolledBack()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "old");
    m_app.setDatabasePath(inFolder("Zelvan.db"));

    expectLog(QtCriticalMsg, "Failed to save the database path.");
    expectLog(QtCriticalMsg, "Failed to initialize replacement database.");
    expectLog(QtWarningMsg, "Restoring original database from backup.");
    expectLog(QtInfoMsg, "Database replacement rolled back successfully.");
    {
        const DiskLog disk;
        DiskLog::failSyncOf(settingsFolder());
        QVERIFY(!m_service.replaceDatabase(inFolder("Zelvan.db")));
    }

    QCOMPARE(DatabaseFiles::storeName(inFolder("Zelvan.db")), QStringLiteral("old"));
    QCOMPARE(m_app.databasePath(), inFolder("Zelvan.db"));
    QVERIFY(!QFile::exists(inFolder("Zelvan.db.backup")));
}

void tst_Durability::aBackupIsSyncedBeforeItHasItsName()
{
    openStore(inFolder("Zelvan.db"));
    const DiskLog disk;

    QVERIFY(m_service.backupDatabase());

    const QString unfinished = inFolder("backups/unfinished.part");
    QVERIFY(disk.hasInOrder({"sync " + folder(), "sync " + unfinished, "rename " + unfinished}));
    QCOMPARE(disk.calls().constLast(), sync("backups"));
}

void tst_Durability::aBackupThatCannotBeSyncedFails()
{
    openStore(inFolder("Zelvan.db"));
    QVERIFY(QDir().mkpath(inFolder("backups")));
    const DiskLog disk;
    DiskLog::failSyncOf(inFolder("backups"));

    expectLog(QtWarningMsg, "Backup failed:");
    QVERIFY(!m_service.backupDatabase());

    QVERIFY(QDir(inFolder("backups")).isEmpty());
}

void tst_Durability::aNewDatabaseIsSyncedBeforeItsPathIsSaved()
{
    const DiskLog disk;

    QCOMPARE(m_setup.initializeApp(inFolder("a/b/Zelvan.db")), SetupService::Success);

    QVERIFY(disk.hasInOrder({"sync " + folder(), sync("a"), sync("a/b/Zelvan.db"), sync("a/b"),
                             settingsRename(disk), "sync " + settingsFolder()}));
}

void tst_Durability::aNewDatabaseThatCannotBeSyncedFails()
{
    const DiskLog disk;
    DiskLog::failSyncOf(settingsFolder());

    expectLog(QtCriticalMsg, "Failed to save the database path.");
    QCOMPARE(m_setup.initializeApp(inFolder("Zelvan.db")), SetupService::InitializationFailed);

    QVERIFY(!m_app.hasDatabasePath());
}

/// QSettings does not notice that its writes fail, and has an empty file take the place of the
/// draft: one in which the key that was to go is indeed not to be found.
void tst_Durability::settingsThatCannotBeWrittenAreNotTakenForEmptyOnes()
{
    QVERIFY(SettingsStore::store({{"a/key", "stays"}, {"b/key", "goes"}}));
    const QStringList before = settingsFiles();
    const DiskLog disk;
    DiskLog::failWritesAfterSyncOf(".lock");

    QVERIFY(!SettingsStore::store({{"b/key", QString()}}));

    QCOMPARE(settingsFiles(), before);
    QCOMPARE(QSettings().value("a/key").toString(), QStringLiteral("stays"));
    QCOMPARE(QSettings().value("b/key").toString(), QStringLiteral("goes"));
}

void tst_Durability::settingsThatCannotBeSyncedAreTheOldFileAgain()
{
    QVERIFY(SettingsStore::store({{"a/key", "old"}}));
    const QStringList before = settingsFiles();
    QCOMPARE(before.size(), 1);
    const DiskLog disk;
    DiskLog::failSyncOf(settingsFolder(), QSettings().fileName());

    QVERIFY(!SettingsStore::store({{"a/key", "new"}}));

    const QString kept = QSettings().fileName() + ".old";
    QVERIFY(disk.hasInOrder({"link " + kept, settingsRename(disk), "rename " + kept}));
    QCOMPARE(settingsFiles(), before);
    QCOMPARE(QSettings().value("a/key").toString(), QStringLiteral("old"));
}

void tst_Durability::withoutSecondNamesTheOldSettingsComeBackFromACopy()
{
    QVERIFY(SettingsStore::store({{"a/key", "old"}}));
    const DiskLog disk;
    DiskLog::failLinks();

    QVERIFY(SettingsStore::store({{"a/key", "newer"}}));
    DiskLog::failSyncOf(settingsFolder(), QSettings().fileName());
    QVERIFY(!SettingsStore::store({{"a/key", "newest"}}));

    QCOMPARE(QSettings().value("a/key").toString(), QStringLiteral("newer"));
    QCOMPARE(settingsFiles().size(), 1);
}

void tst_Durability::theFirstSettingsThatCannotBeSyncedAreTakenAway()
{
    QVERIFY(QFile::remove(QSettings().fileName()));
    const DiskLog disk;
    DiskLog::failSyncOf(settingsFolder(), QSettings().fileName());

    QVERIFY(!SettingsStore::store({{"a/key", "new"}}));

    QCOMPARE(settingsFiles(), QStringList());
    QVERIFY(!QSettings().contains("a/key"));
}

ZELVAN_TEST(tst_Durability)
#include "tst_durability.moc"
