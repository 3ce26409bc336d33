// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/TableModel.h"
#include "repositories/TableRepository.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

class tst_TableModel : public ZelvanTest
{
    Q_OBJECT

private slots:
    void itIsNotFilledAtConstruction();
    void aReloadRefillsInOneReset();
    void anUnknownRowOrRoleHasNoValue();
};

void tst_TableModel::itIsNotFilledAtConstruction()
{
    const TestDatabase database;
    database.run("INSERT INTO tables (table_name, capacity, status) VALUES ('A1', 4, 'available')");
    TableRepository tables(database.handle());

    const TableModel model(&tables);

    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(ModelRows::roles(model),
             QStringList({"257 id", "258 name", "259 capacity", "260 status"}));
}

void tst_TableModel::aReloadRefillsInOneReset()
{
    const TestDatabase database;
    database.run("INSERT INTO tables (table_name, capacity, status) VALUES "
                 "('A1', 4, 'available'), ('A2', 2, 'occupied')");
    TableRepository tables(database.handle());
    TableModel model(&tables);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.reload();

    QCOMPARE(resets.count(), 1);
    QCOMPARE(ModelRows::column(model, "id"), QVariantList({1, 2}));
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"A1", "A2"}));
    QCOMPARE(ModelRows::column(model, "capacity"), QVariantList({4, 2}));
    QCOMPARE(ModelRows::column(model, "status"), QVariantList({"available", "occupied"}));
}

void tst_TableModel::anUnknownRowOrRoleHasNoValue()
{
    const TestDatabase database;
    database.run("INSERT INTO tables (table_name, capacity, status) VALUES ('A1', 4, 'available')");
    TableRepository tables(database.handle());
    TableModel model(&tables);
    model.reload();

    QVERIFY(!model.data(QModelIndex(), TableModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(1), TableModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
    QCOMPARE(model.rowCount(model.index(0)), 0);
}

ZELVAN_TEST(tst_TableModel)
#include "tst_tablemodel.moc"
