// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "support/DatabaseFiles.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QFile>
#include <QTemporaryDir>

namespace {
/// `main_connection` is registered under its name but never opened.
class ClosedConnection final
{
public:
    ClosedConnection()
    {
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), DatabaseManager::mainConnectionName);
    }
    ~ClosedConnection() { QSqlDatabase::removeDatabase(DatabaseManager::mainConnectionName); }
    Q_DISABLE_COPY_MOVE(ClosedConnection)
};
} // namespace

/// Transactions, and the checkpoint that makes the one file whole.
class tst_DatabaseTransactions : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCheckpointFoldsEverythingIntoTheOneFile();
    void aCheckpointNeedsAnOpenConnection();
    void aCheckpointInsideATransactionFails();
    void transactionsCommitAndRollBack();
    void transactionStepsTellWhatIsMissing_data();
    void transactionStepsTellWhatIsMissing();
};

void tst_DatabaseTransactions::aCheckpointFoldsEverythingIntoTheOneFile()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy.db"));
    const TestDatabase db;
    db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')"));

    QVERIFY(DatabaseManager::checkpointWal());

    QVERIFY(QFile::copy(db.path(), copy));
    QCOMPARE(
        DatabaseFiles::value(copy, QStringLiteral("SELECT category FROM categories")).toString(),
        QStringLiteral("Soups"));
}

void tst_DatabaseTransactions::aCheckpointNeedsAnOpenConnection()
{
    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::checkpointWal()); }), QString());

    const ClosedConnection closed;

    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::checkpointWal()); }), QString());
}

void tst_DatabaseTransactions::aCheckpointInsideATransactionFails()
{
    const TestDatabase db;
    QVERIFY(DatabaseManager::beginTransaction());
    db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')"));

    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::checkpointWal()); }),
             QStringLiteral("warning [database] Failed to checkpoint WAL: <error text>"));

    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_DatabaseTransactions::transactionsCommitAndRollBack()
{
    const TestDatabase db;
    const QString insert = QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')");

    QVERIFY(DatabaseManager::beginTransaction());
    db.run(insert);
    QVERIFY(DatabaseManager::commitTransaction());
    QVERIFY(DatabaseManager::beginTransaction());
    db.run(insert);
    QVERIFY(DatabaseManager::rollbackTransaction());

    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM categories")).toInt(), 1);
}

void tst_DatabaseTransactions::transactionStepsTellWhatIsMissing_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("closed");
    QTest::addColumn<QString>("failed");

    QTest::newRow("begin") << 0 << "Cannot begin transaction: database connection does not exist."
                           << "Cannot begin transaction: database is not open."
                           << "Failed to begin transaction: <error text>";
    QTest::newRow("commit") << 1 << "Cannot commit: database connection does not exist."
                            << "Cannot commit: database is not open."
                            << "Failed to commit transaction: <error text>";
    QTest::newRow("rollback") << 2 << "Cannot rollback: database connection does not exist."
                              << "Cannot rollback: database is not open."
                              << "Failed to rollback transaction: <error text>";
}

void tst_DatabaseTransactions::transactionStepsTellWhatIsMissing()
{
    QFETCH(int, step);
    QFETCH(QString, missing);
    QFETCH(QString, closed);
    QFETCH(QString, failed);
    bool (*const steps[])() = {DatabaseManager::beginTransaction,
                               DatabaseManager::commitTransaction,
                               DatabaseManager::rollbackTransaction};
    const auto told = [&] { return logOf([&] { QVERIFY(!steps[step]()); }); };
    const QString start = QStringLiteral("warning [database] ");

    QCOMPARE(told(), start + missing);
    {
        const ClosedConnection connection;
        QCOMPARE(told(), start + closed);
    }
    const TestDatabase db;
    if (step == 0) {
        // No transaction begins inside another.
        QVERIFY(DatabaseManager::beginTransaction());
    }
    QCOMPARE(told(), start + failed);
}

ZELVAN_TEST(tst_DatabaseTransactions)
#include "tst_databasetransactions.moc"
