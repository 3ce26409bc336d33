// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/Statement.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
/// The last of these numbers has no positive twin, so the reading ends there with an error.
constexpr auto brokenSql =
    "SELECT abs(n) FROM (SELECT 1 AS n UNION ALL SELECT 2 UNION ALL SELECT -9223372036854775808)";
constexpr auto wholeSql = "SELECT abs(n) FROM (SELECT 1 AS n UNION ALL SELECT -2)";
} // namespace

class tst_Statement : public ZelvanTest
{
    Q_OBJECT

private slots:
    void everyRowIsRead();
    void aReadingThatBreaksOffIsEmptyAndLogged();
    void aReadingThatFindsNothingIsNoFailure();

private:
    static QList<int> read(const TestDatabase &database, const char *sql);
};

QList<int> tst_Statement::read(const TestDatabase &database, const char *sql)
{
    Statement statement(database.handle(), sql, {"read failed:"});
    return statement.rows([](const Statement &row) { return row.integer(0); });
}

void tst_Statement::everyRowIsRead()
{
    const TestDatabase database;

    QCOMPARE(read(database, wholeSql), QList<int>({1, 2}));
    QCOMPARE(read(database, wholeSql), QList<int>({1, 2}));
}

void tst_Statement::aReadingThatBreaksOffIsEmptyAndLogged()
{
    const TestDatabase database;
    const LogCapture log;

    QCOMPARE(read(database, brokenSql), QList<int>());

    QCOMPARE(log.lines(), QStringList{"warning [database] read failed: <QSqlError>"});
}

void tst_Statement::aReadingThatFindsNothingIsNoFailure()
{
    const TestDatabase database;

    QCOMPARE(read(database, "SELECT value FROM app_state WHERE key = 'none'"), QList<int>());
}

ZELVAN_TEST(tst_Statement)
#include "tst_statement.moc"
