// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FloorStore.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>

/// Floors, drawing, saving and deleting. What a load shows is tst_FloorPlanMerge's.
class tst_FloorPlanService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

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

    void aTableIsStoredAtOnceAndItsDrawingWaitsForTheSave();
    void aTableHasItsDefaults();
    void aTableWithABlankNameFailsAtTheSave();
    void anItemIsOnlyDrawn();
    void anItemHasItsDefaults();
    void aNullKeyIsAnAbsentOne();

    void aSaveKeepsTablesAndRenewsRows();
    void anEmptyCanvasEmptiesTheFloor();
    void clearingTouchesOnlyTheModel();

    void deletingATableIsNotUndoneByLeaving();
    void aDeletedWallComesBackWithoutASave();
    void aRowOutOfRangeDeletesNothing();

    void aStatusReachesTheCanvasAtOnce();
    void aStatusWithoutACanvasIsLogged();

private:
    [[nodiscard]] FloorPlanService &service() { return m_store->service; }
    [[nodiscard]] int count(const QString &table) const
    {
        return m_database->value(QStringLiteral("SELECT COUNT(*) FROM %1").arg(table)).toInt();
    }
    /// Draws a table on the shown floor; its id in `tables`.
    int drawTable(const QString &label);

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<FloorStore> m_store;
};

void tst_FloorPlanService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_store = std::make_unique<FloorStore>(m_database->handle());
}

void tst_FloorPlanService::cleanup()
{
    m_store.reset();
    m_database.reset();
}

int tst_FloorPlanService::drawTable(const QString &label)
{
    service().createTableItem({{"label", label}, {"capacity", 4}});
    const CanvasItemModel &model = *service().canvasModel();
    return ModelRows::value(model, model.rowCount() - 1, "table_id").toInt();
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
    m_database->run("INSERT INTO floors (name, floor_number, sort_order, is_active) VALUES "
                    "('Garden', 2, 2, 0), ('Hall', 1, 1, 1)");

    const FloorStore store(m_database->handle());

    QCOMPARE(ModelRows::column(*store.service.floorModel(), "name"),
             QVariantList({"Hall", "Garden"}));
}

