// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/AdminCheck.h"
#include "core/DatabaseCheck.h"
#include "core/DatabaseManager.h"
#include "core/Migrations.h"
#include "core/Patience.h"
#include "core/SqliteHandle.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlQuery>

/// Files of unknown origin: what passes for a store, and how long one may keep the program waiting.
class tst_DatabaseCheck : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void init();

    void aStoreIsSound();
    void aStoreThatLacksLaterTablesIsSound();
    void tablesOfItsOwnDoNotSpoilAStore();
    void theTablesAreThoseOfTheSchema();
    void aDamagedPageIsFound_data();
    void aDamagedPageIsFound();
    void whatOnlyStandsForATableIsFound_data();
    void whatOnlyStandsForATableIsFound();
    void theIdentityMustBeATable_data();
    void theIdentityMustBeATable();
    void usersThatNeverEndAreNoAdmin();
    void aStatementWithoutEndIsEnded();
    void afterwardsStatementsTakeTheirTime();
    void theDriversConnectionsAreWithinReach();

private:
    QString m_path;
};

namespace {
constexpr qint64 noHangMs = 2000;
const QString endless = QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                                       "FROM n) SELECT i AS key, i AS value FROM n");
} // namespace

void tst_DatabaseCheck::init()
{
    DatabaseFileTest::init();
    m_path = inFolder("Zelvan.db");
    DatabaseFiles::makeStore(m_path, "store");
}

void tst_DatabaseCheck::aStoreIsSound()
{
    QVERIFY(DatabaseCheck::isSound(m_path));
}

void tst_DatabaseCheck::aStoreThatLacksLaterTablesIsSound()
{
    for (const char *table : {"receipt_snapshot", "reservations", "table_settings"}) {
        DatabaseFiles::run(m_path, QStringLiteral("DROP TABLE %1").arg(table));
    }

    QVERIFY(DatabaseCheck::isSound(m_path));
}

void tst_DatabaseCheck::tablesOfItsOwnDoNotSpoilAStore()
{
    DatabaseFiles::run(m_path, "CREATE TABLE notes (text TEXT)");
    DatabaseFiles::run(m_path, "CREATE VIEW names AS SELECT name FROM restaurant");
    DatabaseFiles::run(m_path, "CREATE INDEX by_name ON restaurant (name)");

    QVERIFY(DatabaseCheck::isSound(m_path));
}

void tst_DatabaseCheck::theTablesAreThoseOfTheSchema()
{
    QStringList tables = schemaTables();
    tables.sort();

    QCOMPARE(DatabaseFiles::value(m_path, "SELECT group_concat(name) FROM (SELECT name FROM "
                                          "sqlite_master WHERE type = 'table' AND name NOT LIKE "
                                          "'sqlite_%' ORDER BY name)")
                 .toString(),
             tables.join(','));
}

void tst_DatabaseCheck::aDamagedPageIsFound_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<bool>("isRandom");

    QTest::newRow("zeroed, of orders") << "orders" << false;
    QTest::newRow("random, of orders") << "orders" << true;
    QTest::newRow("zeroed, of an index") << "sqlite_autoindex_app_state_1" << false;
    QTest::newRow("random, of members") << "memberships" << true;
}

void tst_DatabaseCheck::aDamagedPageIsFound()
{
    QFETCH(QString, table);
    QFETCH(bool, isRandom);
    QByteArray page(DatabaseFiles::value(m_path, "PRAGMA page_size").toInt(), '\0');
    if (isRandom) {
        QRandomGenerator random(17);
        random.generate(page.begin(), page.end());
    }
    DatabaseFiles::damage(m_path, table, page);

    expectLog(QtWarningMsg, "Failed to check database structure:");
    QVERIFY(!DatabaseCheck::isSound(m_path));
}

