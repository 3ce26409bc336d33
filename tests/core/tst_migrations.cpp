// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Migrations.h"

#include "core/DatabaseManager.h"
#include "support/ChildProcess.h"
#include "support/DatabaseFiles.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>

static void dropResources()
{
    Q_CLEANUP_RESOURCE(migrations);
}

namespace {
/// Runs the scripts without their compiled-in copies: only the sources can serve.
int migrateWithoutResources(const QStringList &arguments)
{
    dropResources();
    const bool done = DatabaseManager::initialize(arguments.at(0));
    DatabaseManager::closeDatabase();
    return done ? 0 : 1;
}

ZELVAN_TEST_CHILD(migrateWithoutResources)

/// A file that may hold something before the scripts meet it.
class EarlierFile final
{
public:
    explicit EarlierFile(const QStringList &statements)
    {
        for (const QString &statement : statements) {
            DatabaseFiles::run(path(), statement);
        }
    }
    ~EarlierFile() { DatabaseManager::closeDatabase(); }
    Q_DISABLE_COPY_MOVE(EarlierFile)

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("a.db")); }

    /// The names in the schema, read through the program's connection.
    [[nodiscard]] static QStringList schema()
    {
        QStringList names;
        QSqlQuery query(QStringLiteral("SELECT name FROM sqlite_master WHERE name NOT LIKE "
                                       "'sqlite_%' ORDER BY name"),
                        DatabaseManager::connection());
        while (query.next()) {
            names.append(query.value(0).toString());
        }
        return names;
    }

private:
    QTemporaryDir m_folder;
};

QString lastLineOf(const QString &log)
{
    return log.section(QLatin1Char('\n'), -1);
}

QString script(const QString &name)
{
    QFile file(QStringLiteral(":/migrations/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const QString migrationTable = QStringLiteral(
    "CREATE TABLE applied_migrations (migration_name TEXT PRIMARY KEY, applied_at TEXT NOT NULL)");
} // namespace

class tst_Migrations : public ZelvanTest
{
    Q_OBJECT

private slots:
    void scriptsAreNumberedInRunningOrder();
    void scriptsKeepTheirLineEndsAndOneSemicolon_data();
    void scriptsKeepTheirLineEndsAndOneSemicolon();
    void onlyFourScriptsInsistOnANewTable();
    void aNewFileRecordsEveryScriptWithItsTime();
    void aSecondStartAddsNothing();
    void aForgottenRecordIsWrittenAgain();
    void aFailingScriptUndoesTheWholeRun();
    void aTaxTableWithoutItsRecordFailsAndStays();
    void withoutAConnectionNothingRuns();
    void aRunningTransactionIsRefused();
    void aRecordTableThatCannotBeMadeFails();
    void aRecordTableOfAnotherShapeFails();
    void aRecordThatCannotBeWrittenUndoesTheRun();
    void aRunWhoseTransactionWasLostLeavesNothing();
    void aFailingCommitIsNotRolledBack();
    void scriptsThatCannotBeFoundUndoTheRun();
    void theSourcesServeWhereTheResourcesAreMissing();
};

void tst_Migrations::scriptsAreNumberedInRunningOrder()
{
    const QStringList names = migrationNames();

    QCOMPARE(names.size(), 21);
    for (int index = 0; index < names.size(); ++index) {
        QVERIFY(names.at(index).startsWith(QStringLiteral("core/database/migrations/%1_create_")
                                               .arg(index + 1, 3, 10, QLatin1Char('0'))));
        QVERIFY(script(names.at(index))
                    .contains(names.at(index).section(QStringLiteral("_create_"), 1).chopped(4)));
    }
}

void tst_Migrations::scriptsKeepTheirLineEndsAndOneSemicolon_data()
{
    QTest::addColumn<QString>("name");

    for (const QString &name : migrationNames()) {
        QTest::newRow(qPrintable(name.right(40))) << name;
    }
}

void tst_Migrations::scriptsKeepTheirLineEndsAndOneSemicolon()
{
    QFETCH(QString, name);
    const QString text = script(name);

    QVERIFY(text.endsWith(QStringLiteral(");\r\n")));
    QCOMPARE(text.count(QLatin1Char(';')), 1);
    QCOMPARE(text.count(QLatin1Char('\n')), text.count(QStringLiteral("\r\n")));
    QCOMPARE(text.count(QStringLiteral("CREATE TABLE")), 1);
}

void tst_Migrations::onlyFourScriptsInsistOnANewTable()
{
    QStringList insisting;
    for (const QString &name : migrationNames()) {
        if (!script(name).contains(QStringLiteral("IF NOT EXISTS"))) {
            insisting.append(name.section(QLatin1Char('/'), -1).left(3));
        }
    }

    QCOMPARE(insisting.join(QLatin1Char(' ')), QStringLiteral("010 011 012 013"));
}

void tst_Migrations::aNewFileRecordsEveryScriptWithItsTime()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    QStringList recorded;
    QSqlQuery query(QStringLiteral("SELECT migration_name, applied_at FROM applied_migrations "
                                   "ORDER BY rowid"),
                    db.handle());
    while (query.next()) {
        recorded.append(query.value(0).toString());
        const QString at = query.value(1).toString();
        const QDateTime time = QDateTime::fromString(at, Qt::ISODate);
        QVERIFY2(at.endsWith(QLatin1Char('Z')) && at.size() == 20, qPrintable(at));
        QVERIFY(qAbs(time.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    }

    QCOMPARE(recorded, migrationNames());
}

void tst_Migrations::aSecondStartAddsNothing()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral("UPDATE applied_migrations SET applied_at = 'then'"));

    const QString log = logOf([&] { QVERIFY(DatabaseManager::runMigrations()); });

    QCOMPARE(log, QString());
    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM applied_migrations WHERE applied_at = "
                                     "'then'"))
                 .toInt(),
             21);
    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM applied_migrations")).toInt(), 21);
}

