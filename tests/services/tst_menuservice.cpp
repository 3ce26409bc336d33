// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/CategoryRepository.h"
#include "repositories/MenuRepository.h"
#include "services/MenuService.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <limits>
#include <memory>

class tst_MenuService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itsSignaturesAreThoseTheScreensCall();
    void anEmptyMenuSelectsNothing();

    void choosingACategoryTellsInOrder();
    void theSameCategoryAgainTellsNothing();
    void choosingNoCategoryEmptiesTheItems();

    void aCategoryIsStoredAsGiven();
    void twoCategoriesMayBearTheSameName();
    void aBlankCategoryNameIsRefused();
    void aCategoryIsRenamed();
    void aRenameIsRefused();
    void aCategoryGoesWithItsItems();
    void removingTheSelectedCategoryFallsBackToNone();
    void removingAnotherCategoryKeepsTheSelection();
    void removingAnUnknownCategoryIsRefused();
    void aCategoryThatAnOrderNamesStaysAndTheSelectionFallsBack();

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
    void aFailedWriteStillReportsSuccess();

private:
    [[nodiscard]] QVariantList shownItems() const
    {
        return ModelRows::column(*m_service->menuItemModel(), "item");
    }
    [[nodiscard]] QVariantList shownCategories() const
    {
        return ModelRows::column(*m_service->categoryModel(), "name");
    }
    /// An order line that names the item with id 1.
    void orderFirstItem();

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<MenuRepository> m_menu;
    std::unique_ptr<CategoryRepository> m_categories;
    std::unique_ptr<MenuService> m_service;
};

void tst_MenuService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_menu = std::make_unique<MenuRepository>(m_database->handle());
    m_categories = std::make_unique<CategoryRepository>(m_database->handle());
    m_service = std::make_unique<MenuService>(m_menu.get(), m_categories.get());
}

void tst_MenuService::cleanup()
{
    m_service.reset();
    m_categories.reset();
    m_menu.reset();
    m_database.reset();
}

void tst_MenuService::orderFirstItem()
{
    m_database->run("INSERT INTO order_sessions (display_number, order_type, status) "
                    "VALUES (1, 'takeaway', 'open')");
    m_database->run("INSERT INTO orders (order_session_id, display_number, status) "
                    "VALUES (1, 1, 'pending')");
    m_database->run("INSERT INTO order_items (order_id, item_id, item_name, quantity, price, "
                    "is_taxable, item_status) VALUES (1, 1, 'Broth', 1, 500, 1, 'pending')");
}

void tst_MenuService::itsSignaturesAreThoseTheScreensCall()
{
    const QMetaObject &meta = MenuService::staticMetaObject;
    for (const char *signature :
         {"addCategory(QString)", "renameCategory(int,QString)", "removeCategory(int)",
          "addMenuItem(QString,int,double,bool,bool,QString)",
          "addMenuItem(QString,int,double,bool,bool)",
          "editMenuItem(int,QString,int,double,bool,bool,QString)",
          "editMenuItem(int,QString,int,double,bool,bool)", "removeMenuItem(int)"}) {
        const int index = meta.indexOfMethod(signature);
        QVERIFY2(index >= 0, signature);
        QCOMPARE(meta.method(index).returnType(), int(QMetaType::Bool));
    }
    QVERIFY(meta.indexOfSlot("setCurrentCategoryId(int)") >= 0);
    QVERIFY(meta.indexOfSignal("menuItemsChanged()") <
            meta.indexOfSignal("currentCategoryIdChanged()"));
}

void tst_MenuService::anEmptyMenuSelectsNothing()
{
    QCOMPARE(m_service->categoryModel()->rowCount(), 0);
    QCOMPARE(m_service->menuItemModel()->rowCount(), 0);
    QCOMPARE(m_service->currentCategoryId(), -1);
}

void tst_MenuService::choosingACategoryTellsInOrder()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    QStringList told;
    connect(m_service.get(), &MenuService::currentCategoryIdChanged, this,
            [&] { told.append(QStringLiteral("category, %1 shown").arg(shownItems().size())); });
    connect(m_service.get(), &MenuService::menuItemsChanged, this,
            [&] { told.append(QStringLiteral("items, %1 shown").arg(shownItems().size())); });

    m_service->setProperty("currentCategoryId", 1);

    QCOMPARE(told, QStringList({"category, 0 shown", "items, 1 shown"}));
    QCOMPARE(m_service->property("currentCategoryId").toInt(), 1);
    QCOMPARE(shownItems(), QVariantList({"Broth"}));
}

void tst_MenuService::theSameCategoryAgainTellsNothing()
{
    m_service->setCurrentCategoryId(1);
    QSignalSpy category(m_service.get(), &MenuService::currentCategoryIdChanged);
    QSignalSpy items(m_service.get(), &MenuService::menuItemsChanged);

    m_service->setCurrentCategoryId(1);

    QCOMPARE(category.count(), 0);
    QCOMPARE(items.count(), 0);
}

void tst_MenuService::choosingNoCategoryEmptiesTheItems()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    m_service->setCurrentCategoryId(1);

    m_service->setCurrentCategoryId(-1);

    QVERIFY(shownItems().isEmpty());
}

