// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FloorStore.h"
#include "support/ModelRows.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>

/// Floors and the states of their tables. Drawing is tst_FloorPlanDrawing's, what a load shows
/// tst_FloorPlanMerge's.
class tst_FloorPlanService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void itsSignaturesAreThoseTheScreensCall();
    void floorsAreThereFromTheStartInTheirOrder();
    void floorsAreLoadedAnew();

    void aFloorIsCreatedAtTheEnd();
    void aFloorMayHaveNoName();
    void numbersCountRowsAndMayRepeat();
    void aFailedCreationAnswersMinusOne();
    void aFloorIsUpdatedInStoreAndModel();
    void aFloorThatIsNotShownIsUpdatedInTheStore();
    void aFailedUpdateLeavesTheModel();

    void aFloorGoesWithItsItemsAndTables();
    void aFloorThatIsNotShownIsDeletedInTheStore();
    void aFloorThatCannotBeDeletedLosesItsTables();

    void aStatusReachesTheCanvasAtOnce();
    void aStatusWithoutACanvasIsLogged();

private:
    [[nodiscard]] FloorPlanService &service() { return m_store->service; }

    std::unique_ptr<FloorStore> m_store;
};

void tst_FloorPlanService::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<FloorStore>();
}

void tst_FloorPlanService::itsSignaturesAreThoseTheScreensCall()
{
    const QMetaObject &meta = FloorPlanService::staticMetaObject;
    for (const char *signature :
         {"loadFloors()", "createFloor(QString)", "deleteFloor(int)", "loadCanvas(int)",
          "saveCanvas(int)", "clearCanvas()", "addItem(QVariantMap)",
          "createTableItem(QVariantMap)", "deleteItem(int)", "onTableStatusChanged(int,QString)",
          "tableStatusUpdated(int,QString)"}) {
        QVERIFY2(meta.indexOfMethod(signature) >= 0, signature);
    }
    QVERIFY(service().property("floorModel").value<FloorModel *>());
    QVERIFY(service().property("canvasModel").value<CanvasItemModel *>());
    QCOMPARE(service().property("currentFloorId"), QVariant());
    QCOMPARE(service().currentFloorId(), -1);
}

void tst_FloorPlanService::floorsAreThereFromTheStartInTheirOrder()
{
    m_store->database.run("INSERT INTO floors (name, floor_number, sort_order, is_active) VALUES "
                          "('Garden', 2, 2, 0), ('Hall', 1, 1, 1)");

    const FloorPlanService started(&m_store->floors, &m_store->items, &m_store->tables,
                                   &m_store->reservations, &m_store->tableService);

    QCOMPARE(ModelRows::column(*started.floorModel(), "name"), QVariantList({"Hall", "Garden"}));
}

void tst_FloorPlanService::floorsAreLoadedAnew()
{
    m_store->database.run(
        "INSERT INTO floors (name, floor_number, sort_order) VALUES ('Hall', 1, 1)");

    service().loadFloors();

    QCOMPARE(ModelRows::column(*service().floorModel(), "name"), QVariantList({"Hall"}));
}

void tst_FloorPlanService::aFloorIsCreatedAtTheEnd()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    QCOMPARE(service().createFloor("Garden"), 2);

    const QVariantMap expected{
        {"id", 2}, {"name", "Garden"}, {"floor_number", 2}, {"sort_order", 2}, {"is_active", 1}};
    QCOMPARE(service().floorModel()->getFloor(1), expected);
    QCOMPARE(m_store->database
                 .value("SELECT name || floor_number || sort_order || is_active "
                        "FROM floors WHERE id = 2")
                 .toString(),
             QStringLiteral("Garden221"));
}

void tst_FloorPlanService::aFloorMayHaveNoName()
{
    QCOMPARE(service().createFloor(""), 1);
}

void tst_FloorPlanService::numbersCountRowsAndMayRepeat()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    QCOMPARE(service().createFloor("Garden"), 2);
    QVERIFY(service().deleteFloor(1));

    QCOMPARE(service().createFloor("Roof"), 3);

    QCOMPARE(ModelRows::column(*service().floorModel(), "sort_order"), QVariantList({2, 2}));
}

