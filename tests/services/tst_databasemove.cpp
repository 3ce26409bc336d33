// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "repositories/RestaurantRepository.h"
#include "services/AppService.h"
#include "services/DatabaseService.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/FileSizeLimit.h"
#include "support/FullSettingsDisk.h"
#include "support/LogHook.h"
#include "support/UnprivilegedUser.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSettings>
#include <QSqlQuery>

/// Moving the live database, with each step failing in turn.
class tst_DatabaseMove : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void theDatabaseMovesBelowTheFolder_data();
    void theDatabaseMovesBelowTheFolder();
    void whatIsStillInTheWriteAheadLogMovesAlong();
    void theEmptiedFoldersOfAnEarlierMoveGo();
    void aTreeThatStillHoldsAFileStays_data();
    void aTreeThatStillHoldsAFileStays();

    void withoutAConfiguredPathNothingMoves();
    void aMissingDatabaseDoesNotMove();
    void aDestinationThatCannotBeMadeEndsTheMove();
    void movingToItsOwnPlaceIsRefused();
    void anExistingFileIsNeverOverwritten();
    void withoutACheckpointNothingMoves();
    void aFailedCopyEndsBackOnTheOldFile();
    void aCopyThatCannotBeOpenedGoesAgain();
    void aCopyThatCannotBeMigratedGoesAgain();
    void aPathThatCannotBeSavedEndsBackOnTheOldFile();
    void aDatabaseThatAnotherProgramHasOpenStays();
    void theLogOfAVanishedDatabaseIsNotPlayedIntoTheCopy();
    void repositoriesStayCutOffAfterAFailedMove();
    void anOldFileThatStaysDoesNotFailTheMove();
    void aFolderThatStaysDoesNotFailTheMove();

private:
    void openStore(const QString &path);
    /// The old file whole, configured and open; how every failed move ends.
    void verifyStillOn(const QString &source);

    AppService m_app;
    DatabaseManager m_databases;
    DatabaseService m_service{&m_app, &m_databases};
};

void tst_DatabaseMove::openStore(const QString &path)
{
    DatabaseFiles::makeStore(path, "live");
    m_app.setDatabasePath(path);
    QVERIFY(DatabaseManager::initialize(path));
}

void tst_DatabaseMove::verifyStillOn(const QString &source)
{
    QCOMPARE(m_app.databasePath(), source);
    QCOMPARE(DatabaseManager::connection().databaseName(), source);
    QVERIFY(DatabaseManager::connection().isOpen());
    QCOMPARE(DatabaseFiles::storeName(source), QStringLiteral("live"));
}

namespace {
/// The next opening applies the script once more; with 010 it fails, for its table is there.
void forgetMigration(const QString &path, const QString &number)
{
    DatabaseFiles::run(path, QStringLiteral("DELETE FROM applied_migrations "
                                            "WHERE migration_name LIKE '%/%1_%'")
                                 .replace("%1", number));
}

/// The whole tree readable and writable for everyone, owned by the unprivileged user.
void giveAway(const QString &path)
{
    const auto give = [](const QString &entry) {
        UnprivilegedUser::setMode(entry, 0777);
        UnprivilegedUser::own(entry);
    };
    give(path);
    QDirIterator entries(path, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        give(entries.next());
    }
}
} // namespace

void tst_DatabaseMove::theDatabaseMovesBelowTheFolder_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("plain") << "here"
                           << "there";
    QTest::newRow("apostrophe") << "Alice's"
                                << "Bob's";
    QTest::newRow("blank") << "my data"
                           << "other data";
    QTest::newRow("hash") << "a#b"
                          << "c#d";
    QTest::newRow("percent") << "100%20"
                             << "%1%";
    QTest::newRow("Chinese") << QString::fromUtf8("餐厅") << QString::fromUtf8("数据");
    QTest::newRow("trailing slash") << "here"
                                    << "there/";
}