void tst_MenuService::aCategoryIsStoredAsGiven()
{
    QVERIFY(m_service->addCategory("  Soups "));

    QCOMPARE(shownCategories(), QVariantList({"  Soups "}));
}

void tst_MenuService::twoCategoriesMayBearTheSameName()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addCategory("Soups"));

    QCOMPARE(shownCategories(), QVariantList({"Soups", "Soups"}));
}

void tst_MenuService::aBlankCategoryNameIsRefused()
{
    expectLog(QtWarningMsg, "Cannot add empty category name");
    QVERIFY(!m_service->addCategory(" \t "));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM categories"), QVariant(0));
}

void tst_MenuService::aCategoryIsRenamed()
{
    QVERIFY(m_service->addCategory("Soups"));

    QVERIFY(m_service->renameCategory(1, " Drinks"));

    QCOMPARE(shownCategories(), QVariantList({" Drinks"}));
}

void tst_MenuService::aRenameIsRefused()
{
    QVERIFY(m_service->addCategory("Soups"));

    expectLog(QtWarningMsg, "Cannot rename category to empty name");
    QVERIFY(!m_service->renameCategory(1, "  "));
    expectLog(QtWarningMsg, "Category with ID 9 not found");
    QVERIFY(!m_service->renameCategory(9, "Drinks"));

    QCOMPARE(shownCategories(), QVariantList({"Soups"}));
}

void tst_MenuService::aCategoryGoesWithItsItems()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));

    QVERIFY(m_service->removeCategory(1));

    QVERIFY(shownCategories().isEmpty());
    QCOMPARE(m_database->value("SELECT COUNT(*) FROM menu"), QVariant(0));
}

void tst_MenuService::removingTheSelectedCategoryFallsBackToNone()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    m_service->setCurrentCategoryId(1);
    QSignalSpy category(m_service.get(), &MenuService::currentCategoryIdChanged);
    QSignalSpy items(m_service.get(), &MenuService::menuItemsChanged);

    QVERIFY(m_service->removeCategory(1));

    QCOMPARE(m_service->currentCategoryId(), -1);
    QVERIFY(shownItems().isEmpty());
    QCOMPARE(category.count(), 1);
    QCOMPARE(items.count(), 1);
}

void tst_MenuService::removingAnotherCategoryKeepsTheSelection()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addCategory("Drinks"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    m_service->setCurrentCategoryId(1);
    QSignalSpy category(m_service.get(), &MenuService::currentCategoryIdChanged);
    QSignalSpy items(m_service.get(), &MenuService::menuItemsChanged);

    QVERIFY(m_service->removeCategory(2));

    QCOMPARE(m_service->currentCategoryId(), 1);
    QCOMPARE(shownItems(), QVariantList({"Broth"}));
    QCOMPARE(category.count() + items.count(), 0);
}

void tst_MenuService::removingAnUnknownCategoryIsRefused()
{
    expectLog(QtWarningMsg, "Category with ID -1 not found");
    QVERIFY(!m_service->removeCategory(-1));
}

void tst_MenuService::aCategoryThatAnOrderNamesStaysAndTheSelectionFallsBack()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    m_service->setCurrentCategoryId(1);
    orderFirstItem();

    expectLog(QtWarningMsg, "remove failed:");
    QVERIFY(m_service->removeCategory(1));

    QCOMPARE(shownCategories(), QVariantList({"Soups"}));
    QCOMPARE(m_database->value("SELECT COUNT(*) FROM menu"), QVariant(1));
    QCOMPARE(m_service->currentCategoryId(), -1);
}

void tst_MenuService::anItemIsStoredAsGiven()
{
    QVERIFY(m_service->addCategory("Soups"));
    m_service->setCurrentCategoryId(1);
    QSignalSpy items(m_service.get(), &MenuService::menuItemsChanged);

    QVERIFY(m_service->addMenuItem(" Broth ", 1, 5.5, false, true, " large "));
    QVERIFY(m_service->addMenuItem(" Broth ", 1, 0.0, true, false));

    QCOMPARE(shownItems(), QVariantList({" Broth ", " Broth "}));
    const MenuItemModel &model = *m_service->menuItemModel();
    QCOMPARE(ModelRows::column(model, "portion"), QVariantList({" large ", ""}));
    QCOMPARE(ModelRows::column(model, "price"), QVariantList({5.5, 0.0}));
    QCOMPARE(ModelRows::column(model, "available"), QVariantList({false, true}));
    QCOMPARE(ModelRows::column(model, "taxable"), QVariantList({true, false}));
    QCOMPARE(items.count(), 0);
}

void tst_MenuService::anItemOfAnotherCategoryLeavesTheListUnchanged()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addCategory("Drinks"));
    m_service->setCurrentCategoryId(1);
    QSignalSpy resets(m_service->menuItemModel(), &QAbstractItemModel::modelReset);

    QVERIFY(m_service->addMenuItem("Tea", 2, 3.0, true, true));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM menu WHERE category_id = 2"), QVariant(1));
    QCOMPARE(resets.count(), 0);
}