void tst_FloorPlanService::floorsAreLoadedAnew()
{
    m_database->run("INSERT INTO floors (name, floor_number, sort_order) VALUES ('Hall', 1, 1)");

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
    QCOMPARE(m_database
                 ->value("SELECT name || floor_number || sort_order || is_active "
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
    m_database->run("CREATE TRIGGER refuse BEFORE INSERT ON floors "
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
    QCOMPARE(m_database
                 ->value("SELECT name || floor_number || sort_order || is_active "
                         "FROM floors WHERE id = 2")
                 .toString(),
             QStringLiteral("Terrace780"));
}

void tst_FloorPlanService::aFloorThatIsNotShownIsUpdatedInTheStore()
{
    m_database->run("INSERT INTO floors (name, floor_number, sort_order) VALUES ('Hall', 1, 1)");

    QVERIFY(service().updateFloor({1, "Roof", 1, 1, 1}));

    QCOMPARE(m_database->value("SELECT name FROM floors").toString(), QStringLiteral("Roof"));
    QCOMPARE(service().floorModel()->rowCount(), 0);
}

void tst_FloorPlanService::aFailedUpdateLeavesTheModel()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_database->run("CREATE TRIGGER refuse BEFORE UPDATE ON floors "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    QVERIFY(!service().updateFloor({1, "Roof", 1, 1, 1}));

    QCOMPARE(ModelRows::column(*service().floorModel(), "name"), QVariantList({"Hall"}));
}

void tst_FloorPlanService::aFloorGoesWithItsItemsAndTables()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    drawTable("A1");
    service().addItem({{"type", "wall"}});
    QVERIFY(service().saveCanvas(1));
    // Drawn and not saved: the store decides what belongs to the floor, not the screen.
    drawTable("A2");
    QSignalSpy tablesChanged(&m_store->tableService, &TableService::tablesChanged);

    QVERIFY(service().deleteFloor(1));

    QCOMPARE(tablesChanged.count(), 1);
    QCOMPARE(count("floors"), 0);
    QCOMPARE(count("canvas_items"), 0);
    QCOMPARE(m_database->value("SELECT group_concat(table_name) FROM tables").toString(),
             QStringLiteral("A2"));
    QCOMPARE(service().floorModel()->rowCount(), 0);
}

void tst_FloorPlanService::aFloorThatIsNotShownIsDeletedInTheStore()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_database->run("INSERT INTO floors (name, floor_number, sort_order) VALUES ('Roof', 2, 2)");

    QVERIFY(service().deleteFloor(2));

    QCOMPARE(count("floors"), 1);
    QCOMPARE(ModelRows::column(*service().floorModel(), "name"), QVariantList({"Hall"}));
}

void tst_FloorPlanService::aFloorThatCannotBeDeletedLosesItsTables()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    drawTable("A1");
    service().addItem({{"type", "wall"}});
    QVERIFY(service().saveCanvas(1));
    m_database->run("CREATE TRIGGER refuse BEFORE DELETE ON floors "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    QVERIFY(!service().deleteFloor(1));

    QCOMPARE(count("floors"), 1);
    QCOMPARE(count("tables"), 0);
    QCOMPARE(m_database->value("SELECT group_concat(type) FROM canvas_items").toString(),
             QStringLiteral("wall"));
    QCOMPARE(service().floorModel()->rowCount(), 1);
}

void tst_FloorPlanService::aTableIsStoredAtOnceAndItsDrawingWaitsForTheSave()
{
    QCOMPARE(service().createFloor("Hall"), 1);

    service().createTableItem({{"floor_id", 1},
                               {"type", "wall"},
                               {"label", " A1 "},
                               {"capacity", 6},
                               {"x", 100},
                               {"y", 50},
                               {"width", 140},
                               {"height", 80},
                               {"rotation", 90},
                               {"color", "#111111"},
                               {"border_color", "#222222"},
                               {"border_width", 3},
                               {"opacity", 0.5},
                               {"z_order", 4},
                               {"metadata", R"({"table_type":"rectangle"})"}});

    const CanvasItem item = service().canvasModel()->items().constFirst();
    QCOMPARE(item.id, -1);
    QCOMPARE(item.floor_id, 1);
    QCOMPARE(item.type, QStringLiteral("table"));
    QCOMPARE(item.table_id, std::optional(1));
    QCOMPARE(item.label, std::optional(QStringLiteral(" A1 ")));
    QCOMPARE(item.capacity, std::optional(6));
    QCOMPARE(item.status, std::optional(QStringLiteral("available")));
    QCOMPARE(QRectF(item.x, item.y, item.width, item.height), QRectF(100, 50, 140, 80));
    QCOMPARE(item.rotation, 90.0);
    QCOMPARE(item.color + item.border_color, QStringLiteral("#111111#222222"));
    QCOMPARE(item.border_width, 3.0);
    QCOMPARE(item.opacity, 0.5);
    QCOMPARE(item.z_order, 4);
    QCOMPARE(item.metadata, std::optional(QStringLiteral(R"({"table_type":"rectangle"})")));
    QCOMPARE(m_database->value("SELECT table_name || capacity || status FROM tables").toString(),
             QStringLiteral("A16available"));
    QCOMPARE(count("canvas_items"), 0);
}

void tst_FloorPlanService::aTableHasItsDefaults()
{
    service().createTableItem({{"label", "A1"}, {"capacity", 1}});

    const CanvasItem item = service().canvasModel()->items().constFirst();
    QCOMPARE(item.floor_id, 0);
    QCOMPARE(QRectF(item.x, item.y, item.width, item.height), QRectF(0, 0, 0, 0));
    QCOMPARE(item.rotation, 0.0);
    QCOMPARE(item.color, QStringLiteral("#444"));
    QCOMPARE(item.border_color, QStringLiteral("#ffffff"));
    QCOMPARE(item.border_width, 1.0);
    QCOMPARE(item.opacity, 1.0);
    QCOMPARE(item.z_order, 0);
    QVERIFY(!item.metadata);
}

void tst_FloorPlanService::aTableWithABlankNameFailsAtTheSave()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    service().addItem({{"type", "wall"}, {"label", "stored"}});
    QVERIFY(service().saveCanvas(1));

    expectLog(QtWarningMsg, "Cannot add empty table name");
    service().createTableItem({{"label", "   "}, {"capacity", 4}});
    QCOMPARE(ModelRows::value(*service().canvasModel(), 1, "table_id"), QVariant(-1));
    expectLog(QtWarningMsg, "Insert failed:");
    QVERIFY(!service().saveCanvas(1));

    QCOMPARE(m_database->value("SELECT group_concat(label) FROM canvas_items").toString(),
             QStringLiteral("stored"));
    QCOMPARE(count("tables"), 0);
}

