// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/CategoryModel.h"
#include "repositories/CategoryRepository.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

class tst_CategoryModel : public ZelvanTest
{
    Q_OBJECT

private slots:
    void categoriesAreThereFromTheStart();
    void anEmptyTableGivesAnEmptyModel();
    void anUnknownRowOrRoleHasNoValue();
    void aRefillIsOneReset();
};

void tst_CategoryModel::categoriesAreThereFromTheStart()
{
    const TestDatabase database;
    database.run("INSERT INTO categories (category) VALUES ('Soups'), ('Soups'), ('饮料')");
    CategoryRepository categories(database.handle());

    const CategoryModel model(&categories);

    QCOMPARE(ModelRows::roles(model), QStringList({"257 id", "258 name"}));
    QCOMPARE(ModelRows::column(model, "id"), QVariantList({1, 2, 3}));
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"Soups", "Soups", "饮料"}));
}

void tst_CategoryModel::anEmptyTableGivesAnEmptyModel()
{
    const TestDatabase database;
    CategoryRepository categories(database.handle());

    QCOMPARE(CategoryModel(&categories).rowCount(), 0);
}

void tst_CategoryModel::anUnknownRowOrRoleHasNoValue()
{
    const TestDatabase database;
    database.run("INSERT INTO categories (category) VALUES ('Soups')");
    CategoryRepository categories(database.handle());
    const CategoryModel model(&categories);

    QVERIFY(!model.data(QModelIndex(), CategoryModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(1), CategoryModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
    QCOMPARE(model.rowCount(model.index(0)), 0);
}

void tst_CategoryModel::aRefillIsOneReset()
{
    const TestDatabase database;
    CategoryRepository categories(database.handle());
    CategoryModel model(&categories);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    database.run("INSERT INTO categories (category) VALUES ('Soups')");
    model.reload();

    QCOMPARE(resets.count(), 1);
    QCOMPARE(model.rowCount(), 1);
}

ZELVAN_TEST(tst_CategoryModel)
#include "tst_categorymodel.moc"