void tst_MenuService::anItemWithoutAPortionHasAnEmptyOne()
{
    QVERIFY(m_service->addCategory("Soups"));

    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    QVERIFY(m_service->editMenuItem(1, "Broth", 1, 5.0, true, true, QString()));

    QCOMPARE(m_database->value("SELECT portion_size FROM menu"), QVariant(""));
    QCOMPARE(m_database->value("SELECT portion_size IS NULL FROM menu"), QVariant(0));
}

void tst_MenuService::anItemIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("categoryId");
    QTest::addColumn<QString>("line");

    QTest::newRow("blank name") << "  " << 1 << "Item name cannot be empty";
    QTest::newRow("unknown category") << "Broth" << 9 << "Category with ID 9 not found";
}

void tst_MenuService::anItemIsRefused()
{
    QFETCH(QString, name);
    QFETCH(int, categoryId);
    QFETCH(QString, line);
    QVERIFY(m_service->addCategory("Soups"));

    expectLog(QtWarningMsg, line);
    QVERIFY(!m_service->addMenuItem(name, categoryId, 5.0, true, true));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM menu"), QVariant(0));
}

void tst_MenuService::aPriceBecomesCentsRoundedHalfAwayFromZero_data()
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

void tst_MenuService::aPriceBecomesCentsRoundedHalfAwayFromZero()
{
    QFETCH(double, price);
    QFETCH(int, cents);
    QVERIFY(m_service->addCategory("Soups"));

    QVERIFY(m_service->addMenuItem("Broth", 1, price, true, true));

    QCOMPARE(m_database->value("SELECT price FROM menu"), QVariant(cents));
}

void tst_MenuService::anEditedItemMovesToItsCategoryAtOnce()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addCategory("Drinks"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    m_service->setCurrentCategoryId(1);
    QSignalSpy items(m_service.get(), &MenuService::menuItemsChanged);

    QVERIFY(m_service->editMenuItem(1, " Tea ", 2, 3.0, false, false, "cup"));

    QVERIFY(shownItems().isEmpty());
    QCOMPARE(items.count(), 1);
    QCOMPARE(m_database
                 ->value("SELECT item || category_id || price || portion_size || "
                         "is_available || is_taxable FROM menu")
                 .toString(),
             QStringLiteral(" Tea 2300cup00"));
}

void tst_MenuService::anEditRoundsItsPriceToo()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));

    QVERIFY(m_service->editMenuItem(1, "Broth", 1, 12.345, true, true));

    QCOMPARE(m_database->value("SELECT price FROM menu"), QVariant(1235));
}

void tst_MenuService::anEditIsRefused_data()
{
    QTest::addColumn<int>("itemId");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("categoryId");
    QTest::addColumn<QString>("line");

    QTest::newRow("unknown item, told first") << 9 << " " << 9 << "Menu item with ID 9 not found";
    QTest::newRow("blank name") << 1 << " " << 9 << "Item name cannot be empty";
    QTest::newRow("unknown category") << 1 << "Tea" << 9 << "Category with ID 9 not found";
}

void tst_MenuService::anEditIsRefused()
{
    QFETCH(int, itemId);
    QFETCH(QString, name);
    QFETCH(int, categoryId);
    QFETCH(QString, line);
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    QSignalSpy items(m_service.get(), &MenuService::menuItemsChanged);

    expectLog(QtWarningMsg, line);
    QVERIFY(!m_service->editMenuItem(itemId, name, categoryId, 1.0, true, true));

    QCOMPARE(items.count(), 0);
    QCOMPARE(m_database->value("SELECT item FROM menu").toString(), QStringLiteral("Broth"));
}

void tst_MenuService::anItemIsRemovedWithoutASignal()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    m_service->setCurrentCategoryId(1);
    QSignalSpy items(m_service.get(), &MenuService::menuItemsChanged);

    QVERIFY(m_service->removeMenuItem(1));

    QVERIFY(shownItems().isEmpty());
    QCOMPARE(items.count(), 0);
}

void tst_MenuService::anItemThatAnOrderNamesStays()
{
    QVERIFY(m_service->addCategory("Soups"));
    QVERIFY(m_service->addMenuItem("Broth", 1, 5.0, true, true));
    m_service->setCurrentCategoryId(1);
    orderFirstItem();

    expectLog(QtWarningMsg, "remove failed:");
    QVERIFY(m_service->removeMenuItem(1));

    QCOMPARE(shownItems(), QVariantList({"Broth"}));
}

void tst_MenuService::removingAnUnknownItemIsRefused()
{
    expectLog(QtWarningMsg, "Menu item with ID 9 not found");
    QVERIFY(!m_service->removeMenuItem(9));
}

void tst_MenuService::aFailedWriteStillReportsSuccess()
{
    m_database->run("CREATE TRIGGER refuse BEFORE INSERT ON categories "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    expectLog(QtWarningMsg, "create failed:");
    QVERIFY(m_service->addCategory("Soups"));

    QVERIFY(shownCategories().isEmpty());
}

ZELVAN_TEST(tst_MenuService)
#include "tst_menuservice.moc"
