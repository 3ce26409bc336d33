// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/CanvasItemModel.h"
#include "support/ModelRows.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

namespace {
CanvasItem table(int tableId, const QString &label)
{
    CanvasItem item;
    item.id = 40 + tableId;
    item.floor_id = 1;
    item.table_id = tableId;
    item.type = QStringLiteral("table");
    item.label = label;
    item.x = 10.5;
    item.y = 20.0;
    item.width = 80.0;
    item.height = 60.0;
    item.rotation = 90.0;
    item.color = QStringLiteral("#444");
    item.border_color = QStringLiteral("#ffffff");
    item.border_width = 2.0;
    item.opacity = 0.5;
    item.z_order = 3;
    item.metadata = QStringLiteral(R"({"table_type":"circle"})");
    item.capacity = 4;
    item.status = QStringLiteral("available");
    return item;
}

CanvasItem wall()
{
    CanvasItem item;
    item.type = QStringLiteral("wall");
    return item;
}
} // namespace

class tst_CanvasItemModel : public ZelvanTest
{
    Q_OBJECT

private slots:
    void itemsAreReplacedInOneReset();
    void everyRoleIsRead();
    void absentFieldsAreUndefinedToTheDelegatesAndAnAbsentLabelIsEmpty();
    void aMapOfATableLeavesOutLooks();
    void aMapOfAWallLeavesOutWhatIsNotSet();
    void aRowOutOfRangeGivesAnEmptyMap();
    void aRoleIsWrittenAndNotifiedAlone_data();
    void aRoleIsWrittenAndNotifiedAlone();
    void aFixedRoleIsRefused_data();
    void aFixedRoleIsRefused();
    void aValueThatDoesNotConvertIsRefused_data();
    void aValueThatDoesNotConvertIsRefused();
    void fourRolesTakeWhateverTheConversionMakes_data();
    void fourRolesTakeWhateverTheConversionMakes();
    void anInvalidIndexIsNotWritten();
    void rowsAreSelectableEditableAndEnabled();
    void itemsAreAddedReplacedAndRemoved();
    void aRowOutOfRangeIsIgnored();
    void clearingIsOneResetAndNoneWhenEmpty();
    void theStatusGoesToTheFirstItemOfTheTableOnly();
    void theStatusOfATableThatIsNotDrawnChangesNothing();
};

void tst_CanvasItemModel::itemsAreReplacedInOneReset()
{
    CanvasItemModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.setItems({table(1, "A1"), wall()});

    QCOMPARE(resets.count(), 1);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.rowCount(model.index(0)), 0);
    QCOMPARE(model.items().size(), 2);
    QCOMPARE(ModelRows::roles(model),
             QStringList({"257 id", "258 table_id", "259 type", "260 label", "261 x", "262 y",
                          "263 width", "264 height", "265 rotation", "266 color",
                          "267 border_color", "268 border_width", "269 opacity", "270 z_order",
                          "271 metadata", "272 capacity", "273 status"}));
}

void tst_CanvasItemModel::everyRoleIsRead()
{
    CanvasItemModel model;
    model.setItems({table(1, "A1")});

    QCOMPARE(ModelRows::value(model, 0, "id"), QVariant(41));
    QCOMPARE(ModelRows::value(model, 0, "table_id"), QVariant(1));
    QCOMPARE(ModelRows::value(model, 0, "type"), QVariant("table"));
    QCOMPARE(ModelRows::value(model, 0, "label"), QVariant("A1"));
    QCOMPARE(ModelRows::value(model, 0, "x"), QVariant(10.5));
    QCOMPARE(ModelRows::value(model, 0, "y"), QVariant(20.0));
    QCOMPARE(ModelRows::value(model, 0, "width"), QVariant(80.0));
    QCOMPARE(ModelRows::value(model, 0, "height"), QVariant(60.0));
    QCOMPARE(ModelRows::value(model, 0, "rotation"), QVariant(90.0));
    QCOMPARE(ModelRows::value(model, 0, "color"), QVariant("#444"));
    QCOMPARE(ModelRows::value(model, 0, "border_color"), QVariant("#ffffff"));
    QCOMPARE(ModelRows::value(model, 0, "border_width"), QVariant(2.0));
    QCOMPARE(ModelRows::value(model, 0, "opacity"), QVariant(0.5));
    QCOMPARE(ModelRows::value(model, 0, "z_order"), QVariant(3));
    QCOMPARE(ModelRows::value(model, 0, "metadata"), QVariant(R"({"table_type":"circle"})"));
    QCOMPARE(ModelRows::value(model, 0, "capacity"), QVariant(4));
    QCOMPARE(ModelRows::value(model, 0, "status"), QVariant("available"));
    QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
    QVERIFY(!model.data(QModelIndex(), CanvasItemModel::IdRole).isValid());
}

