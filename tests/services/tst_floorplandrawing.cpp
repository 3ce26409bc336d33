// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FloorStore.h"
#include "support/ModelRows.h"
#include "support/ZelvanTest.h"

#include <memory>

/// Drawing, saving and deleting on one floor's canvas.
class tst_FloorPlanDrawing : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

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

private:
    [[nodiscard]] FloorPlanService &service() { return m_store->service; }

    std::unique_ptr<FloorStore> m_store;
};

void tst_FloorPlanDrawing::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<FloorStore>();
}

void tst_FloorPlanDrawing::aTableIsStoredAtOnceAndItsDrawingWaitsForTheSave()
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
    QCOMPARE(
        m_store->database.value("SELECT table_name || capacity || status FROM tables").toString(),
        QStringLiteral("A16available"));
    QCOMPARE(m_store->count("canvas_items"), 0);
}

void tst_FloorPlanDrawing::aTableHasItsDefaults()
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

void tst_FloorPlanDrawing::aTableWithABlankNameFailsAtTheSave()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    service().addItem({{"type", "wall"}, {"label", "stored"}});
    QVERIFY(service().saveCanvas(1));

    expectLog(QtWarningMsg, "Cannot add empty table name");
    service().createTableItem({{"label", "   "}, {"capacity", 4}});
    QCOMPARE(ModelRows::value(*service().canvasModel(), 1, "table_id"), QVariant(-1));
    expectLog(QtWarningMsg, "Insert failed:");
    QVERIFY(!service().saveCanvas(1));

    QCOMPARE(m_store->database.value("SELECT group_concat(label) FROM canvas_items").toString(),
             QStringLiteral("stored"));
    QCOMPARE(m_store->count("tables"), 0);
}

void tst_FloorPlanDrawing::anItemIsOnlyDrawn()
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
    QCOMPARE(m_store->count("tables"), 0);
}

void tst_FloorPlanDrawing::anItemHasItsDefaults()
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

void tst_FloorPlanDrawing::aNullKeyIsAnAbsentOne()
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

void tst_FloorPlanDrawing::aSaveKeepsTablesAndRenewsRows()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    const int table = m_store->drawTable("A1");
    QVERIFY(service().saveCanvas(1));
    const int firstRow = m_store->database.value("SELECT id FROM canvas_items").toInt();

    QVERIFY(service().saveCanvas(1));

    QVERIFY(m_store->database.value("SELECT id FROM canvas_items").toInt() > firstRow);
    QCOMPARE(m_store->database.value("SELECT table_id FROM canvas_items").toInt(), table);
    QCOMPARE(m_store->count("tables"), 1);
}

void tst_FloorPlanDrawing::anEmptyCanvasEmptiesTheFloor()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    service().addItem({{"type", "wall"}});
    QVERIFY(service().saveCanvas(1));

    service().clearCanvas();
    QVERIFY(service().saveCanvas(1));

    QCOMPARE(m_store->count("canvas_items"), 0);
}

void tst_FloorPlanDrawing::clearingTouchesOnlyTheModel()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_store->drawTable("A1");
    QVERIFY(service().saveCanvas(1));

    service().clearCanvas();

    QCOMPARE(service().canvasModel()->rowCount(), 0);
    QCOMPARE(m_store->count("canvas_items"), 1);
    QCOMPARE(m_store->count("tables"), 1);
}

void tst_FloorPlanDrawing::deletingATableIsNotUndoneByLeaving()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    m_store->drawTable("A1");
    m_store->drawTable("A2");
    QVERIFY(service().saveCanvas(1));

    service().deleteItem(0);
    service().loadCanvas(1);

    QCOMPARE(m_store->database.value("SELECT group_concat(table_name) FROM tables").toString(),
             QStringLiteral("A2"));
    QCOMPARE(ModelRows::column(*service().canvasModel(), "label"), QVariantList({"A2"}));
}

void tst_FloorPlanDrawing::aDeletedWallComesBackWithoutASave()
{
    QCOMPARE(service().createFloor("Hall"), 1);
    service().addItem({{"type", "wall"}, {"label", "w"}});
    QVERIFY(service().saveCanvas(1));

    service().deleteItem(0);
    QCOMPARE(service().canvasModel()->rowCount(), 0);
    service().loadCanvas(1);

    QCOMPARE(ModelRows::column(*service().canvasModel(), "label"), QVariantList({"w"}));
}

void tst_FloorPlanDrawing::aRowOutOfRangeDeletesNothing()
{
    m_store->drawTable("A1");

    service().deleteItem(-1);
    service().deleteItem(1);

    QCOMPARE(service().canvasModel()->rowCount(), 1);
    QCOMPARE(m_store->count("tables"), 1);
}

ZELVAN_TEST(tst_FloorPlanDrawing)
#include "tst_floorplandrawing.moc"
