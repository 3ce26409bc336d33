// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/MenuStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <limits>
#include <memory>

/// The items of the menu: what is stored, refused and shown.
class tst_MenuItems : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void anItemIsStoredAsGiven();
    void anItemOfAnotherCategoryLeavesTheListUnchanged();
    void anItemWithoutAPortionHasAnEmptyOne();
    void anItemIsRefused_data();
    void anItemIsRefused();

    void aPriceBecomesCentsRoundedHalfAwayFromZero_data();
    void aPriceBecomesCentsRoundedHalfAwayFromZero();
    void anEditedItemMovesToItsCategoryAtOnce();
    void anEditRoundsItsPriceToo();
    void anEditIsRefused_data();
    void anEditIsRefused();

    void anItemIsRemovedWithoutASignal();
    void anItemThatAnOrderNamesStays();
    void removingAnUnknownItemIsRefused();

private:
    [[nodiscard]] MenuService &service() { return m_store->service; }

    std::unique_ptr<MenuStore> m_store;
};

void tst_MenuItems::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<MenuStore>();
}

void tst_MenuItems::anItemIsStoredAsGiven()
{
    QVERIFY(service().addCategory("Soups"));
    service().setCurrentCategoryId(1);
    QSignalSpy items(&service(), &MenuService::menuItemsChanged);

    QVERIFY(service().addMenuItem(" Broth ", 1, 5.5, false, true, " large "));
    QVERIFY(service().addMenuItem(" Broth ", 1, 0.0, true, false));

    QCOMPARE(m_store->shownItems(), QVariantList({" Broth ", " Broth "}));
    const MenuItemModel &model = *service().menuItemModel();
    QCOMPARE(ModelRows::column(model, "portion"), QVariantList({" large ", ""}));
    QCOMPARE(ModelRows::column(model, "price"), QVariantList({5.5, 0.0}));
    QCOMPARE(ModelRows::column(model, "available"), QVariantList({false, true}));
    QCOMPARE(ModelRows::column(model, "taxable"), QVariantList({true, false}));
    QCOMPARE(items.count(), 0);
}

void tst_MenuItems::anItemOfAnotherCategoryLeavesTheListUnchanged()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addCategory("Drinks"));
    service().setCurrentCategoryId(1);
    QSignalSpy resets(service().menuItemModel(), &QAbstractItemModel::modelReset);

    QVERIFY(service().addMenuItem("Tea", 2, 3.0, true, true));

    QCOMPARE(m_store->database.value("SELECT COUNT(*) FROM menu WHERE category_id = 2"),
             QVariant(1));
    QCOMPARE(resets.count(), 0);
}

void tst_MenuItems::anItemWithoutAPortionHasAnEmptyOne()
{
    QVERIFY(service().addCategory("Soups"));

    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    QVERIFY(service().editMenuItem(1, "Broth", 1, 5.0, true, true, QString()));

    QCOMPARE(m_store->database.value("SELECT portion_size FROM menu"), QVariant(""));
    QCOMPARE(m_store->database.value("SELECT portion_size IS NULL FROM menu"), QVariant(0));
}

void tst_MenuItems::anItemIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("categoryId");
    QTest::addColumn<QString>("line");

    QTest::newRow("blank name") << "  " << 1 << "Item name cannot be empty";
    QTest::newRow("unknown category") << "Broth" << 9 << "Category with ID 9 not found";
}

void tst_MenuItems::anItemIsRefused()
{
    QFETCH(QString, name);
    QFETCH(int, categoryId);
    QFETCH(QString, line);
    QVERIFY(service().addCategory("Soups"));

    expectLog(QtWarningMsg, line);
    QVERIFY(!service().addMenuItem(name, categoryId, 5.0, true, true));

    QCOMPARE(m_store->database.value("SELECT COUNT(*) FROM menu"), QVariant(0));
}

