// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseSeeder.h"

#include "core/DatabaseManager.h"
#include "repositories/RegionalSettingsRepository.h"
#include "support/ChildProcess.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>

#include <cstdio>

namespace {
/// Seeds the regional row of a new file and prints what was stored.
int seedRegion(const QStringList &arguments)
{
    int result = 1;
    if (DatabaseManager::initialize(arguments.at(0))) {
        RegionalSettingsRepository regional(DatabaseManager::connection());
        DatabaseSeeder::seedRegionalSettings(regional);
        if (const std::optional<RegionalSettings> stored = regional.fetch()) {
            std::printf("%d|%s|%s", stored->id, qPrintable(stored->locale),
                        qPrintable(stored->currency_code));
            result = 0;
        }
    }
    return result;
}

ZELVAN_TEST_CHILD(seedRegion)

/// Every row of a table as "column=value" texts, time stamps left out.
QStringList rowsOf(const TestDatabase &db, const QString &table)
{
    QStringList rows;
    QSqlQuery query(QStringLiteral("SELECT * FROM %1 ORDER BY 1").arg(table), db.handle());
    while (query.next()) {
        QStringList fields;
        for (int column = 0; column < query.record().count(); ++column) {
            const QString name = query.record().fieldName(column);
            if (!name.endsWith(QStringLiteral("_at"))) {
                fields.append(name + QLatin1Char('=') + query.value(column).toString());
            }
        }
        rows.append(fields.join(QLatin1Char(' ')));
    }
    return rows;
}

int settingsRows(const TestDatabase &db)
{
    return db
        .value(QStringLiteral("SELECT (SELECT COUNT(*) FROM tax_settings) + "
                              "(SELECT COUNT(*) FROM membership_settings) + "
                              "(SELECT COUNT(*) FROM table_settings)"))
        .toInt();
}

struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    DatabaseSeeder seeder{db.handle()};
};
} // namespace

class tst_DatabaseSeeder : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aNewFileGetsItsIdentityCountersAndSettings();
    void nothingElseIsSeeded();
    void seedingTwiceChangesNothing();
    void theYearIsTheLocalYearOfTheSetup_data();
    void theYearIsTheLocalYearOfTheSetup();
    void withoutAStateTableNoSettingsAreSeeded();
    void rowsBeforeAFailureStay();
    void aRunningTransactionStopsTheSettingsWithoutARollback();
    void aMissingSettingsTableUndoesTheOthers_data();
    void aMissingSettingsTableUndoesTheOthers();
    void aFailingCommitUndoesTheSettings();
    void theRegionIsThatOfTheSystem_data();
    void theRegionIsThatOfTheSystem();
    void aStoredRegionIsLeftAlone();
    void aRegionThatCannotBeStoredIsOnlyLogged();
};

void tst_DatabaseSeeder::aNewFileGetsItsIdentityCountersAndSettings()
{
    Fixture f;

    QVERIFY(f.seeder.seedAll());

    const QString year = QString::number(QDate::currentDate().year());
    QCOMPARE(rowsOf(f.db, QStringLiteral("app_state")),
             (QStringList{QStringLiteral("key=app.id value=com.zelvan.pos"),
                          QStringLiteral("key=receipt.counter value=0"),
                          QStringLiteral("key=receipt.year value=") + year}));
    QCOMPARE(rowsOf(f.db, QStringLiteral("tax_settings")),
             QStringList{QStringLiteral("id=1 enabled=0 rate=100 name= registration_number=")});
    QCOMPARE(rowsOf(f.db, QStringLiteral("membership_settings")),
             QStringList{QStringLiteral("id=1 enabled=0 earn_points=1 earn_spend=1000 "
                                        "redeem_points=100 redeem_value=100 earn_on=total")});
    QCOMPARE(rowsOf(f.db, QStringLiteral("kitchen_settings")),
             QStringList{QStringLiteral("id=1 mode=none ticket_print_timing=manual "
                                        "require_ready_for_checkout=0 allow_edit_after_send=0")});
    QCOMPARE(rowsOf(f.db, QStringLiteral("table_settings")),
             QStringList{QStringLiteral("id=1 layout_mode=simple")});
    QVERIFY(DatabaseManager::isZelvanDatabase(f.db.path()));
}