void tst_FloorPlanService::anItemIsOnlyDrawn()
{
    service().addItem({{"floor_id", 9},
                       {"type", "table"},
                       {"table_id", 5},
                       {"label", "sign"},
                       {"x", 150},
                       {"y", 160},
                       {"width", 170},
                       {"height", 12},
                       {"rotation", 45},
                       {"color", "#111111"},
                       {"border_color", "#222222"},
                       {"border_width", 7},
                       {"opacity", 0.5},
                       {"z_order", 4},
                       {"metadata", "{}"}});

    const CanvasItem item = service().canvasModel()->items().constFirst();
    QCOMPARE(item.id, -1);
    QCOMPARE(item.type, QStringLiteral("table"));
    QCOMPARE(item.table_id, std::optional(5));
    QCOMPARE(item.label, std::optional(QStringLiteral("sign")));
    QCOMPARE(QRectF(item.x, item.y, item.width, item.height), QRectF(150, 160, 170, 12));
    QCOMPARE(item.rotation, 45.0);
    QCOMPARE(item.color + item.border_color, QStringLiteral("#111111#222222"));
    QCOMPARE(item.border_width, 1.0);
    QCOMPARE(item.opacity, 0.5);
    QCOMPARE(item.z_order, 4);
    QCOMPARE(item.metadata, std::optional(QStringLiteral("{}")));
    QVERIFY(!item.capacity && !item.status);
    QCOMPARE(count("tables"), 0);
}

void tst_FloorPlanService::anItemHasItsDefaults()
{
    service().addItem({});

    const CanvasItem item = service().canvasModel()->items().constFirst();
    QCOMPARE(item.type, QString());
    QVERIFY(!item.table_id);
    QCOMPARE(item.label, std::optional(QString("")));
    QCOMPARE(QRectF(item.x, item.y, item.width, item.height), QRectF(0, 0, 0, 0));
    QCOMPARE(item.color, QStringLiteral("#444"));
    QCOMPARE(item.border_color, QStringLiteral("#ffffff"));
    QCOMPARE(item.opacity, 1.0);
    QVERIFY(!item.metadata);
}

void tst_FloorPlanService::aNullKeyIsAnAbsentOne()
{
    service().addItem({{"type", "wall"},
                       {"table_id", QVariant::fromValue(nullptr)},
                       {"metadata", QVariant::fromValue(nullptr)}});
    service().createTableItem(
        {{"label", "A1"}, {"capacity", 4}, {"metadata", QVariant::fromValue(nullptr)}});

    const QList<CanvasItem> items = service().canvasModel()->items();
    QVERIFY(!items.at(0).table_id);
    QVERIFY(!items.at(0).metadata);
    QVERIFY(!items.at(1).metadata);
}

void tst_FloorPlanService::aSaveKeepsTablesAndRenewsRows()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    const int table = drawTable("A1");
    QVERIFY(service().saveCanvas(1));
    const int firstRow = m_database->value("SELECT id FROM canvas_items").toInt();

    QVERIFY(service().saveCanvas(1));

    QVERIFY(m_database->value("SELECT id FROM canvas_items").toInt() > firstRow);
    QCOMPARE(m_database->value("SELECT table_id FROM canvas_items").toInt(), table);
    QCOMPARE(count("tables"), 1);
}

void tst_FloorPlanService::anEmptyCanvasEmptiesTheFloor()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    service().addItem({{"type", "wall"}});
    QVERIFY(service().saveCanvas(1));

    service().clearCanvas();
    QVERIFY(service().saveCanvas(1));

    QCOMPARE(count("canvas_items"), 0);
}

void tst_FloorPlanService::clearingTouchesOnlyTheModel()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    drawTable("A1");
    QVERIFY(service().saveCanvas(1));

    service().clearCanvas();

    QCOMPARE(service().canvasModel()->rowCount(), 0);
    QCOMPARE(count("canvas_items"), 1);
    QCOMPARE(count("tables"), 1);
}

void tst_FloorPlanService::deletingATableIsNotUndoneByLeaving()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    drawTable("A1");
    drawTable("A2");
    QVERIFY(service().saveCanvas(1));

    service().deleteItem(0);
    service().loadCanvas(1);

    QCOMPARE(m_database->value("SELECT group_concat(table_name) FROM tables").toString(),
             QStringLiteral("A2"));
    QCOMPARE(ModelRows::column(*service().canvasModel(), "label"), QVariantList({"A2"}));
}

void tst_FloorPlanService::aDeletedWallComesBackWithoutASave()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    service().addItem({{"type", "wall"}, {"label", "w"}});
    QVERIFY(service().saveCanvas(1));

    service().deleteItem(0);
    QCOMPARE(service().canvasModel()->rowCount(), 0);
    service().loadCanvas(1);

    QCOMPARE(ModelRows::column(*service().canvasModel(), "label"), QVariantList({"w"}));
}

void tst_FloorPlanService::aRowOutOfRangeDeletesNothing()
{
    drawTable("A1");

    service().deleteItem(-1);
    service().deleteItem(1);

    QCOMPARE(service().canvasModel()->rowCount(), 1);
    QCOMPARE(count("tables"), 1);
}

void tst_FloorPlanService::aStatusReachesTheCanvasAtOnce()
{
    const int table = drawTable("A1");
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
