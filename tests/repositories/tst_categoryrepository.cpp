// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/CategoryRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
Category categoryNamed(const QString &name, int id = -1)
{
    Category category;
    category.id = id;
    category.category = name;
    return category;
}

struct Fixture
{
    TestDatabase db;
    CategoryRepository categories{db.handle()};
};
} // namespace

class tst_CategoryRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anEmptyTableYieldsNoCategories();
    void createdCategoriesAreReadBack();
    void twoCategoriesMayBearOneName();
    void anUpdateRenames();
    void removingTakesTheItemsAlong();
    void removingIsRefusedWhereAnOrderNamesAnItem();
    void everyFailureIsLogged();
};

void tst_CategoryRepository::anEmptyTableYieldsNoCategories()
{
    Fixture f;

    QVERIFY(f.categories.getAllCategories().isEmpty());
    QVERIFY(!f.categories.getCategoryById(1));
}

void tst_CategoryRepository::createdCategoriesAreReadBack()
{
    Fixture f;

    f.categories.create(categoryNamed(QStringLiteral("Soups")));
    f.categories.create(categoryNamed(QStringLiteral("汤 ")));

    const QList<Category> all = f.categories.getAllCategories();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all.at(0).id, 1);
    QCOMPARE(all.at(0).category, QStringLiteral("Soups"));
    const std::optional<Category> second = f.categories.getCategoryById(2);
    QVERIFY(second);
    QCOMPARE(second->id, 2);
    QCOMPARE(second->category, QStringLiteral("汤 "));
}

void tst_CategoryRepository::twoCategoriesMayBearOneName()
{
    Fixture f;

    f.categories.create(categoryNamed(QStringLiteral("Soups")));
    f.categories.create(categoryNamed(QStringLiteral("Soups")));

    QCOMPARE(f.categories.getAllCategories().size(), 2);
}

void tst_CategoryRepository::anUpdateRenames()
{
    Fixture f;
    f.categories.create(categoryNamed(QStringLiteral("Soups")));
    f.categories.create(categoryNamed(QStringLiteral("Drinks")));

    f.categories.update(categoryNamed(QStringLiteral("Broths"), 1));

    QCOMPARE(f.categories.getCategoryById(1)->category, QStringLiteral("Broths"));
    QCOMPARE(f.categories.getCategoryById(2)->category, QStringLiteral("Drinks"));
}

void tst_CategoryRepository::removingTakesTheItemsAlong()
{
    Fixture f;
    f.categories.create(categoryNamed(QStringLiteral("Soups")));
    f.db.run(QStringLiteral("INSERT INTO menu (item, category_id, price, is_available, is_taxable) "
                            "VALUES ('Broth', 1, 500, 1, 1)"));

    f.categories.remove(1);

    QVERIFY(f.categories.getAllCategories().isEmpty());
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM menu")).toInt(), 0);
}

void tst_CategoryRepository::removingIsRefusedWhereAnOrderNamesAnItem()
{
    Fixture f;
    f.categories.create(categoryNamed(QStringLiteral("Soups")));
    f.db.run(QStringLiteral("INSERT INTO menu (item, category_id, price, is_available, is_taxable) "
                            "VALUES ('Broth', 1, 500, 1, 1), ('Bisque', 1, 900, 1, 1)"));
    f.db.run(QStringLiteral("INSERT INTO order_items (item_id, is_taxable) VALUES (1, 1)"));

    const QString log = logOf([&] { f.categories.remove(1); });

    QCOMPARE(log, QStringLiteral("warning [database] remove failed: <QSqlError>"));
    QCOMPARE(f.categories.getAllCategories().size(), 1);
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM menu")).toInt(), 2);
}

void tst_CategoryRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE categories RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { f.categories.create(Category()); }), line("create failed:"));
    QCOMPARE(logOf([&] { f.categories.update(Category()); }), line("update failed:"));
    QCOMPARE(logOf([&] { f.categories.remove(1); }), line("remove failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.categories.getCategoryById(1)); }),
             line("getCategoryById failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.categories.getAllCategories().isEmpty()); }),
             line("getAllCategories failed:"));
}

ZELVAN_TEST(tst_CategoryRepository)
#include "tst_categoryrepository.moc"