void tst_CanvasItemModel::absentFieldsAreUndefinedToTheDelegatesAndAnAbsentLabelIsEmpty()
{
    CanvasItemModel model;
    model.setItems({wall()});

    for (const char *role : {"table_id", "metadata", "capacity", "status"}) {
        QVERIFY2(!ModelRows::value(model, 0, role).isValid(), role);
    }
    QCOMPARE(ModelRows::value(model, 0, "label"), QVariant(""));
}

void tst_CanvasItemModel::aMapOfATableLeavesOutLooks()
{
    CanvasItemModel model;
    model.setItems({table(1, "A1")});

    const QVariantMap expected{{"id", 41},
                               {"table_id", 1},
                               {"type", "table"},
                               {"label", "A1"},
                               {"x", 10.5},
                               {"y", 20.0},
                               {"width", 80.0},
                               {"height", 60.0},
                               {"metadata", R"({"table_type":"circle"})"},
                               {"capacity", 4},
                               {"status", "available"}};
    QCOMPARE(model.get(0), expected);
}

void tst_CanvasItemModel::aMapOfAWallLeavesOutWhatIsNotSet()
{
    CanvasItemModel model;
    model.setItems({wall()});

    const QVariantMap expected{{"id", -1}, {"type", "wall"}, {"label", ""},   {"x", 0.0},
                               {"y", 0.0}, {"width", 0.0},   {"height", 0.0}, {"metadata", ""}};
    QCOMPARE(model.get(0), expected);
}

void tst_CanvasItemModel::aRowOutOfRangeGivesAnEmptyMap()
{
    CanvasItemModel model;
    model.setItems({wall()});

    QVERIFY(model.get(-1).isEmpty());
    QVERIFY(model.get(1).isEmpty());
}

void tst_CanvasItemModel::aRoleIsWrittenAndNotifiedAlone_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QVariant>("kept");

    const auto row = [](const char *name, int role, const QVariant &given, const QVariant &kept) {
        QTest::newRow(name) << role << given << kept;
    };
    row("label", CanvasItemModel::LabelRole, "B7", "B7");
    row("x", CanvasItemModel::XRole, 1.25, 1.25);
    row("x from an integer", CanvasItemModel::XRole, 7, 7.0);
    row("x from a text", CanvasItemModel::XRole, "7.5", 7.5);
    row("y", CanvasItemModel::YRole, -2.0, -2.0);
    row("width", CanvasItemModel::WidthRole, 99.0, 99.0);
    row("height", CanvasItemModel::HeightRole, 98.0, 98.0);
    row("rotation", CanvasItemModel::RotationRole, 45.0, 45.0);
    row("color", CanvasItemModel::ColorRole, "red", "red");
    row("metadata", CanvasItemModel::MetadataRole, "{}", "{}");
    row("capacity", CanvasItemModel::CapacityRole, 12, 12);
    row("status", CanvasItemModel::StatusRole, "occupied", "occupied");
}

void tst_CanvasItemModel::aRoleIsWrittenAndNotifiedAlone()
{
    QFETCH(int, role);
    QFETCH(QVariant, given);
    QFETCH(QVariant, kept);
    CanvasItemModel model;
    model.setItems({wall(), table(1, "A1")});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    QVERIFY(model.setData(model.index(1), given, role));

    QCOMPARE(model.data(model.index(1), role), kept);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().at(0).toModelIndex().row(), 1);
    QCOMPARE(changed.constFirst().at(2).value<QList<int>>(), QList<int>({role}));
}

void tst_CanvasItemModel::aFixedRoleIsRefused_data()
{
    QTest::addColumn<int>("role");

    QTest::newRow("id") << int(CanvasItemModel::IdRole);
    QTest::newRow("table_id") << int(CanvasItemModel::TableIdRole);
    QTest::newRow("type") << int(CanvasItemModel::TypeRole);
    QTest::newRow("border_color") << int(CanvasItemModel::BorderColorRole);
    QTest::newRow("border_width") << int(CanvasItemModel::BorderWidthRole);
    QTest::newRow("opacity") << int(CanvasItemModel::OpacityRole);
    QTest::newRow("z_order") << int(CanvasItemModel::ZOrderRole);
    QTest::newRow("no role of ours") << int(Qt::EditRole);
}

void tst_CanvasItemModel::aFixedRoleIsRefused()
{
    QFETCH(int, role);
    CanvasItemModel model;
    model.setItems({table(1, "A1")});
    const QVariant before = model.data(model.index(0), role);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    QVERIFY(!model.setData(model.index(0), 9, role));

    QCOMPARE(model.data(model.index(0), role), before);
    QCOMPARE(changed.count(), 0);
}