void tst_DatabaseSeeder::nothingElseIsSeeded()
{
    Fixture f;

    QVERIFY(f.seeder.seedAll());

    for (const char *table : {"users", "restaurant", "printers", "categories", "menu", "tables",
                              "floors", "regional_settings"}) {
        QVERIFY2(rowsOf(f.db, QLatin1String(table)).isEmpty(), table);
    }
}

void tst_DatabaseSeeder::seedingTwiceChangesNothing()
{
    Fixture f;
    QVERIFY(f.seeder.seedAll());
    f.db.run(QStringLiteral("UPDATE app_state SET value = '17' WHERE key = 'receipt.counter'"));
    f.db.run(QStringLiteral("UPDATE tax_settings SET rate = 825"));

    QVERIFY(f.seeder.seedAll());

    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM app_state")).toInt(), 3);
    QCOMPARE(f.db.value(QStringLiteral("SELECT value FROM app_state WHERE key = 'receipt.counter'"))
                 .toString(),
             QStringLiteral("17"));
    QCOMPARE(f.db.value(QStringLiteral("SELECT rate FROM tax_settings")).toInt(), 825);
}

void tst_DatabaseSeeder::theYearIsTheLocalYearOfTheSetup_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("localTime");
    QTest::addColumn<QString>("year");

    QTest::newRow("east, new year") << "Asia/Tokyo"
                                    << "2027-01-01 00:30:00"
                                    << "2027";
    QTest::newRow("west, old year") << "America/New_York"
                                    << "2026-12-31 23:30:00"
                                    << "2026";
}

void tst_DatabaseSeeder::theYearIsTheLocalYearOfTheSetup()
{
    QFETCH(QString, zone);
    QFETCH(QString, localTime);
    QFETCH(QString, year);
    if (movedTo(localTime, zone)) {
        return;
    }
    Fixture f;

    QVERIFY(f.seeder.seedAppState());

    QCOMPARE(f.db.value(QStringLiteral("SELECT value FROM app_state WHERE key = 'receipt.year'"))
                 .toString(),
             year);
}

void tst_DatabaseSeeder::withoutAStateTableNoSettingsAreSeeded()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE app_state"));

    QCOMPARE(logOf([&] { QVERIFY(!f.seeder.seedAll()); }),
             QStringLiteral("warning [seeder] Failed to seed app state: <QSqlError>"));

    QCOMPARE(settingsRows(f.db), 0);
}

void tst_DatabaseSeeder::rowsBeforeAFailureStay()
{
    Fixture f;
    f.db.run(QStringLiteral("CREATE TRIGGER stop BEFORE INSERT ON app_state WHEN new.key = "
                            "'receipt.year' BEGIN SELECT RAISE(ABORT, 'not now'); END"));

    QCOMPARE(logOf([&] { QVERIFY(!f.seeder.seedAll()); }),
             QStringLiteral("warning [seeder] Failed to seed app state: <QSqlError>"));

    QCOMPARE(rowsOf(f.db, QStringLiteral("app_state")),
             (QStringList{QStringLiteral("key=app.id value=com.zelvan.pos"),
                          QStringLiteral("key=receipt.counter value=0")}));
}

void tst_DatabaseSeeder::aRunningTransactionStopsTheSettingsWithoutARollback()
{
    Fixture f;
    QVERIFY(DatabaseManager::beginTransaction());

    QCOMPARE(logOf([&] { QVERIFY(!f.seeder.seedSettings()); }),
             QStringLiteral("warning [seeder] Failed to start seed transaction: <QSqlError>"));

    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_DatabaseSeeder::aMissingSettingsTableUndoesTheOthers_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("tax_settings") << "Failed to seed tax settings:";
    QTest::newRow("membership_settings") << "Failed to seed membership settings:";
    QTest::newRow("kitchen_settings") << "Failed to seed kitchen settings:";
    QTest::newRow("table_settings") << "Failed to seed table settings:";
}

