// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/MenuItemModel.h"
#include "repositories/MenuRepository.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

namespace {
struct Fixture
{
    Fixture()
    {
        database.run("INSERT INTO categories (category) VALUES ('Soups'), ('Drinks')");
        database.run("INSERT INTO menu (item, category_id, price, portion_size, is_available, "
                     "is_taxable) VALUES ('Broth', 1, 1235, 'large', 1, 0), "
                     "('Stew', 1, -5, NULL, 0, 1), ('Tea', 2, 300, '', 1, 1)");
    }

    TestDatabase database;
    MenuRepository menu{database.handle()};
    MenuItemModel model{&menu};
};
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
    Fixture f;

    const MenuItemModel model(&f.menu);

    QCOMPARE(model.categoryId(), -1);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(ModelRows::roles(model),
             QStringList({"257 id", "258 item", "259 price", "260 categoryId", "261 portion",
                          "262 available", "263 taxable"}));
}

void tst_MenuItemModel::itListsTheItemsOfItsCategoryWithPricesInUnits()
{
    Fixture f;
    QSignalSpy resets(&f.model, &QAbstractItemModel::modelReset);

    f.model.setCategoryId(1);

    QCOMPARE(resets.count(), 1);
    QCOMPARE(ModelRows::column(f.model, "id"), QVariantList({1, 2}));
    QCOMPARE(ModelRows::column(f.model, "item"), QVariantList({"Broth", "Stew"}));
    QCOMPARE(ModelRows::column(f.model, "price"), QVariantList({12.35, -0.05}));
    QCOMPARE(ModelRows::column(f.model, "categoryId"), QVariantList({1, 1}));
    QCOMPARE(ModelRows::column(f.model, "portion"), QVariantList({"large", ""}));
    QCOMPARE(ModelRows::column(f.model, "available"), QVariantList({true, false}));
    QCOMPARE(ModelRows::column(f.model, "taxable"), QVariantList({false, true}));
}

void tst_MenuItemModel::theSameCategoryAgainDoesNothing()
{
    Fixture f;
    f.model.setCategoryId(1);
    QSignalSpy resets(&f.model, &QAbstractItemModel::modelReset);

    f.model.setCategoryId(1);

    QCOMPARE(resets.count(), 0);
}

void tst_MenuItemModel::categoryMinusOneEmptiesTheList()
{
    Fixture f;
    f.model.setCategoryId(1);

    f.model.setCategoryId(-1);

    QCOMPARE(f.model.rowCount(), 0);
}

void tst_MenuItemModel::aReloadOfAnotherCategoryKeepsTheFilter()
{
    Fixture f;
    f.model.setCategoryId(1);

    f.model.reload(2);

    QCOMPARE(f.model.categoryId(), 1);
    QCOMPARE(ModelRows::column(f.model, "item"), QVariantList({"Tea"}));
}

void tst_MenuItemModel::anUnknownRowOrRoleHasNoValue()
{
    Fixture f;
    f.model.setCategoryId(1);

    QVERIFY(!f.model.data(QModelIndex(), MenuItemModel::IdRole).isValid());
    QVERIFY(!f.model.data(f.model.index(2), MenuItemModel::IdRole).isValid());
    QVERIFY(!f.model.data(f.model.index(0), Qt::DisplayRole).isValid());
    QCOMPARE(f.model.rowCount(f.model.index(0)), 0);
}

ZELVAN_TEST(tst_MenuItemModel)
#include "tst_menuitemmodel.moc"