void tst_DatabaseMove::theDatabaseMovesBelowTheFolder()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    const QString source = inFolder(from + "/Shop.db");
    openStore(source);
    QDir().mkpath(inFolder(to));

    expectLog(QtInfoMsg, "Database closed");
    expectLog(QtInfoMsg, "Database moved successfully.");
    QVERIFY(m_service.moveDatabase(inFolder(to)));

    const QString target = QDir(inFolder(to)).filePath("ZelvanPOS/data/Shop.db");
    QCOMPARE(m_app.databasePath(), target);
    QCOMPARE(DatabaseManager::connection().databaseName(), target);
    QCOMPARE(DatabaseFiles::storeName(target), QStringLiteral("live"));
    for (const char *companion : {"", "-wal", "-shm"}) {
        QVERIFY(!QFile::exists(source + companion));
    }
}

void tst_DatabaseMove::whatIsStillInTheWriteAheadLogMovesAlong()
{
    openStore(inFolder("here/Zelvan.db"));
    DatabaseFiles::run(inFolder("here/Zelvan.db"), "UPDATE restaurant SET name = 'changed'");

    QVERIFY(m_service.moveDatabase(inFolder("there")));

    QCOMPARE(DatabaseFiles::storeName(inFolder("there/ZelvanPOS/data/Zelvan.db")),
             QStringLiteral("changed"));
}

void tst_DatabaseMove::theEmptiedFoldersOfAnEarlierMoveGo()
{
    openStore(inFolder("here/ZelvanPOS/data/Zelvan.db"));
    QDir().mkpath(inFolder("here/ZelvanPOS/data/backups"));

    QVERIFY(m_service.moveDatabase(inFolder("there")));

    QVERIFY(!QFile::exists(inFolder("here/ZelvanPOS")));
    QVERIFY(QFile::exists(inFolder("here")));
}

void tst_DatabaseMove::aTreeThatStillHoldsAFileStays_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("a backup") << "here/ZelvanPOS/data/backups/backup_1.db";
    QTest::newRow("a hidden file") << "here/ZelvanPOS/data/.hidden";
    QTest::newRow("a file beside the folder") << "here/ZelvanPOS/notes.txt";
}

void tst_DatabaseMove::aTreeThatStillHoldsAFileStays()
{
    QFETCH(QString, file);
    openStore(inFolder("here/ZelvanPOS/data/Zelvan.db"));
    QDir().mkpath(inFolder("here/ZelvanPOS/data/backups"));
    DatabaseFiles::makeText(inFolder(file));

    QVERIFY(m_service.moveDatabase(inFolder("there")));

    QVERIFY(QFile::exists(inFolder(file)));
}

void tst_DatabaseMove::withoutAConfiguredPathNothingMoves()
{
    expectLog(QtWarningMsg, "No database configured.");
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    QVERIFY(!QFile::exists(inFolder("there")));
}

void tst_DatabaseMove::aMissingDatabaseDoesNotMove()
{
    m_app.setDatabasePath(inFolder("gone.db"));

    expectLog(QtWarningMsg, "Database file does not exist.");
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    QVERIFY(!QFile::exists(inFolder("there")));
}

void tst_DatabaseMove::aDestinationThatCannotBeMadeEndsTheMove()
{
    openStore(inFolder("here/Zelvan.db"));
    DatabaseFiles::makeText(inFolder("there"));

    expectLog(QtWarningMsg, "Failed to create destination directory.");
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    verifyStillOn(inFolder("here/Zelvan.db"));
}

void tst_DatabaseMove::movingToItsOwnPlaceIsRefused()
{
    const QString source = inFolder("here/ZelvanPOS/data/Zelvan.db");
    openStore(source);

    expectLog(QtWarningMsg, "Source and destination are identical.");
    QVERIFY(!m_service.moveDatabase(inFolder("here")));

    verifyStillOn(source);
}