void tst_Migrations::aForgottenRecordIsWrittenAgain()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral("INSERT INTO users (username, password, role) VALUES ('a', 'b', 'c')"));
    db.run(QStringLiteral("UPDATE applied_migrations SET applied_at = 'then'"));
    db.run(QStringLiteral("DELETE FROM applied_migrations WHERE migration_name LIKE '%001%'"));

    const QString log = logOf([&] { QVERIFY(DatabaseManager::runMigrations()); });

    QCOMPARE(log, QStringLiteral("info [migration] Migration applied: "
                                 "\"core/database/migrations/001_create_users.sql\""));
    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM applied_migrations WHERE applied_at <> "
                                     "'then'"))
                 .toInt(),
             1);
    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM users")).toInt(), 1);
}

void tst_Migrations::aFailingScriptUndoesTheWholeRun()
{
    // A table cannot be made where an index has its name.
    const EarlierFile file({QStringLiteral("CREATE TABLE other (a)"),
                            QStringLiteral("CREATE INDEX regional_settings ON other (a)")});

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(file.path())); });

    QVERIFY(log.contains(QStringLiteral("014_create_kitchen_settings")));
    QVERIFY2(log.contains(QStringLiteral(
                 "\ncritical [migration] Migration failed: "
                 "\"core/database/migrations/015_create_regional_settings.sql\" \nStatement: "
                 "\"CREATE TABLE IF NOT EXISTS regional_settings")),
             qPrintable(log));
    QCOMPARE(lastLineOf(log), QStringLiteral("Error: <error text>"));
    QCOMPARE(EarlierFile::schema(),
             (QStringList{QStringLiteral("other"), QStringLiteral("regional_settings")}));
}

void tst_Migrations::aTaxTableWithoutItsRecordFailsAndStays()
{
    const EarlierFile file({QStringLiteral("CREATE TABLE tax_settings (mine TEXT)"),
                            QStringLiteral("INSERT INTO tax_settings VALUES ('kept')")});

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(file.path())); });

    QVERIFY(
        log.contains(QStringLiteral("critical [migration] Migration failed: "
                                    "\"core/database/migrations/010_create_tax_settings.sql\"")));
    QCOMPARE(EarlierFile::schema(), QStringList{QStringLiteral("tax_settings")});
    QSqlQuery query(QStringLiteral("SELECT mine FROM tax_settings"), DatabaseManager::connection());
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toString(), QStringLiteral("kept"));
}

void tst_Migrations::withoutAConnectionNothingRuns()
{
    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::runMigrations()); }),
             QStringLiteral("critical [database] Database is not open."));
}

void tst_Migrations::aRunningTransactionIsRefused()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    QVERIFY(DatabaseManager::beginTransaction());

    QCOMPARE(logOf([&] { QVERIFY(!DatabaseManager::runMigrations()); }),
             QStringLiteral("critical [database] Failed to begin transaction: <error text>"));

    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_Migrations::aRecordTableThatCannotBeMadeFails()
{
    const EarlierFile file({QStringLiteral("CREATE TABLE other (a)"),
                            QStringLiteral("CREATE INDEX applied_migrations ON other (a)")});

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(file.path())); });

    QCOMPARE(log, QStringLiteral(
                      "critical [migration] Failed to create applied_migrations: <error text>"));
    QVERIFY(DatabaseManager::beginTransaction());
}