void tst_DatabaseCheck::whatOnlyStandsForATableIsFound_data()
{
    QTest::addColumn<QString>("drop");
    QTest::addColumn<QString>("create");

    QTest::newRow("a view") << "orders"
                            << "CREATE VIEW orders AS SELECT 1 AS id";
    QTest::newRow("in capitals") << "orders"
                                 << "CREATE VIEW ORDERS AS SELECT 1 AS id";
    QTest::newRow("a view without end") << "restaurant"
                                        << "CREATE VIEW restaurant AS " + endless;
    QTest::newRow("a virtual table") << "orders"
                                     << "CREATE VIRTUAL TABLE orders USING fts5(id)";
    QTest::newRow("a trigger") << ""
                               << "CREATE TRIGGER t AFTER INSERT ON orders BEGIN "
                                  "DELETE FROM users; END";
}

void tst_DatabaseCheck::whatOnlyStandsForATableIsFound()
{
    QFETCH(QString, drop);
    QFETCH(QString, create);
    if (!drop.isEmpty()) {
        DatabaseFiles::run(m_path, "DROP TABLE " + drop);
    }
    DatabaseFiles::run(m_path, create);
    QElapsedTimer time;
    time.start();

    expectLog(QtWarningMsg, "Failed to check database structure:");
    QVERIFY(!DatabaseCheck::isSound(m_path));

    QVERIFY(time.elapsed() < noHangMs);
}

void tst_DatabaseCheck::theIdentityMustBeATable_data()
{
    QTest::addColumn<QString>("create");

    QTest::newRow("a view that says so")
        << "CREATE VIEW app_state AS SELECT 'app.id' AS key, 'com.zelvan.pos' AS value";
    QTest::newRow("a view without end") << "CREATE VIEW app_state AS " + endless;
    QTest::newRow("in capitals") << "CREATE VIEW APP_STATE AS " + endless;
    QTest::newRow("a virtual table") << "CREATE VIRTUAL TABLE app_state USING fts5(key, value)";
}

void tst_DatabaseCheck::theIdentityMustBeATable()
{
    QFETCH(QString, create);
    DatabaseFiles::run(m_path, "DROP TABLE app_state");
    DatabaseFiles::run(m_path, create);
    QElapsedTimer time;
    time.start();

    expectLog(QtWarningMsg, "Failed to check database identity:");
    QVERIFY(!DatabaseManager::isZelvanDatabase(m_path));

    QVERIFY(time.elapsed() < noHangMs);
}

void tst_DatabaseCheck::usersThatNeverEndAreNoAdmin()
{
    DatabaseFiles::run(m_path, "DROP TABLE users");
    DatabaseFiles::run(m_path, "CREATE VIEW users AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL "
                               "SELECT i + 1 FROM n) SELECT 'none' AS role, NULL AS "
                               "deactivated_at FROM n");

    QVERIFY(!AdminCheck::hasActiveAdmin(m_path));
}

void tst_DatabaseCheck::aStatementWithoutEndIsEnded()
{
    QVERIFY(DatabaseManager::openExisting(m_path));
    QElapsedTimer time;
    time.start();
    {
        const Patience patience(DatabaseManager::connection(), std::chrono::milliseconds(100));
        QSqlQuery query(DatabaseManager::connection());

        QVERIFY(!query.exec("SELECT max(key) FROM (" + endless + ")"));
    }

    QVERIFY(time.elapsed() >= 100 && time.elapsed() < noHangMs);
}

void tst_DatabaseCheck::afterwardsStatementsTakeTheirTime()
{
    QVERIFY(DatabaseManager::openExisting(m_path));
    {
        const Patience patience(DatabaseManager::connection(), std::chrono::milliseconds(0));
    }
    QSqlQuery query(DatabaseManager::connection());

    QVERIFY(query.exec("SELECT max(key) FROM (" + endless + " LIMIT 1000000)"));
}

void tst_DatabaseCheck::theDriversConnectionsAreWithinReach()
{
    QVERIFY(DatabaseManager::openExisting(m_path));

    QVERIFY(sqliteHandle(DatabaseManager::connection()) != nullptr);
}

ZELVAN_TEST(tst_DatabaseCheck)
#include "tst_databasecheck.moc"