void tst_DatabaseMove::anExistingFileIsNeverOverwritten()
{
    const QString target = inFolder("there/ZelvanPOS/data/Zelvan.db");
    DatabaseFiles::makeStore(target, "foreign");
    openStore(inFolder("here/Zelvan.db"));

    expectLog(QtWarningMsg, "Destination database already exists.");
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    verifyStillOn(inFolder("here/Zelvan.db"));
    QCOMPARE(DatabaseFiles::storeName(target), QStringLiteral("foreign"));
}

void tst_DatabaseMove::withoutACheckpointNothingMoves()
{
    openStore(inFolder("here/Zelvan.db"));
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(QSqlQuery(DatabaseManager::connection()).exec("DELETE FROM restaurant"));

    expectLog(QtWarningMsg, "Failed to checkpoint WAL:");
    expectLog(QtWarningMsg, "Failed to checkpoint database.");
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    QVERIFY(DatabaseManager::rollbackTransaction());
    verifyStillOn(inFolder("here/Zelvan.db"));
    QVERIFY(!QFile::exists(inFolder("there/ZelvanPOS/data/Zelvan.db")));
}

void tst_DatabaseMove::aFailedCopyEndsBackOnTheOldFile()
{
    constexpr qint64 limit = 100'000;
    openStore(inFolder("here/Zelvan.db"));
    DatabaseFiles::run(inFolder("here/Zelvan.db"),
                       "UPDATE restaurant SET address = hex(zeroblob(200000))");
    QVERIFY(DatabaseManager::checkpointWal());

    expectLog(QtWarningMsg, "Failed to copy database.");
    {
        const FileSizeLimit fullDisk(limit);
        QVERIFY(!m_service.moveDatabase(inFolder("there")));
    }

    verifyStillOn(inFolder("here/Zelvan.db"));
    QVERIFY(!QFile::exists(inFolder("there/ZelvanPOS/data/Zelvan.db")));
}

void tst_DatabaseMove::aCopyThatCannotBeOpenedGoesAgain()
{
    openStore(inFolder("here/Zelvan.db"));
    const QString there = DatabaseFiles::makeUnopenableFolder(folder());

    expectLog(QtWarningMsg, "Failed to open database test connection:");
    expectLog(QtWarningMsg, "Copied database could not be opened.");
    QVERIFY(!m_service.moveDatabase(there));

    verifyStillOn(inFolder("here/Zelvan.db"));
    QVERIFY(QDir(there + "/ZelvanPOS/data").isEmpty());
}

void tst_DatabaseMove::aCopyThatCannotBeMigratedGoesAgain()
{
    openStore(inFolder("here/Zelvan.db"));
    forgetMigration(inFolder("here/Zelvan.db"), "010");

    // Once for the copy and once more on the way back, which is not looked at.
    expectLog(QtCriticalMsg, "Migration failed:");
    expectLog(QtWarningMsg, "Failed to initialize moved database.");
    expectLog(QtCriticalMsg, "Migration failed:");
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    verifyStillOn(inFolder("here/Zelvan.db"));
    QVERIFY(QDir(inFolder("there/ZelvanPOS/data")).isEmpty());
}

void tst_DatabaseMove::aPathThatCannotBeSavedEndsBackOnTheOldFile()
{
    openStore(inFolder("here/Zelvan.db"));
    const FullSettingsDisk full("Database closed");

    expectLog(QtWarningMsg, "Failed to save the new database path.");
    QVERIFY(!m_service.moveDatabase(inFolder("there")));

    QVERIFY(
        FullSettingsDisk::stored().endsWith("path=" + inFolder("here/Zelvan.db").toUtf8() + '\n'));

    verifyStillOn(inFolder("here/Zelvan.db"));
    QVERIFY(QDir(inFolder("there/ZelvanPOS/data")).isEmpty());
}