void tst_FloorPlanService::aFailedCreationAnswersMinusOne()
{
    m_store->database.run("CREATE TRIGGER refuse BEFORE INSERT ON floors "
                          "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    expectLog(QtWarningMsg, "Failed to create floor:");
    QCOMPARE(service().createFloor("Hall"), -1);

    QCOMPARE(service().floorModel()->rowCount(), 0);
}

void tst_FloorPlanService::aFloorIsUpdatedInStoreAndModel()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    QCOMPARE(service().createFloor("Garden"), 2);

    QVERIFY(service().updateFloor({2, "Terrace", 7, 8, 0}));

    QCOMPARE(ModelRows::column(*service().floorModel(), "name"), QVariantList({"Hall", "Terrace"}));
    QCOMPARE(m_store->database
                 .value("SELECT name || floor_number || sort_order || is_active "
                        "FROM floors WHERE id = 2")
                 .toString(),
             QStringLiteral("Terrace780"));
}

void tst_FloorPlanService::aFloorThatIsNotShownIsUpdatedInTheStore()
{
    m_store->database.run(
        "INSERT INTO floors (name, floor_number, sort_order) VALUES ('Hall', 1, 1)");

    QVERIFY(service().updateFloor({1, "Roof", 1, 1, 1}));

    QCOMPARE(m_store->database.value("SELECT name FROM floors").toString(), QStringLiteral("Roof"));
    QCOMPARE(service().floorModel()->rowCount(), 0);
}

void tst_FloorPlanService::aFailedUpdateLeavesTheModel()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_store->database.run("CREATE TRIGGER refuse BEFORE UPDATE ON floors "
                          "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    QVERIFY(!service().updateFloor({1, "Roof", 1, 1, 1}));

    QCOMPARE(ModelRows::column(*service().floorModel(), "name"), QVariantList({"Hall"}));
}

void tst_FloorPlanService::aFloorGoesWithItsItemsAndTables()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_store->drawTable("A1");
    service().addItem({{"type", "wall"}});
    QVERIFY(service().saveCanvas(1));
    // Drawn and not saved: the store decides what belongs to the floor, not the screen.
    m_store->drawTable("A2");
    QSignalSpy tablesChanged(&m_store->tableService, &TableService::tablesChanged);

    QVERIFY(service().deleteFloor(1));

    QCOMPARE(tablesChanged.count(), 1);
    QCOMPARE(m_store->count("floors"), 0);
    QCOMPARE(m_store->count("canvas_items"), 0);
    QCOMPARE(m_store->database.value("SELECT group_concat(table_name) FROM tables").toString(),
             QStringLiteral("A2"));
    QCOMPARE(service().floorModel()->rowCount(), 0);
}

void tst_FloorPlanService::aFloorThatIsNotShownIsDeletedInTheStore()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_store->database.run(
        "INSERT INTO floors (name, floor_number, sort_order) VALUES ('Roof', 2, 2)");

    QVERIFY(service().deleteFloor(2));

    QCOMPARE(m_store->count("floors"), 1);
    QCOMPARE(ModelRows::column(*service().floorModel(), "name"), QVariantList({"Hall"}));
}

void tst_FloorPlanService::aFloorThatCannotBeDeletedLosesItsTables()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_store->drawTable("A1");
    service().addItem({{"type", "wall"}});
    QVERIFY(service().saveCanvas(1));
    m_store->database.run("CREATE TRIGGER refuse BEFORE DELETE ON floors "
                          "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    QVERIFY(!service().deleteFloor(1));

    QCOMPARE(m_store->count("floors"), 1);
    QCOMPARE(m_store->count("tables"), 0);
    QCOMPARE(m_store->database.value("SELECT group_concat(type) FROM canvas_items").toString(),
             QStringLiteral("wall"));
    QCOMPARE(service().floorModel()->rowCount(), 1);
}

void tst_FloorPlanService::aStatusReachesTheCanvasAtOnce()
{
    const int table = m_store->drawTable("A1");
    QSignalSpy updated(&service(), &FloorPlanService::tableStatusUpdated);

    m_store->tableService.setTableStatus(table, "occupied");
    m_store->tableService.setTableStatus(99, "occupied");

    QCOMPARE(ModelRows::column(*service().canvasModel(), "status"), QVariantList({"occupied"}));
    QCOMPARE(updated.count(), 2);
    QCOMPARE(updated.at(0), QVariantList({table, "occupied"}));
    QCOMPARE(updated.at(1), QVariantList({99, "occupied"}));
}

void tst_FloorPlanService::aStatusWithoutACanvasIsLogged()
{
    QSignalSpy updated(&service(), &FloorPlanService::tableStatusUpdated);
    delete service().canvasModel();

    expectLog(QtWarningMsg, "FloorPlanService: No canvas model");
    service().onTableStatusChanged(1, "occupied");

    QCOMPARE(updated.count(), 0);
}

ZELVAN_TEST(tst_FloorPlanService)
#include "tst_floorplanservice.moc"