void tst_Migrations::aRecordTableOfAnotherShapeFails()
{
    const EarlierFile file({QStringLiteral("CREATE TABLE applied_migrations (mine TEXT)")});

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(file.path())); });

    QCOMPARE(log, QStringLiteral("critical [migration] Failed to check migration: <error text>"));
    QVERIFY(DatabaseManager::beginTransaction());
}

void tst_Migrations::aRecordThatCannotBeWrittenUndoesTheRun()
{
    const EarlierFile file(
        {migrationTable, QStringLiteral("CREATE TRIGGER stop BEFORE INSERT ON applied_migrations "
                                        "BEGIN SELECT RAISE(ABORT, 'not now'); END")});

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(file.path())); });

    QCOMPARE(log, QStringLiteral("critical [migration] Failed to record migration: <error text>"));
    QVERIFY(!EarlierFile::schema().contains(QStringLiteral("users")));
}

void tst_Migrations::aRunWhoseTransactionWasLostLeavesNothing()
{
    // SQLite ends the transaction itself, as on a failing disk, after some scripts have run.
    const EarlierFile file(
        {migrationTable, QStringLiteral("CREATE TRIGGER stop BEFORE INSERT ON applied_migrations "
                                        "WHEN NEW.migration_name LIKE '%/003%' "
                                        "BEGIN SELECT RAISE(ROLLBACK, 'disk I/O error'); END")});

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(file.path())); });

    QCOMPARE(lastLineOf(log),
             QStringLiteral("critical [migration] Failed to record migration: <error text>"));
    QVERIFY(!EarlierFile::schema().contains(QStringLiteral("users")));
    QVERIFY(DatabaseManager::beginTransaction());
}

void tst_Migrations::aFailingCommitIsNotRolledBack()
{
    // A deferred constraint is looked at only by the commit.
    const EarlierFile file(
        {migrationTable,
         QStringLiteral("CREATE TABLE pledges (id INTEGER PRIMARY KEY, other INTEGER REFERENCES "
                        "pledges(id) DEFERRABLE INITIALLY DEFERRED)"),
         QStringLiteral("CREATE TRIGGER pledge AFTER INSERT ON applied_migrations "
                        "BEGIN INSERT INTO pledges (other) VALUES (4711); END")});

    const QString log = logOf([&] { QVERIFY(!DatabaseManager::initialize(file.path())); });

    QCOMPARE(lastLineOf(log),
             QStringLiteral("critical [database] Failed to commit transaction: <error text>"));
    // The transaction is still open with all it did.
    QVERIFY(EarlierFile::schema().contains(QStringLiteral("users")));
    QVERIFY(DatabaseManager::rollbackTransaction());
    QVERIFY(!EarlierFile::schema().contains(QStringLiteral("users")));
}

void tst_Migrations::scriptsThatCannotBeFoundUndoTheRun()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("build/bin")));
    const QString program = folder.filePath(QStringLiteral("build/bin/program"));
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
    ChildProcess child(QStringLiteral("migrateWithoutResources"),
                       {folder.filePath(QStringLiteral("a.db"))});
    child.setProgram(program);

    const ChildProcess::Result result = child.run();

    QCOMPARE(result.exitCode, 1);
    const QString sought = QDir(folder.path())
                               .canonicalPath()
                               .append(QStringLiteral("/core/database/migrations/"
                                                      "001_create_users.sql"));
    const QString expected = QStringLiteral("Cannot open migration file: "
                                            "\"core/database/migrations/001_create_users.sql\" "
                                            "Tried: \"%1\"")
                                 .arg(sought);
    QVERIFY2(QString::fromUtf8(result.errors).contains(expected), result.errors.constData());
}

void tst_Migrations::theSourcesServeWhereTheResourcesAreMissing()
{
    const QTemporaryDir folder;
    const QDir root(folder.path());
    QVERIFY(root.mkpath(QStringLiteral("build/bin")));
    QVERIFY(root.mkpath(QStringLiteral("core/database/migrations")));
    for (const QString &name : migrationNames()) {
        QVERIFY(QFile::copy(QStringLiteral(":/migrations/") + name, root.filePath(name)));
    }
    const QString program = root.filePath(QStringLiteral("build/bin/program"));
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
    const QString database = root.filePath(QStringLiteral("a.db"));
    ChildProcess child(QStringLiteral("migrateWithoutResources"), {database});
    child.setProgram(program);

    const ChildProcess::Result result = child.run();

    QVERIFY2(result.exitCode == 0, result.errors.constData());
    QVERIFY(DatabaseManager::openExisting(database));
    QCOMPARE(EarlierFile::schema().size(), 22);
    DatabaseManager::closeDatabase();
}

ZELVAN_TEST(tst_Migrations)
#include "tst_migrations.moc"