void tst_DatabaseMove::aDatabaseThatAnotherProgramHasOpenStays()
{
    const QString source = inFolder("here/Zelvan.db");
    openStore(source);
    DatabaseFiles::run(source, "UPDATE restaurant SET address = 'changed'");
    {
        QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "other");
        other.setDatabaseName(source);
        QVERIFY(other.open() && QSqlQuery("SELECT name FROM restaurant", other).next());

        expectLog(QtWarningMsg, "Database is in use by another program.");
        QVERIFY(!m_service.moveDatabase(inFolder("there")));
    }
    QSqlDatabase::removeDatabase("other");

    verifyStillOn(source);
    QVERIFY(!QFile::exists(inFolder("there/ZelvanPOS/data/Zelvan.db")));
}

void tst_DatabaseMove::theLogOfAVanishedDatabaseIsNotPlayedIntoTheCopy()
{
    const QString target = inFolder("there/ZelvanPOS/data/Zelvan.db");
    DatabaseFiles::makeLogOnly(target);
    openStore(inFolder("here/Zelvan.db"));

    QVERIFY(m_service.moveDatabase(inFolder("there")));

    QCOMPARE(DatabaseFiles::storeName(target), QStringLiteral("live"));
}

void tst_DatabaseMove::repositoriesStayCutOffAfterAFailedMove()
{
    openStore(inFolder("here/Zelvan.db"));
    RestaurantRepository restaurant(DatabaseManager::connection());
    const QString there = DatabaseFiles::makeUnopenableFolder(folder());
    QVERIFY(restaurant.fetch());

    expectLog(QtWarningMsg, "QSqlDatabasePrivate::removeDatabase: connection 'main_connection' "
                            "is still in use");
    expectLog(QtWarningMsg, "Failed to open database test connection:");
    expectLog(QtWarningMsg, "Copied database could not be opened.");
    QVERIFY(!m_service.moveDatabase(there));

    verifyStillOn(inFolder("here/Zelvan.db"));
    expectLog(QtWarningMsg, "QSqlQuery::prepare: database not open");
    expectLog(QtWarningMsg, "Failed to fetch restaurant:");
    QVERIFY(!restaurant.fetch());
}

void tst_DatabaseMove::anOldFileThatStaysDoesNotFailTheMove()
{
    const QString source = inFolder("here/Zelvan.db");
    openStore(source);
    forgetMigration(source, "001");
    const LogHook inTheWay("Migration applied:", [&source] {
        QFile::remove(source);
        QDir().mkpath(source + "/in the way");
    });

    expectLog(QtWarningMsg, "Failed to delete old database.");
    expectLog(QtInfoMsg, "Database moved successfully.");
    QVERIFY(m_service.moveDatabase(inFolder("there")));

    QCOMPARE(m_app.databasePath(), inFolder("there/ZelvanPOS/data/Zelvan.db"));
    QCOMPARE(DatabaseManager::connection().databaseName(), m_app.databasePath());
}

void tst_DatabaseMove::aFolderThatStaysDoesNotFailTheMove()
{
    const QString source = inFolder("locked/ZelvanPOS/data/Zelvan.db");
    DatabaseFiles::makeStore(source, "live");
    m_app.setDatabasePath(source);
    QSettings().sync();
    QDir().mkpath(inFolder("there"));
    const QString home = QDir(folder()).filePath("../..");
    giveAway(QDir(home).canonicalPath());
    UnprivilegedUser::setMode(inFolder("locked"), 0555);

    expectLog(QtWarningMsg, "Failed to remove empty directory.");
    bool moved = false;
    {
        const UnprivilegedUser nobody;
        QVERIFY(DatabaseManager::initialize(source));
        moved = m_service.moveDatabase(inFolder("there"));
        DatabaseManager::closeDatabase();
    }

    QVERIFY(moved);
    QVERIFY(QFile::exists(inFolder("locked/ZelvanPOS")));
    QCOMPARE(m_app.databasePath(), inFolder("there/ZelvanPOS/data/Zelvan.db"));
    UnprivilegedUser::setMode(inFolder("locked"), 0755);
}

ZELVAN_TEST(tst_DatabaseMove)
#include "tst_databasemove.moc"
