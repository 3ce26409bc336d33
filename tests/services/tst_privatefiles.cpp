// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "core/Logging.h"
#include "services/AppService.h"
#include "services/DatabaseService.h"
#include "services/SetupService.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/UnprivilegedUser.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSqlQuery>
#include <QStandardPaths>

/// Whatever the program makes, no other account of the computer can read, while it leaves alone
/// what was there. The process lets others read what nobody asks about, as most do.
class tst_PrivateFiles : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void aNewStoreIsPrivate();
    void aBackupIsPrivate_data();
    void aBackupIsPrivate();
    void aReplacementIsPrivate();
    void aMovedStoreIsPrivate();
    void aRestoredStoreIsPrivate();
    void theLogIsPrivate();
    void whatWasThereKeepsItsRights();

private:
    /// Everything below the folder that another account has a right to.
    [[nodiscard]] static QStringList open(const QString &folder);

    AppService m_app;
    DatabaseManager m_databases;
    DatabaseService m_service{&m_app, &m_databases};
    SetupService m_setup{&m_app, &m_databases};
};

QStringList tst_PrivateFiles::open(const QString &folder)
{
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QStringList found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        if (QFileInfo(entry).permissions() & others) {
            found += entry.mid(folder.size() + 1);
        }
    }
    return found;
}

void tst_PrivateFiles::initTestCase()
{
    UnprivilegedUser::letOthersRead();
}

void tst_PrivateFiles::init()
{
    DatabaseFileTest::init();
    QVERIFY(QDir(QFileInfo(QSettings().fileName()).absolutePath()).removeRecursively());
}

void tst_PrivateFiles::aNewStoreIsPrivate()
{
    QCOMPARE(m_setup.initializeApp(inFolder("a/b/Zelvan.db")), SetupService::Success);

    QVERIFY(QFile::exists(inFolder("a/b/Zelvan.db-wal")));
    QVERIFY(QFile::exists(inFolder("a/b/Zelvan.db-shm")));
    QCOMPARE(open(folder()), QStringList());
    QVERIFY(QFile::exists(QSettings().fileName()));
    QCOMPARE(open(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)),
             QStringList());
}

void tst_PrivateFiles::aBackupIsPrivate_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("of a private store") << 0600;
    QTest::newRow("of one that others may read") << 0644;
}

void tst_PrivateFiles::aBackupIsPrivate()
{
    QFETCH(int, mode);
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    UnprivilegedUser::setMode(inFolder("Zelvan.db"), mode);
    m_app.setDatabasePath(inFolder("Zelvan.db"));
    QVERIFY(DatabaseManager::initialize(inFolder("Zelvan.db")));

    QVERIFY(m_service.backupDatabase());

    QVERIFY(!QDir(inFolder("backups")).isEmpty());
    QCOMPARE(open(folder()).filter("backup"), QStringList());
}

void tst_PrivateFiles::aReplacementIsPrivate()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "old");

    QVERIFY(m_service.replaceDatabase(inFolder("Zelvan.db")));

    QCOMPARE(open(folder()), QStringList());
}

void tst_PrivateFiles::aMovedStoreIsPrivate()
{
    DatabaseFiles::makeStore(inFolder("Zelvan.db"), "live");
    UnprivilegedUser::setMode(inFolder("Zelvan.db"), 0644);
    m_app.setDatabasePath(inFolder("Zelvan.db"));
    QVERIFY(DatabaseManager::initialize(inFolder("Zelvan.db")));

    QVERIFY(m_service.moveDatabase(inFolder("there")));

    QVERIFY(QFile::exists(inFolder("there/ZelvanPOS/data/Zelvan.db-wal")));
    QCOMPARE(open(folder()), QStringList());
}

void tst_PrivateFiles::aRestoredStoreIsPrivate()
{
    DatabaseFiles::makeStore(inFolder("old.db"), "old");
    UnprivilegedUser::setMode(inFolder("old.db"), 0644);
    m_app.setDatabasePath(inFolder("a/Zelvan.db"));
    QVERIFY(m_service.restoreDatabase(inFolder("old.db")));

    QVERIFY(DatabaseService::applyPendingRestore());

    QVERIFY(QFile::exists(inFolder("a/Zelvan.db")));
    QCOMPARE(open(folder()), QStringList("old.db"));
}

void tst_PrivateFiles::theLogIsPrivate()
{
    openLogFile();

    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QVERIFY(QDir(data + "/Zelvan/ZelvanPOS/logs").entryList({"*.log"}).size() == 1);
    QCOMPARE(open(data), QStringList());
}

void tst_PrivateFiles::whatWasThereKeepsItsRights()
{
    QVERIFY(QDir().mkpath(inFolder("there/backups")));
    UnprivilegedUser::setMode(inFolder("there"), 0755);
    UnprivilegedUser::setMode(inFolder("there/backups"), 0755);
    DatabaseFiles::makeStore(inFolder("there/Zelvan.db"), "live");
    UnprivilegedUser::setMode(inFolder("there/Zelvan.db"), 0640);
    m_app.setDatabasePath(inFolder("there/Zelvan.db"));
    QVERIFY(DatabaseManager::initialize(inFolder("there/Zelvan.db")));

    QVERIFY(m_service.backupDatabase());

    QStringList shared = open(folder());
    shared.sort();
    QCOMPARE(shared, QStringList({"there", "there/Zelvan.db", "there/Zelvan.db-shm",
                                  "there/Zelvan.db-wal", "there/backups"}));
}

ZELVAN_TEST(tst_PrivateFiles)
#include "tst_privatefiles.moc"
