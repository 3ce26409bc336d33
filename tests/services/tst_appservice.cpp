// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "services/AppService.h"
#include "services/SettingsKeys.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"

#include <QDir>
#include <QFile>
#include <QMetaEnum>
#include <QSettings>
#include <QSqlDatabase>

class tst_AppService : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void theStatesHaveTheirNumbers();
    void thePathIsKeptInTheSettingsStore();
    void anEmptyPathIsNoPath();
    void withoutAPathASetupIsNeeded();
    void aVanishedFileIsNotFound();
    void anUnopenableFileIsToldApart();
    void aFileWithoutTheIdentityIsToldApart_data();
    void aFileWithoutTheIdentityIsToldApart();
    void withoutAnActiveAdminOneIsNeeded_data();
    void withoutAnActiveAdminOneIsNeeded();
    void anActiveAdminMakesItReady();
    void aDatabaseWithoutUsersTableNeedsAnAdmin();
    void theStateIsLookedUpAfresh();
    void theWorkingConnectionIsLeftAlone();
    void aDialogsUrlBecomesALocalPath();
    void aDialogStartsInTheNearestFolder();

private:
    QString storeWith(const QString &usersSql);

    AppService m_app;
};

QString tst_AppService::storeWith(const QString &usersSql)
{
    const QString path = inFolder("Zelvan.db");
    DatabaseFiles::makeStore(path, "store");
    if (!usersSql.isEmpty()) {
        DatabaseFiles::run(path, usersSql);
    }
    m_app.setDatabasePath(path);
    return path;
}

void tst_AppService::theStatesHaveTheirNumbers()
{
    const auto states = QMetaEnum::fromType<AppService::AppState>();
    const char *const names[] = {"NeedsSetup",
                                 "FileNotFoundNeedsSetup",
                                 "UnableToOpenNeedsSetup",
                                 "NotZelvanDBNeedsSetup",
                                 "NeedsAdminSetup",
                                 "Ready"};

    QCOMPARE(states.keyCount(), int(std::size(names)));
    for (int number = 0; number < states.keyCount(); ++number) {
        QCOMPARE(QByteArray(states.valueToKey(number)), QByteArray(names[number]));
    }
}

void tst_AppService::thePathIsKeptInTheSettingsStore()
{
    QVERIFY(!m_app.hasDatabasePath());
    QCOMPARE(m_app.databasePath(), QString());

    m_app.setDatabasePath("/nowhere/to be checked.db");

    QVERIFY(m_app.hasDatabasePath());
    QCOMPARE(m_app.databasePath(), QStringLiteral("/nowhere/to be checked.db"));
    QCOMPARE(QSettings().value("database/path").toString(), m_app.databasePath());
    QCOMPARE(AppService().databasePath(), m_app.databasePath());
}

void tst_AppService::anEmptyPathIsNoPath()
{
    m_app.setDatabasePath("");

    QVERIFY(QSettings().contains("database/path"));
    QVERIFY(!m_app.hasDatabasePath());
    expectLog(QtInfoMsg, "No DB path configured");
    QCOMPARE(m_app.determineState(), AppService::NeedsSetup);
}

void tst_AppService::withoutAPathASetupIsNeeded()
{
    expectLog(QtInfoMsg, "No DB path configured");
    QCOMPARE(m_app.determineState(), AppService::NeedsSetup);
}

void tst_AppService::aVanishedFileIsNotFound()
{
    m_app.setDatabasePath(inFolder("gone.db"));

    expectLog(QtWarningMsg, "DB file not found");
    QCOMPARE(m_app.determineState(), AppService::FileNotFoundNeedsSetup);

    QVERIFY(!QFile::exists(inFolder("gone.db")));
}

void tst_AppService::anUnopenableFileIsToldApart()
{
    QDir().mkpath(inFolder("Zelvan.db"));
    m_app.setDatabasePath(inFolder("Zelvan.db"));

    expectLog(QtWarningMsg, "Failed to open database test connection:");
    expectLog(QtWarningMsg, "DB cannot be opened");
    QCOMPARE(m_app.determineState(), AppService::UnableToOpenNeedsSetup);
}

void tst_AppService::aFileWithoutTheIdentityIsToldApart_data()
{
    QTest::addColumn<QString>("kind");

    for (const char *kind : {"text", "empty", "foreign", "truncated"}) {
        QTest::newRow(kind) << kind;
    }
}

