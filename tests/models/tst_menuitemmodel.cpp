// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/MenuItemModel.h"
#include "repositories/MenuRepository.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

namespace {
void fillMenu(const TestDatabase &database)
{
    database.run("INSERT INTO categories (category) VALUES ('Soups'), ('Drinks')");
    database.run("INSERT INTO menu (item, category_id, price, portion_size, is_available, "
                 "is_taxable) VALUES ('Broth', 1, 1235, 'large', 1, 0), "
                 "('Stew', 1, -5, NULL, 0, 1), ('Tea', 2, 300, '', 1, 1)");
}
} // namespace

class tst_MenuItemModel : public ZelvanTest
{
    Q_OBJECT

private slots:
    void itIsEmptyUntilACategoryIsChosen();
    void itListsTheItemsOfItsCategoryWithPricesInUnits();
    void theSameCategoryAgainDoesNothing();
    void categoryMinusOneEmptiesTheList();
    void aReloadOfAnotherCategoryKeepsTheFilter();
    void anUnknownRowOrRoleHasNoValue();
};

void tst_MenuItemModel::itIsEmptyUntilACategoryIsChosen()
{
    const TestDatabase database;
    fillMenu(database);
    MenuRepository menu(database.handle());

    const MenuItemModel model(&menu);

    QCOMPARE(model.categoryId(), -1);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(ModelRows::roles(model),
             QStringList({"257 id", "258 item", "259 price", "260 categoryId", "261 portion",
                          "262 available", "263 taxable"}));
}

void tst_MenuItemModel::itListsTheItemsOfItsCategoryWithPricesInUnits()
{
    const TestDatabase database;
    fillMenu(database);
    MenuRepository menu(database.handle());
    MenuItemModel model(&menu);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.setCategoryId(1);

    QCOMPARE(resets.count(), 1);
    QCOMPARE(ModelRows::column(model, "id"), QVariantList({1, 2}));
    QCOMPARE(ModelRows::column(model, "item"), QVariantList({"Broth", "Stew"}));
    QCOMPARE(ModelRows::column(model, "price"), QVariantList({12.35, -0.05}));
    QCOMPARE(ModelRows::column(model, "categoryId"), QVariantList({1, 1}));
    QCOMPARE(ModelRows::column(model, "portion"), QVariantList({"large", ""}));
    QCOMPARE(ModelRows::column(model, "available"), QVariantList({true, false}));
    QCOMPARE(ModelRows::column(model, "taxable"), QVariantList({false, true}));
}

void tst_MenuItemModel::theSameCategoryAgainDoesNothing()
{
    const TestDatabase database;
    fillMenu(database);
    MenuRepository menu(database.handle());
    MenuItemModel model(&menu);
    model.setCategoryId(1);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.setCategoryId(1);

    QCOMPARE(resets.count(), 0);
}

void tst_MenuItemModel::categoryMinusOneEmptiesTheList()
{
    const TestDatabase database;
    fillMenu(database);
    MenuRepository menu(database.handle());
    MenuItemModel model(&menu);
    model.setCategoryId(1);

    model.setCategoryId(-1);

    QCOMPARE(model.rowCount(), 0);
}

void tst_MenuItemModel::aReloadOfAnotherCategoryKeepsTheFilter()
{
    const TestDatabase database;
    fillMenu(database);
    MenuRepository menu(database.handle());
    MenuItemModel model(&menu);
    model.setCategoryId(1);

    model.reload(2);

    QCOMPARE(model.categoryId(), 1);
    QCOMPARE(ModelRows::column(model, "item"), QVariantList({"Tea"}));
}

void tst_MenuItemModel::anUnknownRowOrRoleHasNoValue()
{
    const TestDatabase database;
    fillMenu(database);
    MenuRepository menu(database.handle());
    MenuItemModel model(&menu);
    model.setCategoryId(1);

    QVERIFY(!model.data(QModelIndex(), MenuItemModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(2), MenuItemModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
    QCOMPARE(model.rowCount(model.index(0)), 0);
}

ZELVAN_TEST(tst_MenuItemModel)
#include "tst_menuitemmodel.moc"
