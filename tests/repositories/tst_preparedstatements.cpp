// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/PreparedStatements.h"
#include "repositories/Statement.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QThread>

#include <memory>

namespace {
constexpr auto readSql = "SELECT value FROM app_state WHERE key = :key";
constexpr auto countSql = "SELECT COUNT(*) FROM app_state";
} // namespace

/// Statements stay prepared, and nothing else of them stays.
class tst_PreparedStatements : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_database.reset(); }

    void aFixedTextStaysPrepared();
    void aTextMadeForOneRunDoesNot();
    void aFailedOneDoesNot();
    void eachRunHasItsOwnValuesAndRows();
    void aStatementWithinOneOfTheSameTextStandsAlone();
    void aWaitingStatementBlocksNoCheckpoint();
    void anotherThreadUsesNone();
    void aConnectionOpenedAgainPreparesAnew();
    void aChangedTableIsSeen();

private:
    [[nodiscard]] bool isWaiting(const char *sql) const;
    [[nodiscard]] QString read(const QString &key) const;

    std::unique_ptr<TestDatabase> m_database;
};

void tst_PreparedStatements::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
}

bool tst_PreparedStatements::isWaiting(const char *sql) const
{
    return PreparedStatements::of(m_database->handle())->take(sql).has_value();
}

QString tst_PreparedStatements::read(const QString &key) const
{
    Statement statement(m_database->handle(), readSql, {"read failed:"});
    statement.bind(":key", key);
    return statement.run() && statement.next() ? statement.text(0) : QString();
}

void tst_PreparedStatements::aFixedTextStaysPrepared()
{
    QVERIFY(!isWaiting(readSql));

    QCOMPARE(read(QStringLiteral("receipt.counter")), QStringLiteral("0"));

    QVERIFY(isWaiting(readSql));
}

void tst_PreparedStatements::aTextMadeForOneRunDoesNot()
{
    {
        Statement statement(m_database->handle(), QString::fromLatin1(countSql), {nullptr});
        QVERIFY(statement.run());
    }

    QVERIFY(!isWaiting(countSql));
}

void tst_PreparedStatements::aFailedOneDoesNot()
{
    constexpr auto twiceSql = "INSERT INTO app_state (key) VALUES ('app.id')";
    {
        Statement statement(m_database->handle(), twiceSql, {nullptr});
        QVERIFY(!statement.run());
    }

    QVERIFY(!isWaiting(twiceSql));
}

void tst_PreparedStatements::eachRunHasItsOwnValuesAndRows()
{
    QCOMPARE(read(QStringLiteral("receipt.counter")), QStringLiteral("0"));
    QCOMPARE(read(QStringLiteral("app.id")), QStringLiteral("com.zelvan.pos"));
    QCOMPARE(read(QStringLiteral("no such key")), QString());
}

void tst_PreparedStatements::aStatementWithinOneOfTheSameTextStandsAlone()
{
    constexpr auto keysSql = "SELECT key FROM app_state ORDER BY key";
    Statement outer(m_database->handle(), keysSql, {nullptr});
    QVERIFY(outer.run() && outer.next());
    {
        Statement inner(m_database->handle(), keysSql, {nullptr});
        QVERIFY(inner.run() && inner.next() && inner.next());
    }

    QVERIFY(outer.next());
    QCOMPARE(outer.text(0), QStringLiteral("receipt.counter"));
}

void tst_PreparedStatements::aWaitingStatementBlocksNoCheckpoint()
{
    {
        // Left with rows to come.
        Statement statement(m_database->handle(), "SELECT key FROM app_state", {nullptr});
        QVERIFY(statement.run() && statement.next());
    }

    m_database->run(QStringLiteral("DELETE FROM app_state"));

    QCOMPARE(m_database->value(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")).toInt(), 0);
    m_database->run(QStringLiteral("PRAGMA journal_mode = DELETE"));
}

void tst_PreparedStatements::anotherThreadUsesNone()
{
    const QSqlDatabase handle = m_database->handle();
    QVERIFY(PreparedStatements::of(handle) != nullptr);

    PreparedStatements *seen = PreparedStatements::of(handle);
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { seen = PreparedStatements::of(handle); }));
    thread->start();
    thread->wait();

    QCOMPARE(seen, nullptr);
}

void tst_PreparedStatements::aConnectionOpenedAgainPreparesAnew()
{
    QCOMPARE(read(QStringLiteral("receipt.counter")), QStringLiteral("0"));

    QSqlDatabase handle = m_database->handle();
    handle.close();
    QCOMPARE(PreparedStatements::of(handle), nullptr);
    QVERIFY(handle.open());

    QCOMPARE(read(QStringLiteral("receipt.counter")), QStringLiteral("0"));
}

void tst_PreparedStatements::aChangedTableIsSeen()
{
    QCOMPARE(read(QStringLiteral("receipt.counter")), QStringLiteral("0"));

    m_database->run(QStringLiteral("DROP TABLE app_state"));

    expectLog(QtWarningMsg, QStringLiteral("read failed: QSqlError"));
    QCOMPARE(read(QStringLiteral("receipt.counter")), QString());
}

ZELVAN_TEST(tst_PreparedStatements)
#include "tst_preparedstatements.moc"