void tst_MenuItems::aPriceBecomesCentsRoundedHalfAwayFromZero_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<int>("cents");

    QTest::newRow("whole") << 5.0 << 500;
    QTest::newRow("12.345") << 12.345 << 1235;
    QTest::newRow("19.99") << 19.99 << 1999;
    QTest::newRow("half a cent") << 0.005 << 1;
    QTest::newRow("minus half a cent") << -0.005 << -1;
    QTest::newRow("less than half a cent") << 0.0049 << 0;
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("negative") << -1.0 << -100;
    QTest::newRow("a thousand million") << 1e9 << std::numeric_limits<int>::max();
    QTest::newRow("minus a thousand million") << -1e9 << std::numeric_limits<int>::min();
    QTest::newRow("largest") << 21474836.47 << std::numeric_limits<int>::max();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity()
                              << std::numeric_limits<int>::max();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void tst_MenuItems::aPriceBecomesCentsRoundedHalfAwayFromZero()
{
    QFETCH(double, price);
    QFETCH(int, cents);
    QVERIFY(service().addCategory("Soups"));

    QVERIFY(service().addMenuItem("Broth", 1, price, true, true));

    QCOMPARE(m_store->database.value("SELECT price FROM menu"), QVariant(cents));
}

void tst_MenuItems::anEditedItemMovesToItsCategoryAtOnce()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addCategory("Drinks"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    service().setCurrentCategoryId(1);
    QSignalSpy items(&service(), &MenuService::menuItemsChanged);

    QVERIFY(service().editMenuItem(1, " Tea ", 2, 3.0, false, false, "cup"));

    QVERIFY(m_store->shownItems().isEmpty());
    QCOMPARE(items.count(), 1);
    QCOMPARE(m_store->database
                 .value("SELECT item || category_id || price || portion_size || "
                        "is_available || is_taxable FROM menu")
                 .toString(),
             QStringLiteral(" Tea 2300cup00"));
}

void tst_MenuItems::anEditRoundsItsPriceToo()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));

    QVERIFY(service().editMenuItem(1, "Broth", 1, 12.345, true, true));

    QCOMPARE(m_store->database.value("SELECT price FROM menu"), QVariant(1235));
}

void tst_MenuItems::anEditIsRefused_data()
{
    QTest::addColumn<int>("itemId");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("categoryId");
    QTest::addColumn<QString>("line");

    QTest::newRow("unknown item, told first") << 9 << " " << 9 << "Menu item with ID 9 not found";
    QTest::newRow("blank name") << 1 << " " << 9 << "Item name cannot be empty";
    QTest::newRow("unknown category") << 1 << "Tea" << 9 << "Category with ID 9 not found";
}

void tst_MenuItems::anEditIsRefused()
{
    QFETCH(int, itemId);
    QFETCH(QString, name);
    QFETCH(int, categoryId);
    QFETCH(QString, line);
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    QSignalSpy items(&service(), &MenuService::menuItemsChanged);

    expectLog(QtWarningMsg, line);
    QVERIFY(!service().editMenuItem(itemId, name, categoryId, 1.0, true, true));

    QCOMPARE(items.count(), 0);
    QCOMPARE(m_store->database.value("SELECT item FROM menu").toString(), QStringLiteral("Broth"));
}

void tst_MenuItems::anItemIsRemovedWithoutASignal()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    service().setCurrentCategoryId(1);
    QSignalSpy items(&service(), &MenuService::menuItemsChanged);

    QVERIFY(service().removeMenuItem(1));

    QVERIFY(m_store->shownItems().isEmpty());
    QCOMPARE(items.count(), 0);
}

void tst_MenuItems::anItemThatAnOrderNamesStays()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    service().setCurrentCategoryId(1);
    m_store->orderFirstItem();

    expectLog(QtWarningMsg, "remove failed:");
    QVERIFY(service().removeMenuItem(1));

    QCOMPARE(m_store->shownItems(), QVariantList({"Broth"}));
}

void tst_MenuItems::removingAnUnknownItemIsRefused()
{
    expectLog(QtWarningMsg, "Menu item with ID 9 not found");
    QVERIFY(!service().removeMenuItem(9));
}

ZELVAN_TEST(tst_MenuItems)
#include "tst_menuitems.moc"
