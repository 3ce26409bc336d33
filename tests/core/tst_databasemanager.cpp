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
QString fileWith(const QTemporaryDir &folder, const QByteArray &content)
{
    const QString path = folder.filePath(QStringLiteral("a.db"));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path
                                                                                    : QString();
}

QVariant valueOf(const QString &sql)
{
    QSqlQuery query(sql, DatabaseManager::connection());
    return query.next() ? query.value(0) : QVariant();
}

const QString identityTable =
    QStringLiteral("CREATE TABLE app_state (key TEXT PRIMARY KEY, value TEXT)");
} // namespace

/// Opening, closing and knowing files. What is written is tst_DatabaseTransactions's.
class tst_DatabaseManager : public ZelvanTest
{
    Q_OBJECT

private slots:
    void theConnectionIsInvalidUntilThereIsOne();
    void aTextFileCanBeOpened();
    void aFolderCannotBeOpened();
    void aLeftOverTestConnectionIsReplaced();
    void pathsThatAreNoFilesHaveNoIdentity();
    void filesAreKnownByTheirIdentity_data();
    void filesAreKnownByTheirIdentity();
    void anIdentityThatCannotBeReadIsTold();
    void closingTwiceSaysSoOnce();
    void openingExistingRefusesPathsThatAreNoFiles();
    void openingExistingRunsNoMigration();
    void openingExistingReplacesTheConnection();
    void initializingCreatesFolderAndFile();
    void theConnectionKeepsItsPragmas_data();
    void theConnectionKeepsItsPragmas();
    void aFileThatCannotBeOpenedLeavesAClosedConnection();
    void aFileThatIsNoDatabaseIsTold();
    void initializingReplacesTheConnection();
    void noStatementStaysOpenAfterTheStart();
};

void tst_DatabaseManager::theConnectionIsInvalidUntilThereIsOne()
{
    QCOMPARE(DatabaseManager::mainConnectionName, QStringLiteral("main_connection"));
    QVERIFY(!DatabaseManager::connection().isValid());

    const TestDatabase db;

    QVERIFY(DatabaseManager::connection().isOpen());
    QCOMPARE(DatabaseManager::connection().databaseName(), db.path());
}

void tst_DatabaseManager::aTextFileCanBeOpened()
{
    const QTemporaryDir folder;
    const QString path = fileWith(folder, "only a text");

    QCOMPARE(logOf([&] { QVERIFY(DatabaseManager::testConnection(path)); }), QString());

    QVERIFY(!QSqlDatabase::contains(QStringLiteral("test_connection")));
}

void tst_DatabaseManager::aFolderCannotBeOpened()
{
    const QTemporaryDir folder;

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::testConnection(folder.path())); });

    QCOMPARE(log, QStringLiteral("warning [database] Failed to open database test connection: "
                                 "\"%1\" <error text>")
                      .arg(folder.path()));
    QVERIFY(!QSqlDatabase::contains(QStringLiteral("test_connection")));
}

void tst_DatabaseManager::aLeftOverTestConnectionIsReplaced()
{
    const QTemporaryDir folder;
    const QString path = fileWith(folder, QByteArray());
    for (const char *name : {"test_connection", "zelvan_db_validation"}) {
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QLatin1String(name));
    }

    QVERIFY(DatabaseManager::testConnection(path));
    expectLog(QtWarningMsg, QStringLiteral("Failed to check database identity:"));
    QVERIFY(!DatabaseManager::isZelvanDatabase(path));

    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
}

void tst_DatabaseManager::pathsThatAreNoFilesHaveNoIdentity()
{
    QCOMPARE(logOf([&] {
                 QVERIFY(!DatabaseManager::isZelvanDatabase(QString()));
                 QVERIFY(!DatabaseManager::isZelvanDatabase(QStringLiteral("/no/such/file")));
             }),
             QString());
}

void tst_DatabaseManager::filesAreKnownByTheirIdentity_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<bool>("known");

    QTest::newRow("the identity") << "('app.id', 'com.zelvan.pos')" << true;
    QTest::newRow("other letter case") << "('app.id', 'com.Zelvan.pos')" << false;
    QTest::newRow("another program") << "('app.id', 'com.example')" << false;
    QTest::newRow("blank at the end") << "('app.id', 'com.zelvan.pos ')" << false;
    QTest::newRow("no value") << "('app.id', NULL)" << false;
    QTest::newRow("another key") << "('app.ID', 'com.zelvan.pos')" << false;
}

void tst_DatabaseManager::filesAreKnownByTheirIdentity()
{
    QFETCH(QString, row);
    QFETCH(bool, known);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.db"));
    DatabaseFiles::run(path, identityTable);
    DatabaseFiles::run(path, QStringLiteral("INSERT INTO app_state VALUES ") + row);

    QCOMPARE(DatabaseManager::isZelvanDatabase(path), known);

    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
}

void tst_DatabaseManager::anIdentityThatCannotBeReadIsTold()
{
    const QTemporaryDir folder;
    const QTemporaryDir other;
    const QString unreadable =
        QStringLiteral("warning [database] Failed to check database identity: <error text>");

    // An empty file is an empty database.
    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::isZelvanDatabase(fileWith(folder, {}))); }),
             unreadable);
    QCOMPARE(
        logOf([&] { QVERIFY(!DatabaseManager::isZelvanDatabase(fileWith(other, "only a text"))); }),
        unreadable);
    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::isZelvanDatabase(folder.path())); }),
             QStringLiteral("warning [database] Failed to open database for Zelvan validation: "
                            "<error text>"));
    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
}

