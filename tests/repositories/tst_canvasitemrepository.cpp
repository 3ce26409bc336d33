// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseManager.h"
#include "repositories/CanvasItemRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
/// Floors 1 and 2, table 1.
struct Fixture
{
    Fixture()
    {
        db.run(QStringLiteral("INSERT INTO floors (name) VALUES ('Ground'), ('Roof')"));
        db.run(QStringLiteral("INSERT INTO tables (table_name) VALUES ('T1')"));
    }

    int itemsOn(int floorId) { return static_cast<int>(items.fetchByFloor(floorId).size()); }

    TestDatabase db;
    CanvasItemRepository items{db.handle()};
};

CanvasItem wall(int zOrder = 0)
{
    CanvasItem item;
    item.type = QStringLiteral("wall");
    item.width = 100.0;
    item.height = 10.0;
    item.z_order = zOrder;
    return item;
}

CanvasItem tableItem()
{
    CanvasItem item;
    item.id = 77;
    item.floor_id = 99;
    item.table_id = 1;
    item.type = QStringLiteral("table");
    item.label = QStringLiteral("T1");
    item.x = 1.5;
    item.y = -2.25;
    item.width = 80.0;
    item.height = 60.0;
    item.rotation = 45.5;
    item.color = QStringLiteral("#123456");
    item.border_color = QStringLiteral("#654321");
    item.border_width = 3.5;
    item.opacity = 0.5;
    item.z_order = 7;
    item.metadata = QStringLiteral("{\"table_type\":\"circle\"}");
    item.capacity = 4;
    item.status = QStringLiteral("occupied");
    return item;
}
} // namespace

class tst_CanvasItemRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aSavedItemIsReadBackWithoutItsRuntimeFields();
    void absentFieldsAreNull();
    void everySaveGivesFreshIdsAndKeepsTheTable();
    void savingNothingEmptiesTheFloorAndCommits();
    void anotherFloorIsLeftAlone();
    void twoItemsOfOneTableAreBothStored();
    void itemsComeByDrawOrder();
    void aFailingThirdInsertLeavesTheFloorAsItWas();
    void aFailingDeleteLeavesTheFloorAsItWas();
    void aFailingCommitLeavesTheFloorAsItWas();
    void aSaveInsideATransactionIsRefused();
    void aRemovedItemIsGoneWithoutAWord();
    void aFailingReadIsLogged();
};

void tst_CanvasItemRepository::aSavedItemIsReadBackWithoutItsRuntimeFields()
{
    Fixture f;

    QVERIFY(f.items.saveAll(1, {tableItem()}));

    const QList<CanvasItem> all = f.items.fetchByFloor(1);
    QCOMPARE(all.size(), 1);
    const CanvasItem &found = all.at(0);
    QCOMPARE(found.id, 1);
    QCOMPARE(found.floor_id, 1);
    QCOMPARE(found.table_id, std::optional(1));
    QCOMPARE(found.type, QStringLiteral("table"));
    QCOMPARE(found.label, std::optional(QStringLiteral("T1")));
    QCOMPARE(found.x, 1.5);
    QCOMPARE(found.y, -2.25);
    QCOMPARE(found.width, 80.0);
    QCOMPARE(found.height, 60.0);
    QCOMPARE(found.rotation, 45.5);
    QCOMPARE(found.color, QStringLiteral("#123456"));
    QCOMPARE(found.border_color, QStringLiteral("#654321"));
    QCOMPARE(found.border_width, 3.5);
    QCOMPARE(found.opacity, 0.5);
    QCOMPARE(found.z_order, 7);
    QCOMPARE(found.metadata, std::optional(QStringLiteral("{\"table_type\":\"circle\"}")));
    QVERIFY(!found.capacity && !found.status);
}

void tst_CanvasItemRepository::absentFieldsAreNull()
{
    Fixture f;

    // An item after one that has them all must not inherit them from the prepared insert.
    QVERIFY(f.items.saveAll(1, {tableItem(), wall(8)}));

    const CanvasItem found = f.items.fetchByFloor(1).at(1);
    QVERIFY(!found.table_id && !found.label && !found.metadata);
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM canvas_items WHERE table_id IS NULL "
                                       "AND label IS NULL AND metadata IS NULL"))
                 .toInt(),
             1);
}

void tst_CanvasItemRepository::everySaveGivesFreshIdsAndKeepsTheTable()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {tableItem()}));

    QVERIFY(f.items.saveAll(1, f.items.fetchByFloor(1)));

    const QList<CanvasItem> all = f.items.fetchByFloor(1);
    QCOMPARE(all.size(), 1);
    QCOMPARE(all.at(0).id, 2);
    QCOMPARE(all.at(0).table_id, std::optional(1));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM tables")).toInt(), 1);
}