void tst_CanvasItemModel::aValueThatDoesNotConvertIsRefused_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("given");

    const QVariant nothing;
    const QVariant map = QVariantMap{{"a", 1}};
    QTest::newRow("x") << int(CanvasItemModel::XRole) << map;
    QTest::newRow("x from words") << int(CanvasItemModel::XRole) << QVariant("wide");
    QTest::newRow("y") << int(CanvasItemModel::YRole) << nothing;
    QTest::newRow("width") << int(CanvasItemModel::WidthRole) << map;
    QTest::newRow("height") << int(CanvasItemModel::HeightRole) << map;
    QTest::newRow("rotation") << int(CanvasItemModel::RotationRole) << map;
    QTest::newRow("metadata") << int(CanvasItemModel::MetadataRole) << map;
    QTest::newRow("metadata from nothing") << int(CanvasItemModel::MetadataRole) << nothing;
}

void tst_CanvasItemModel::aValueThatDoesNotConvertIsRefused()
{
    QFETCH(int, role);
    QFETCH(QVariant, given);
    CanvasItemModel model;
    model.setItems({table(1, "A1")});
    const QVariant before = model.data(model.index(0), role);

    QVERIFY(!model.setData(model.index(0), given, role));

    QCOMPARE(model.data(model.index(0), role), before);
}

void tst_CanvasItemModel::fourRolesTakeWhateverTheConversionMakes_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("kept");

    QTest::newRow("label") << int(CanvasItemModel::LabelRole) << QVariant("");
    QTest::newRow("color") << int(CanvasItemModel::ColorRole) << QVariant("");
    QTest::newRow("capacity") << int(CanvasItemModel::CapacityRole) << QVariant(0);
    QTest::newRow("status") << int(CanvasItemModel::StatusRole) << QVariant("");
}

void tst_CanvasItemModel::fourRolesTakeWhateverTheConversionMakes()
{
    QFETCH(int, role);
    QFETCH(QVariant, kept);
    CanvasItemModel model;
    model.setItems({table(1, "A1")});

    QVERIFY(model.setData(model.index(0), QVariantMap{{"a", 1}}, role));

    QCOMPARE(model.data(model.index(0), role), kept);
}

void tst_CanvasItemModel::anInvalidIndexIsNotWritten()
{
    CanvasItemModel model;
    model.setItems({wall()});

    QVERIFY(!model.setData(QModelIndex(), 1.0, CanvasItemModel::XRole));
    QVERIFY(!model.setData(model.index(1), 1.0, CanvasItemModel::XRole));
}

void tst_CanvasItemModel::rowsAreSelectableEditableAndEnabled()
{
    CanvasItemModel model;
    model.setItems({wall()});

    QCOMPARE(model.flags(model.index(0)),
             Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled);
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
}

void tst_CanvasItemModel::itemsAreAddedReplacedAndRemoved()
{
    CanvasItemModel model;
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);

    model.addItem(table(1, "A1"));
    model.addItem(wall());
    model.updateItem(0, table(1, "A9"));
    model.removeItem(1);

    QCOMPARE(inserted.count(), 2);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(ModelRows::column(model, "label"), QVariantList({"A9"}));
}

void tst_CanvasItemModel::aRowOutOfRangeIsIgnored()
{
    CanvasItemModel model;
    model.setItems({table(1, "A1")});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    for (const int row : {-1, 1}) {
        model.updateItem(row, wall());
        model.removeItem(row);
    }

    QCOMPARE(changed.count(), 0);
    QCOMPARE(ModelRows::column(model, "label"), QVariantList({"A1"}));
}

void tst_CanvasItemModel::clearingIsOneResetAndNoneWhenEmpty()
{
    CanvasItemModel model;
    model.setItems({wall()});
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.clear();
    model.clear();

    QCOMPARE(resets.count(), 1);
    QCOMPARE(model.rowCount(), 0);
}

void tst_CanvasItemModel::theStatusGoesToTheFirstItemOfTheTableOnly()
{
    CanvasItemModel model;
    CanvasItem notATable = table(7, "sign");
    notATable.type = QStringLiteral("text");
    model.setItems({notATable, table(7, "A7"), table(7, "A7 again")});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    model.updateStatusByTable(7, "occupied");

    QCOMPARE(ModelRows::column(model, "status"),
             QVariantList({"available", "occupied", "available"}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().at(0).toModelIndex().row(), 1);
    QCOMPARE(changed.constFirst().at(2).value<QList<int>>(),
             QList<int>({CanvasItemModel::StatusRole}));
    QCOMPARE(ModelRows::value(model, 1, "metadata"), QVariant(R"({"table_type":"circle"})"));
}

void tst_CanvasItemModel::theStatusOfATableThatIsNotDrawnChangesNothing()
{
    CanvasItemModel model;
    model.setItems({table(7, "A7"), wall()});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    model.updateStatusByTable(8, "occupied");

    QCOMPARE(changed.count(), 0);
}

ZELVAN_TEST(tst_CanvasItemModel)
#include "tst_canvasitemmodel.moc"
