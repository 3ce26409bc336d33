// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MenuRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
MenuItem dish(const QString &name, int categoryId, int priceCents)
{
    MenuItem item;
    item.item = name;
    item.category_id = categoryId;
    item.price = priceCents;
    return item;
}

struct Fixture
{
    Fixture() { db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('A'), ('B')")); }

    TestDatabase db;
    MenuRepository menu{db.handle()};
};
} // namespace

class tst_MenuRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedItemIsReadBackWhole();
    void anAbsentPortionIsNullAndABlankOneIsEmptyText();
    void onlyTheItemsOfTheCategoryAreListed();
    void noCategoryListsNothing();
    void anUpdateChangesEveryField();
    void anItemThatAnOrderNamesCannotBeRemoved();
    void anUnorderedItemCanBeRemoved();
    void everyFailureIsLogged();
};

void tst_MenuRepository::aCreatedItemIsReadBackWhole()
{
    Fixture f;
    MenuItem item = dish(QStringLiteral("Broth"), 2, -350);
    item.portion_size = QStringLiteral("large");
    item.is_available = false;
    item.is_taxable = true;

    f.menu.create(item);

    const std::optional<MenuItem> found = f.menu.getMenuItemById(1);
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->item, QStringLiteral("Broth"));
    QCOMPARE(found->category_id, 2);
    QCOMPARE(found->price, -350);
    QCOMPARE(found->portion_size, std::optional(QStringLiteral("large")));
    QCOMPARE(found->is_available, false);
    QCOMPARE(found->is_taxable, true);
}

void tst_MenuRepository::anAbsentPortionIsNullAndABlankOneIsEmptyText()
{
    Fixture f;
    MenuItem blank = dish(QStringLiteral("Blank"), 1, 1);
    blank.portion_size = QString();

    f.menu.create(dish(QStringLiteral("Absent"), 1, 1));
    f.menu.create(blank);

    QVERIFY(!f.menu.getMenuItemById(1)->portion_size.has_value());
    QVERIFY(f.menu.getMenuItemById(2)->portion_size.has_value());
    QCOMPARE(
        f.db.value(QStringLiteral("SELECT COUNT(*) FROM menu WHERE portion_size = ''")).toInt(), 1);
}

void tst_MenuRepository::onlyTheItemsOfTheCategoryAreListed()
{
    Fixture f;
    f.menu.create(dish(QStringLiteral("Broth"), 1, 100));
    f.menu.create(dish(QStringLiteral("Tea"), 2, 200));
    f.menu.create(dish(QStringLiteral("Broth"), 1, 100));

    const QList<MenuItem> items = f.menu.getMenuItemsByCategory(1);

    QCOMPARE(items.size(), 2);
    QCOMPARE(items.at(0).id, 1);
    QCOMPARE(items.at(1).id, 3);
    QCOMPARE(f.menu.getAllMenuItems().size(), 3);
}

void tst_MenuRepository::noCategoryListsNothing()
{
    Fixture f;
    f.menu.create(dish(QStringLiteral("Broth"), 1, 100));

    QVERIFY(f.menu.getMenuItemsByCategory(-1).isEmpty());
}

void tst_MenuRepository::anUpdateChangesEveryField()
{
    Fixture f;
    f.menu.create(dish(QStringLiteral("Broth"), 1, 100));
    f.menu.create(dish(QStringLiteral("Other"), 1, 100));
    MenuItem changed = dish(QStringLiteral("Bisque"), 2, 950);
    changed.id = 1;
    changed.portion_size = QStringLiteral("small");
    changed.is_available = false;
    changed.is_taxable = false;

    f.menu.update(changed);

    const std::optional<MenuItem> found = f.menu.getMenuItemById(1);
    QCOMPARE(found->item, QStringLiteral("Bisque"));
    QCOMPARE(found->category_id, 2);
    QCOMPARE(found->price, 950);
    QCOMPARE(found->portion_size, std::optional(QStringLiteral("small")));
    QVERIFY(!found->is_available && !found->is_taxable);
    QCOMPARE(f.menu.getMenuItemById(2)->item, QStringLiteral("Other"));
}

void tst_MenuRepository::anItemThatAnOrderNamesCannotBeRemoved()
{
    Fixture f;
    f.menu.create(dish(QStringLiteral("Broth"), 1, 100));
    f.db.run(QStringLiteral("INSERT INTO order_items (item_id, is_taxable) VALUES (1, 1)"));

    const QString log = logOf([&] { f.menu.remove(1); });

    QCOMPARE(log, QStringLiteral("warning [database] remove failed: <QSqlError>"));
    QVERIFY(f.menu.getMenuItemById(1));
}

void tst_MenuRepository::anUnorderedItemCanBeRemoved()
{
    Fixture f;
    f.menu.create(dish(QStringLiteral("Broth"), 1, 100));
    f.menu.create(dish(QStringLiteral("Tea"), 1, 100));

    f.menu.remove(1);

    QVERIFY(!f.menu.getMenuItemById(1));
    QVERIFY(f.menu.getMenuItemById(2));
}

void tst_MenuRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    QCOMPARE(logOf([&] { f.menu.create(dish(QStringLiteral("No category"), 99, 1)); }),
             line("create failed:"));
    f.db.run(QStringLiteral("ALTER TABLE menu RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { f.menu.create(MenuItem()); }), line("create failed:"));
    QCOMPARE(logOf([&] { f.menu.update(MenuItem()); }), line("update failed:"));
    QCOMPARE(logOf([&] { f.menu.remove(1); }), line("remove failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.menu.getMenuItemById(1)); }), line("getMenuItemById failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.menu.getMenuItemsByCategory(1).isEmpty()); }),
             line("getMenuItemsByCategory failed:"));
    // The text of the categories is this operation's own.
    QCOMPARE(logOf([&] { QVERIFY(f.menu.getAllMenuItems().isEmpty()); }),
             line("getAllCategories failed:"));
}

ZELVAN_TEST(tst_MenuRepository)
#include "tst_menurepository.moc"
