// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/FloorModel.h"
#include "support/ModelRows.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

namespace {
const Floor hall{1, QStringLiteral("Hall"), 1, 1, 1};
const Floor garden{2, QStringLiteral("Garden"), 2, 2, 0};
} // namespace

class tst_FloorModel : public ZelvanTest
{
    Q_OBJECT

private slots:
    void floorsAreReplacedInOneReset();
    void aFloorIsReadAsAMapOfItsRoles();
    void aRowOutOfRangeGivesAnEmptyMap();
    void aFloorIsAppended();
    void aFloorIsReplacedInItsRow();
    void aFloorIsRemoved();
    void aRowOutOfRangeIsIgnored();
    void anUnknownRowOrRoleHasNoValue();
};

void tst_FloorModel::floorsAreReplacedInOneReset()
{
    FloorModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.setFloors({hall, garden});

    QCOMPARE(resets.count(), 1);
    QCOMPARE(ModelRows::roles(model), QStringList({"257 id", "258 name", "259 floor_number",
                                                   "260 sort_order", "261 is_active"}));
    QCOMPARE(ModelRows::column(model, "id"), QVariantList({1, 2}));
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"Hall", "Garden"}));
    QCOMPARE(ModelRows::column(model, "floor_number"), QVariantList({1, 2}));
    QCOMPARE(ModelRows::column(model, "sort_order"), QVariantList({1, 2}));
    QCOMPARE(ModelRows::column(model, "is_active"), QVariantList({1, 0}));
    QCOMPARE(model.floors().size(), 2);
}

void tst_FloorModel::aFloorIsReadAsAMapOfItsRoles()
{
    FloorModel model;
    model.setFloors({hall, garden});

    const QVariantMap expected{
        {"id", 2}, {"name", "Garden"}, {"floor_number", 2}, {"sort_order", 2}, {"is_active", 0}};
    QCOMPARE(model.getFloor(1), expected);
}

void tst_FloorModel::aRowOutOfRangeGivesAnEmptyMap()
{
    FloorModel model;
    model.setFloors({hall});

    QVERIFY(model.getFloor(-1).isEmpty());
    QVERIFY(model.getFloor(1).isEmpty());
}

void tst_FloorModel::aFloorIsAppended()
{
    FloorModel model;
    model.setFloors({hall});
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);

    model.addFloor(garden);

    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.constFirst().at(1).toInt(), 1);
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"Hall", "Garden"}));
}

void tst_FloorModel::aFloorIsReplacedInItsRow()
{
    FloorModel model;
    model.setFloors({hall, garden});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    model.updateFloor(1, {2, QStringLiteral("Terrace"), 5, 6, 1});

    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().at(0).toModelIndex().row(), 1);
    QCOMPARE(changed.constFirst().at(1).toModelIndex().row(), 1);
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"Hall", "Terrace"}));
    QCOMPARE(ModelRows::column(model, "sort_order"), QVariantList({1, 6}));
}

void tst_FloorModel::aFloorIsRemoved()
{
    FloorModel model;
    model.setFloors({hall, garden});
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);

    model.removeFloor(0);

    QCOMPARE(removed.count(), 1);
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"Garden"}));
}

void tst_FloorModel::aRowOutOfRangeIsIgnored()
{
    FloorModel model;
    model.setFloors({hall});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    for (const int row : {-1, 1}) {
        model.updateFloor(row, garden);
        model.removeFloor(row);
    }

    QCOMPARE(changed.count(), 0);
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"Hall"}));
}

void tst_FloorModel::anUnknownRowOrRoleHasNoValue()
{
    FloorModel model;
    model.setFloors({hall});

    QVERIFY(!model.data(QModelIndex(), FloorModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(1), FloorModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
    QCOMPARE(model.rowCount(model.index(0)), 0);
}

ZELVAN_TEST(tst_FloorModel)
#include "tst_floormodel.moc"