void tst_AppService::aFileWithoutTheIdentityIsToldApart()
{
    QFETCH(QString, kind);
    const QString path = inFolder("Zelvan.db");
    if (kind == QLatin1String("foreign")) {
        DatabaseFiles::makeForeign(path);
    } else if (kind == QLatin1String("truncated")) {
        DatabaseFiles::makeStore(path, "store");
        QVERIFY(QFile::resize(path, 5000));
    } else {
        DatabaseFiles::makeText(path);
        QVERIFY(kind == QLatin1String("text") || QFile::resize(path, 0));
    }
    m_app.setDatabasePath(path);

    expectLog(QtWarningMsg, "Failed to check database identity:");
    expectLog(QtWarningMsg, "DB is not a Zelvan DB");
    QCOMPARE(m_app.determineState(), AppService::NotZelvanDBNeedsSetup);
}

void tst_AppService::withoutAnActiveAdminOneIsNeeded_data()
{
    QTest::addColumn<QString>("usersSql");

    QTest::newRow("no user") << "";
    QTest::newRow("service staff only")
        << "INSERT INTO users (username, password, role) VALUES ('tom', 'x', 'service_staff')";
    QTest::newRow("deactivated admin")
        << "INSERT INTO users (username, password, role, deactivated_at) "
           "VALUES ('mei', 'x', 'admin', '2026-01-01 00:00:00')";
    QTest::newRow("deactivation stamp of an empty text")
        << "INSERT INTO users (username, password, role, deactivated_at) "
           "VALUES ('mei', 'x', 'admin', '')";
    QTest::newRow("another letter case")
        << "INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'Admin')";
}

void tst_AppService::withoutAnActiveAdminOneIsNeeded()
{
    QFETCH(QString, usersSql);
    storeWith(usersSql);

    expectLog(QtInfoMsg, "No admin user found");
    QCOMPARE(m_app.determineState(), AppService::NeedsAdminSetup);
}

void tst_AppService::anActiveAdminMakesItReady()
{
    storeWith("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");

    QCOMPARE(m_app.determineState(), AppService::Ready);
    QVERIFY(!QSqlDatabase::contains("check_users"));
}

void tst_AppService::aDatabaseWithoutUsersTableNeedsAnAdmin()
{
    storeWith("DROP TABLE users");

    expectLog(QtInfoMsg, "No admin user found");
    QCOMPARE(m_app.determineState(), AppService::NeedsAdminSetup);
}

void tst_AppService::theStateIsLookedUpAfresh()
{
    const QString path =
        storeWith("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    QCOMPARE(m_app.determineState(), AppService::Ready);

    DatabaseFiles::run(path, "UPDATE users SET role = 'kitchen_staff'");

    QCOMPARE(m_app.determineState(), AppService::NeedsAdminSetup);
}

void tst_AppService::theWorkingConnectionIsLeftAlone()
{
    const QString path =
        storeWith("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    QVERIFY(DatabaseManager::initialize(path));
    const QSqlDatabase working = DatabaseManager::connection();

    QCOMPARE(m_app.determineState(), AppService::Ready);

    QVERIFY(working.isOpen());
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList({DatabaseManager::mainConnectionName}));
    expectLog(QtWarningMsg, "QSqlDatabasePrivate::removeDatabase: connection 'main_connection'");
    DatabaseManager::closeDatabase();
}

void tst_AppService::aDialogsUrlBecomesALocalPath()
{
    QCOMPARE(m_app.localPath("/already/a path"), QStringLiteral("/already/a path"));
    QCOMPARE(m_app.localPath(""), QString());
#ifndef Q_OS_WIN
    QCOMPARE(m_app.localPath("file:///home/my%20data"), QStringLiteral("/home/my data"));
#endif
}

void tst_AppService::aDialogStartsInTheNearestFolder()
{
    const QString data = inFolder("ZelvanPOS/d\u00e9p\u00f4t #1 50%");
    QVERIFY(QDir().mkpath(data));
    DatabaseFiles::makeStore(data + "/Zelvan.db", "store");

    QCOMPARE(m_app.folderUrl(data).toLocalFile(), data);
    QCOMPARE(m_app.folderUrl(data + "/Zelvan.db").toLocalFile(), data);
    QCOMPARE(m_app.folderUrl(data + "/backups").toLocalFile(), data);
    QCOMPARE(m_app.folderUrl(data + "/gone/backups/").toLocalFile(), data);
    QCOMPARE(m_app.folderUrl(QDir::rootPath() + "nowhere/at/all").toLocalFile(), QDir::rootPath());
    QCOMPARE(m_app.folderUrl(""), QUrl());
}

ZELVAN_TEST(tst_AppService)
#include "tst_appservice.moc"