void tst_CanvasItemRepository::savingNothingEmptiesTheFloorAndCommits()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {wall(), wall()}));

    QVERIFY(f.items.saveAll(1, {}));

    QCOMPARE(f.itemsOn(1), 0);
    // The transaction is over: the next one can begin.
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
    QCOMPARE(f.itemsOn(1), 0);
}

void tst_CanvasItemRepository::anotherFloorIsLeftAlone()
{
    Fixture f;
    QVERIFY(f.items.saveAll(2, {wall(), wall()}));

    QVERIFY(f.items.saveAll(1, {wall()}));

    QCOMPARE(f.itemsOn(1), 1);
    QCOMPARE(f.itemsOn(2), 2);
}

void tst_CanvasItemRepository::twoItemsOfOneTableAreBothStored()
{
    Fixture f;

    QVERIFY(f.items.saveAll(1, {tableItem(), tableItem()}));

    QCOMPARE(f.itemsOn(1), 2);
}

void tst_CanvasItemRepository::itemsComeByDrawOrder()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {wall(5), wall(-1), wall(2), wall(2)}));

    QList<int> orders;
    for (const CanvasItem &item : f.items.fetchByFloor(1)) {
        orders.append(item.z_order);
    }

    QCOMPARE(orders, (QList<int>{-1, 2, 2, 5}));
}

void tst_CanvasItemRepository::aFailingThirdInsertLeavesTheFloorAsItWas()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {tableItem()}));
    CanvasItem ofNoTable = tableItem();
    ofNoTable.table_id = 4711;

    const QString log = logOf([&] {
        QVERIFY(!f.items.saveAll(1, {wall(), wall(), ofNoTable, wall()}));
    });

    QCOMPARE(log, QStringLiteral("warning [database] Insert failed: <QSqlError>"));
    QCOMPARE(f.itemsOn(1), 1);
    QCOMPARE(f.items.fetchByFloor(1).at(0).id, 1);
    QVERIFY(f.items.saveAll(1, {wall(), wall()}));
}

void tst_CanvasItemRepository::aFailingDeleteLeavesTheFloorAsItWas()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {wall(), wall()}));
    f.db.run(QStringLiteral("CREATE TRIGGER stop BEFORE DELETE ON canvas_items "
                            "BEGIN SELECT RAISE(ABORT, 'not now'); END"));

    const QString log = logOf([&] { QVERIFY(!f.items.saveAll(1, {wall()})); });

    QCOMPARE(log, QStringLiteral("warning [database] Delete failed: <QSqlError>"));
    QCOMPARE(f.itemsOn(1), 2);
}

void tst_CanvasItemRepository::aFailingCommitLeavesTheFloorAsItWas()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {wall(), wall()}));
    // A deferred constraint is looked at only by the commit.
    f.db.run(QStringLiteral("CREATE TABLE pledges (floor_id INTEGER REFERENCES floors(id) "
                            "DEFERRABLE INITIALLY DEFERRED)"));
    f.db.run(QStringLiteral("CREATE TRIGGER pledge AFTER INSERT ON canvas_items "
                            "BEGIN INSERT INTO pledges VALUES (4711); END"));

    const QString log = logOf([&] { QVERIFY(!f.items.saveAll(1, {wall()})); });

    QCOMPARE(log, QStringLiteral("warning [database] Commit failed"));
    QCOMPARE(f.itemsOn(1), 2);
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_CanvasItemRepository::aSaveInsideATransactionIsRefused()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {wall()}));
    QVERIFY(DatabaseManager::beginTransaction());

    const QString log = logOf([&] { QVERIFY(!f.items.saveAll(1, {})); });

    QCOMPARE(log, QStringLiteral("warning [database] Failed to begin transaction for saveAll"));
    QVERIFY(DatabaseManager::rollbackTransaction());
    QCOMPARE(f.itemsOn(1), 1);
}

void tst_CanvasItemRepository::aRemovedItemIsGoneWithoutAWord()
{
    Fixture f;
    QVERIFY(f.items.saveAll(1, {wall(), wall()}));

    QVERIFY(f.items.remove(1));

    QCOMPARE(f.itemsOn(1), 1);
    f.db.run(QStringLiteral("DROP TABLE canvas_items"));
    QCOMPARE(logOf([&] { QVERIFY(!f.items.remove(2)); }), QString());
}

void tst_CanvasItemRepository::aFailingReadIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE canvas_items"));

    QCOMPARE(logOf([&] { QVERIFY(f.items.fetchByFloor(1).isEmpty()); }),
             QStringLiteral("warning [database] Failed to fetch canvas items: <QSqlError>"));
}

ZELVAN_TEST(tst_CanvasItemRepository)
#include "tst_canvasitemrepository.moc"