void tst_DatabaseSeeder::aMissingSettingsTableUndoesTheOthers()
{
    QFETCH(QString, text);
    Fixture f;
    f.db.run(QStringLiteral("CREATE TRIGGER stop BEFORE INSERT ON %1 "
                            "BEGIN SELECT RAISE(ABORT, 'not now'); END")
                 .arg(QLatin1String(QTest::currentDataTag())));

    QCOMPARE(logOf([&] { QVERIFY(!f.seeder.seedAll()); }),
             QStringLiteral("warning [seeder] %1 <QSqlError>").arg(text));

    QCOMPARE(settingsRows(f.db), 0);
    QVERIFY(rowsOf(f.db, QStringLiteral("kitchen_settings")).isEmpty());
    // The identity came first, so the file counts as one of this program.
    QVERIFY(DatabaseManager::isZelvanDatabase(f.db.path()));
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_DatabaseSeeder::aFailingCommitUndoesTheSettings()
{
    Fixture f;
    f.db.run(
        QStringLiteral("CREATE TABLE pledges (id INTEGER PRIMARY KEY, other INTEGER REFERENCES "
                       "pledges(id) DEFERRABLE INITIALLY DEFERRED)"));
    f.db.run(QStringLiteral("CREATE TRIGGER pledge AFTER INSERT ON table_settings "
                            "BEGIN INSERT INTO pledges (other) VALUES (4711); END"));

    QCOMPARE(logOf([&] { QVERIFY(!f.seeder.seedSettings()); }),
             QStringLiteral("warning [seeder] Failed to commit settings seed: <QSqlError>"));

    QCOMPARE(settingsRows(f.db), 0);
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_DatabaseSeeder::theRegionIsThatOfTheSystem_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("stored");

    QTest::newRow("Malaysia") << "ms_MY.UTF-8" << QByteArray("1|ms_MY|MYR");
    QTest::newRow("China") << "zh_CN.UTF-8" << QByteArray("1|zh_CN|CNY");
    QTest::newRow("United States") << "en_US.UTF-8" << QByteArray("1|en_US|USD");
    QTest::newRow("France") << "fr_FR.UTF-8" << QByteArray("1|fr_FR|EUR");
    QTest::newRow("Germany") << "de_DE.UTF-8" << QByteArray("1|de_DE|EUR");
    QTest::newRow("Japan") << "ja_JP.UTF-8" << QByteArray("1|ja_JP|JPY");
    // No country and so no currency: the text is empty, which the column accepts.
    QTest::newRow("none") << "C.UTF-8" << QByteArray("1|C|");
}

void tst_DatabaseSeeder::theRegionIsThatOfTheSystem()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, stored);
    const QTemporaryDir folder;
    ChildProcess child(QStringLiteral("seedRegion"), {folder.filePath(QStringLiteral("a.db"))});
    child.setEnvironment(QStringLiteral("LC_ALL"), language);

    const ChildProcess::Result result = child.run();

    QVERIFY2(result.exitCode == 0, result.errors.constData());
    QCOMPARE(result.output, stored);
}

void tst_DatabaseSeeder::aStoredRegionIsLeftAlone()
{
    Fixture f;
    RegionalSettingsRepository regional(f.db.handle());
    f.db.run(QStringLiteral("INSERT INTO regional_settings (id, locale, currency_code) "
                            "VALUES (1, 'xx_YY', 'ABC')"));

    DatabaseSeeder::seedRegionalSettings(regional);

    QCOMPARE(regional.fetch()->locale, QStringLiteral("xx_YY"));
    QCOMPARE(regional.fetch()->currency_code, QStringLiteral("ABC"));
}

void tst_DatabaseSeeder::aRegionThatCannotBeStoredIsOnlyLogged()
{
    Fixture f;
    RegionalSettingsRepository regional(f.db.handle());
    f.db.run(QStringLiteral("CREATE TRIGGER stop BEFORE INSERT ON regional_settings "
                            "BEGIN SELECT RAISE(ABORT, 'not now'); END"));

    QCOMPARE(logOf([&] { DatabaseSeeder::seedRegionalSettings(regional); }),
             QStringLiteral("warning [database] Failed to save regional setting: <error text>"));
    QCOMPARE(DatabaseSeeder::detectRegionalDefaults().id, -1);
}

ZELVAN_TEST(tst_DatabaseSeeder)
#include "tst_databaseseeder.moc"