void tst_DatabaseManager::closingTwiceSaysSoOnce()
{
    const TestDatabase db;

    const QString first = logOf([] { DatabaseManager::closeDatabase(); });
    const QString second = logOf([] { DatabaseManager::closeDatabase(); });

    QCOMPARE(first, QStringLiteral("info [database] Database closed"));
    QCOMPARE(second, QString());
    QVERIFY(!QSqlDatabase::contains(DatabaseManager::mainConnectionName));
}

void tst_DatabaseManager::openingExistingRefusesPathsThatAreNoFiles()
{
    const QTemporaryDir folder;

    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::openExisting(QString())); }),
             QStringLiteral("warning [database] openExisting: empty path"));
    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::openExisting(QStringLiteral("/no/file"))); }),
             QStringLiteral("warning [database] openExisting: file does not exist: \"/no/file\""));
    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::openExisting(folder.path())); }),
             QStringLiteral("critical [database] openExisting failed: <error text>"));
    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
}

void tst_DatabaseManager::openingExistingRunsNoMigration()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.db"));
    DatabaseFiles::run(path, identityTable);

    const QString log = logOf([&] { QVERIFY(DatabaseManager::openExisting(path)); });

    QCOMPARE(log, QStringLiteral("info [database] Opened existing database: \"%1\"").arg(path));
    QCOMPARE(
        valueOf(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'table'")).toInt(),
        1);
    DatabaseManager::closeDatabase();
}

void tst_DatabaseManager::openingExistingReplacesTheConnection()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.db"));
    DatabaseFiles::run(path, identityTable);
    const TestDatabase db;

    QVERIFY(DatabaseManager::openExisting(path));

    QCOMPARE(DatabaseManager::connection().databaseName(), path);
}

void tst_DatabaseManager::initializingCreatesFolderAndFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("deep/餐厅 #1 100%/it's.db"));

    QVERIFY(DatabaseManager::initialize(path));

    QVERIFY(QFile::exists(path));
    QCOMPARE(valueOf(QStringLiteral("SELECT COUNT(*) FROM applied_migrations")).toInt(), 21);
    DatabaseManager::closeDatabase();
}

void tst_DatabaseManager::theConnectionKeepsItsPragmas_data()
{
    QTest::addColumn<bool>("existing");

    QTest::newRow("initialized") << false;
    QTest::newRow("opened") << true;
}

void tst_DatabaseManager::theConnectionKeepsItsPragmas()
{
    QFETCH(bool, existing);
    const TestDatabase db;
    if (existing) {
        QVERIFY(DatabaseManager::openExisting(db.path()));
    }

    QCOMPARE(valueOf(QStringLiteral("PRAGMA foreign_keys")).toInt(), 1);
    QCOMPARE(valueOf(QStringLiteral("PRAGMA journal_mode")).toString(), QStringLiteral("wal"));
    // Full: a payment that was told survives a power cut.
    QCOMPARE(valueOf(QStringLiteral("PRAGMA synchronous")).toInt(), 2);
}

void tst_DatabaseManager::aFileThatCannotBeOpenedLeavesAClosedConnection()
{
    const QTemporaryDir folder;

    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::initialize(folder.path())); }),
             QStringLiteral("critical [database] Cannot open database: <error text>"));

    QVERIFY(QSqlDatabase::contains(DatabaseManager::mainConnectionName));
    QVERIFY(!QSqlDatabase::database(DatabaseManager::mainConnectionName, false).isOpen());
    DatabaseManager::closeDatabase();
}

void tst_DatabaseManager::aFileThatIsNoDatabaseIsTold()
{
    const QTemporaryDir folder;
    const QString path = fileWith(folder, "only a text");

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(path)); });

    QCOMPARE(log.section(QLatin1Char('\n'), 0, 0),
             QStringLiteral("warning [database] Failed to enable WAL: <error text>"));
    QCOMPARE(log.section(QLatin1Char('\n'), 1),
             QStringLiteral("critical [migration] Failed to create applied_migrations: "
                            "<error text>"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("only a text"));
    DatabaseManager::closeDatabase();
}

void tst_DatabaseManager::initializingReplacesTheConnection()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("other.db"));
    const TestDatabase db;
    db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')"));

    QVERIFY(DatabaseManager::initialize(path));

    QCOMPARE(DatabaseManager::connection().databaseName(), path);
    QCOMPARE(valueOf(QStringLiteral("SELECT COUNT(*) FROM categories")).toInt(), 0);
    QCOMPARE(QSqlDatabase::connectionNames().size(), 1);
}

void tst_DatabaseManager::noStatementStaysOpenAfterTheStart()
{
    const TestDatabase db;

    // Leaving the write-ahead log needs a connection with no statement under way.
    QCOMPARE(valueOf(QStringLiteral("PRAGMA journal_mode = DELETE")).toString(),
             QStringLiteral("delete"));
}

ZELVAN_TEST(tst_DatabaseManager)
#include "tst_databasemanager.moc"
