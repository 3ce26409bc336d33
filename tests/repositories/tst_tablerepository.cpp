// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TableRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
Table table(const QString &name, int capacity, const QString &status)
{
    Table table;
    table.table_name = name;
    table.capacity = capacity;
    table.status = status;
    return table;
}

struct Fixture
{
    TestDatabase db;
    TableRepository tables{db.handle()};
};
} // namespace

class tst_TableRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedTableIsReadBackWhole();
    void anUpdateChangesNameCapacityAndStatus();
    void anyStatusTextIsStored();
    void aStatusOfNoTableIsNoFailure();
    void aRemovedTableLeavesItsOpenSessionWithoutATable();
    void everyFailureIsLogged();
};

void tst_TableRepository::aCreatedTableIsReadBackWhole()
{
    Fixture f;

    const int first = f.tables.create(table(QStringLiteral("T1"), 4, QStringLiteral("available")));
    const int second = f.tables.create(table(QStringLiteral("T2"), 2, QStringLiteral("reserved")));

    QCOMPARE(first, 1);
    QCOMPARE(second, 2);
    const std::optional<Table> found = f.tables.getTableById(2);
    QVERIFY(found);
    QCOMPARE(found->id, 2);
    QCOMPARE(found->table_name, QStringLiteral("T2"));
    QCOMPARE(found->capacity, 2);
    QCOMPARE(found->status, QStringLiteral("reserved"));
    QCOMPARE(found->created_at,
             f.db.value(QStringLiteral("SELECT created_at FROM tables WHERE id = 2")).toString());
    QVERIFY(!found->created_at.isEmpty());
    const QList<Table> all = f.tables.getAllTables();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all.at(0).table_name, QStringLiteral("T1"));
    QVERIFY(!f.tables.getTableById(3));
}

void tst_TableRepository::anUpdateChangesNameCapacityAndStatus()
{
    Fixture f;
    f.tables.create(table(QStringLiteral("T1"), 4, QStringLiteral("available")));
    f.tables.create(table(QStringLiteral("T2"), 4, QStringLiteral("available")));
    Table changed = table(QStringLiteral("Window"), 6, QStringLiteral("occupied"));
    changed.id = 1;

    f.tables.update(changed);

    const std::optional<Table> found = f.tables.getTableById(1);
    QCOMPARE(found->table_name, QStringLiteral("Window"));
    QCOMPARE(found->capacity, 6);
    QCOMPARE(found->status, QStringLiteral("occupied"));
    QCOMPARE(f.tables.getTableById(2)->table_name, QStringLiteral("T2"));
}

void tst_TableRepository::anyStatusTextIsStored()
{
    Fixture f;
    f.tables.create(table(QStringLiteral("T1"), 4, QStringLiteral("available")));
    f.tables.create(table(QStringLiteral("T2"), 4, QStringLiteral("available")));

    QVERIFY(f.tables.setTableState(1, QStringLiteral("on fire")));

    QCOMPARE(f.tables.getTableById(1)->status, QStringLiteral("on fire"));
    QCOMPARE(f.tables.getTableById(1)->capacity, 4);
    QCOMPARE(f.tables.getTableById(2)->status, QStringLiteral("available"));
}

void tst_TableRepository::aStatusOfNoTableIsNoFailure()
{
    Fixture f;

    QVERIFY(f.tables.setTableState(99, QStringLiteral("occupied")));
}

void tst_TableRepository::aRemovedTableLeavesItsOpenSessionWithoutATable()
{
    Fixture f;
    f.tables.create(table(QStringLiteral("T1"), 4, QStringLiteral("occupied")));
    f.db.run(QStringLiteral("INSERT INTO order_sessions (display_number, table_id, order_type) "
                            "VALUES (4001, 1, 'dine_in')"));

    QVERIFY(f.tables.remove(1));

    QVERIFY(f.tables.getAllTables().isEmpty());
    QCOMPARE(f.db.value(QStringLiteral("SELECT status FROM order_sessions WHERE table_id IS NULL"))
                 .toString(),
             QStringLiteral("open"));
}

void tst_TableRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE tables RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QCOMPARE(f.tables.create(Table()), 0); }), line("create failed:"));
    QCOMPARE(logOf([&] { f.tables.update(Table()); }), line("update failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.tables.setTableState(1, QString())); }),
             line("setTableState failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.tables.remove(1)); }), line("remove failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.tables.getTableById(1)); }), line("getTableById failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.tables.getAllTables().isEmpty()); }),
             line("getAllTables failed:"));
}

ZELVAN_TEST(tst_TableRepository)
#include "tst_tablerepository.moc"
