// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "support/DatabaseFiles.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QFile>
#include <QSqlQuery>
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

/// Another program in the middle of reading the file.
class ForeignReader final
{
public:
    explicit ForeignReader(const QString &path)
    {
        m_handle = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        m_handle.setDatabaseName(path);
        m_handle.open();
        QSqlQuery query(m_handle);
        query.exec(QStringLiteral("BEGIN"));
        query.exec(QStringLiteral("SELECT COUNT(*) FROM users"));
    }
    ~ForeignReader()
    {
        m_handle.close();
        m_handle = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY_MOVE(ForeignReader)

private:
    QString m_name = QStringLiteral("foreign reader");
    QSqlDatabase m_handle;
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
    void aRefusedCommitLeavesNothingOpen();
    void anotherReaderRefusesTheCommitOnce();
    void abandoningEndsWhateverIsOpen();
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

void tst_DatabaseTransactions::aRefusedCommitLeavesNothingOpen()
{
    const TestDatabase db;
    // A broken reference that SQLite looks at no sooner than at the commit.
    db.run(QStringLiteral("CREATE TABLE late (id INTEGER REFERENCES tables(id) "
                          "DEFERRABLE INITIALLY DEFERRED)"));
    QVERIFY(DatabaseManager::beginTransaction());
    db.run(QStringLiteral("INSERT INTO late (id) VALUES (99)"));

    QCOMPARE(logOf([] { QVERIFY(!DatabaseManager::commitTransaction()); }),
             QStringLiteral("warning [database] Failed to commit transaction: <error text>"));

    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM late")).toInt(), 0);
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::commitTransaction());
}

void tst_DatabaseTransactions::anotherReaderRefusesTheCommitOnce()
{
    const TestDatabase db;
    const QString insert = QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')");
    db.run(QStringLiteral("PRAGMA journal_mode = DELETE"));
    db.run(QStringLiteral("PRAGMA busy_timeout = 10"));
    {
        const ForeignReader reader(db.path());
        QVERIFY(DatabaseManager::beginTransaction());
        db.run(insert);
        QCOMPARE(logOf([] { QVERIFY(!DatabaseManager::commitTransaction()); }),
                 QStringLiteral("warning [database] Failed to commit transaction: <error text>"));
    }

    QVERIFY(DatabaseManager::beginTransaction());
    db.run(insert);
    QVERIFY(DatabaseManager::commitTransaction());

    QCOMPARE(DatabaseFiles::value(db.path(), QStringLiteral("SELECT COUNT(*) FROM categories")),
             QVariant(1));
}

void tst_DatabaseTransactions::abandoningEndsWhateverIsOpen()
{
    DatabaseManager::abandonTransaction();
    const TestDatabase db;
    DatabaseManager::abandonTransaction();
    QVERIFY(db.handle().transaction());
    db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')"));

    QCOMPARE(logOf([] { DatabaseManager::abandonTransaction(); }), QString());

    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM categories")).toInt(), 0);
    QVERIFY(DatabaseManager::beginTransaction());
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
