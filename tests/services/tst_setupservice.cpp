// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "services/AppService.h"
#include "services/SetupService.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/FileSizeLimit.h"
#include "support/FullSettingsDisk.h"
#include "support/LogHook.h"

#include <QDate>
#include <QFile>
#include <QMetaEnum>
#include <QSqlQuery>

class tst_SetupService : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void theResultsHaveTheirNumbers();
    void aNewDatabaseIsMigratedSeededAndConfigured();
    void itsFolderIsMade_data();
    void itsFolderIsMade();
    void theRegionalRowIsWritten();
    void theNextStartNeedsAnAdminAndMigratesNothing();
    void anEmptyPathIsRefused();
    void anExistingFileIsLeftUntouched();
    void aPathThatCannotBeOpenedFails();
    void aHalfBuiltFileIsDeleted();
    void aHalfSeededFileStaysAndIsNotConfigured();
    void aPathThatCannotBeSavedFails();
    void aRestartLetsGoOfTheDatabase();

private:
    AppService m_app;
    DatabaseManager m_databases;
    SetupService m_setup{&m_app, &m_databases};
};

void tst_SetupService::theResultsHaveTheirNumbers()
{
    const auto results = QMetaEnum::fromType<SetupService::SetupResult>();
    const char *const names[] = {"Success", "DatabaseExists", "InvalidPath",
                                 "InitializationFailed"};

    QCOMPARE(results.keyCount(), int(std::size(names)));
    for (int number = 0; number < results.keyCount(); ++number) {
        QCOMPARE(QByteArray(results.valueToKey(number)), QByteArray(names[number]));
    }
}

void tst_SetupService::aNewDatabaseIsMigratedSeededAndConfigured()
{
    const QString path = inFolder("Zelvan.db");

    expectLog(QtInfoMsg, "Starting app initialization...");
    expectLog(QtInfoMsg, "App initialization completed successfully.");
    QCOMPARE(m_setup.initializeApp(path), SetupService::Success);

    QCOMPARE(m_app.databasePath(), path);
    QCOMPARE(DatabaseManager::connection().databaseName(), path);
    QVERIFY(DatabaseManager::isZelvanDatabase(path));
    QCOMPARE(DatabaseFiles::value(path, "SELECT group_concat(key || '=' || value, ';') FROM "
                                        "(SELECT * FROM app_state ORDER BY key)")
                 .toString(),
             QStringLiteral("app.id=com.zelvan.pos;receipt.counter=0;receipt.year=%1")
                 .arg(QDate::currentDate().year()));
    for (const char *table :
         {"tax_settings", "membership_settings", "kitchen_settings", "table_settings"}) {
        const QString sql = QStringLiteral("SELECT COUNT(*) FROM %1 WHERE id = 1").arg(table);
        QCOMPARE(DatabaseFiles::value(path, sql), QVariant(1));
    }
    for (const char *table : {"users", "restaurant", "printers", "categories", "menu", "tables"}) {
        const QString sql = QStringLiteral("SELECT COUNT(*) FROM %1").arg(table);
        QCOMPARE(DatabaseFiles::value(path, sql), QVariant(0));
    }
}

void tst_SetupService::itsFolderIsMade_data()
{
    QTest::addColumn<QString>("folder");

    QTest::newRow("plain") << "ZelvanPOS/data";
    QTest::newRow("apostrophe") << "Alice's/data";
    QTest::newRow("blank, hash and percent") << "my data/a#b/100%20";
    QTest::newRow("Chinese") << QString::fromUtf8("餐厅/数据");
}

void tst_SetupService::itsFolderIsMade()
{
    QFETCH(QString, folder);
    const QString path = inFolder(folder + "/Zelvan.db");

    QCOMPARE(m_setup.initializeApp(path), SetupService::Success);

    QVERIFY(DatabaseManager::isZelvanDatabase(path));
}

void tst_SetupService::theRegionalRowIsWritten()
{
    const QString path = inFolder("Zelvan.db");

    QCOMPARE(m_setup.initializeApp(path), SetupService::Success);

    QCOMPARE(DatabaseFiles::value(path, "SELECT id FROM regional_settings"), QVariant(1));
    QCOMPARE(DatabaseFiles::value(path, "SELECT locale FROM regional_settings").toString(),
             QLocale::system().name());
}

void tst_SetupService::theNextStartNeedsAnAdminAndMigratesNothing()
{
    const QString path = inFolder("Zelvan.db");
    QCOMPARE(m_setup.initializeApp(path), SetupService::Success);
    DatabaseManager::closeDatabase();
    int migrations = 0;
    const LogHook count("Migration applied:", [&migrations] { ++migrations; });

    QCOMPARE(m_app.determineState(), AppService::NeedsAdminSetup);
    QVERIFY(DatabaseManager::initialize(path));

    QCOMPARE(migrations, 0);
}

void tst_SetupService::anEmptyPathIsRefused()
{
    expectLog(QtInfoMsg, "Invalid setup input.");
    QCOMPARE(m_setup.initializeApp(QString()), SetupService::InvalidPath);

    QVERIFY(!m_app.hasDatabasePath());
}

void tst_SetupService::anExistingFileIsLeftUntouched()
{
    DatabaseFiles::makeText(inFolder("Zelvan.db"));

    expectLog(QtInfoMsg, "Existing database found.");
    QCOMPARE(m_setup.initializeApp(inFolder("Zelvan.db")), SetupService::DatabaseExists);

    QFile file(inFolder("Zelvan.db"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("this is no database\n"));
    QVERIFY(!QSqlDatabase::contains(DatabaseManager::mainConnectionName));
    QVERIFY(!m_app.hasDatabasePath());
}

void tst_SetupService::aPathThatCannotBeOpenedFails()
{
    DatabaseFiles::makeText(inFolder("a file"));

    expectLog(QtCriticalMsg, "Cannot open database:");
    expectLog(QtCriticalMsg, "Database initialization failed.");
    QCOMPARE(m_setup.initializeApp(inFolder("a file/Zelvan.db")),
             SetupService::InitializationFailed);

    QVERIFY(!m_app.hasDatabasePath());
}

void tst_SetupService::aHalfBuiltFileIsDeleted()
{
    constexpr qint64 limit = 64 * 1024;

    expectLog(QtCriticalMsg, "Failed to commit transaction:");
    expectLog(QtCriticalMsg, "Database initialization failed.");
    {
        const FileSizeLimit fullDisk(limit);
        QCOMPARE(m_setup.initializeApp(inFolder("Zelvan.db")), SetupService::InitializationFailed);
    }

    QVERIFY(!QFile::exists(inFolder("Zelvan.db")));
    QVERIFY(!m_app.hasDatabasePath());
}

void tst_SetupService::aHalfSeededFileStaysAndIsNotConfigured()
{
    const QString path = inFolder("Zelvan.db");
    const QString lastScript = "Migration applied: \"core/database/migrations/021";
    const LogHook refuseSettings(lastScript, [] {
        QSqlQuery(DatabaseManager::connection())
            .exec("CREATE TRIGGER refuse BEFORE INSERT ON kitchen_settings "
                  "BEGIN SELECT RAISE(ABORT, 'refused'); END");
    });

    expectLog(QtWarningMsg, "Failed to seed kitchen settings:");
    expectLog(QtCriticalMsg, "Database seeding failed.");
    QCOMPARE(m_setup.initializeApp(path), SetupService::InitializationFailed);

    QVERIFY(DatabaseManager::isZelvanDatabase(path));
    QCOMPARE(DatabaseFiles::value(path, "SELECT COUNT(*) FROM tax_settings"), QVariant(0));
    QVERIFY(!m_app.hasDatabasePath());
}

void tst_SetupService::aPathThatCannotBeSavedFails()
{
    const QString path = inFolder("Zelvan.db");

    expectLog(QtCriticalMsg, "Failed to save the database path.");
    {
        const FullSettingsDisk full;
        QCOMPARE(m_setup.initializeApp(path), SetupService::InitializationFailed);
        QVERIFY(!FullSettingsDisk::stored().contains("database"));
    }

    QVERIFY(!m_app.hasDatabasePath());
    QVERIFY(DatabaseManager::isZelvanDatabase(path));
}

void tst_SetupService::aRestartLetsGoOfTheDatabase()
{
    const QString path = inFolder("Zelvan.db");
    QCOMPARE(m_setup.initializeApp(path), SetupService::Success);
    // What every repository has.
    const QSqlDatabase handle = DatabaseManager::connection();
    QVERIFY(QFile::exists(path + "-wal"));

    m_setup.restartApp();

    QVERIFY(!handle.isOpen());
    QVERIFY(!QFile::exists(path + "-wal"));
    QVERIFY(QFile::remove(path));
}

ZELVAN_TEST(tst_SetupService)
#include "tst_setupservice.moc"
