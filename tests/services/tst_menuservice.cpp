// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/MenuStore.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>

/// Categories and the selection. What is in a category is tst_MenuItems's.
class tst_MenuService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

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
    void aFailedWriteStillReportsSuccess();

private:
    [[nodiscard]] MenuService &service() { return m_store->service; }

    std::unique_ptr<MenuStore> m_store;
};

void tst_MenuService::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<MenuStore>();
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
    QCOMPARE(service().categoryModel()->rowCount(), 0);
    QCOMPARE(service().menuItemModel()->rowCount(), 0);
    QCOMPARE(service().currentCategoryId(), -1);
}

void tst_MenuService::choosingACategoryTellsInOrder()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    QStringList told;
    connect(&service(), &MenuService::currentCategoryIdChanged, this, [&] {
        told.append(QStringLiteral("category, %1 shown").arg(m_store->shownItems().size()));
    });
    connect(&service(), &MenuService::menuItemsChanged, this, [&] {
        told.append(QStringLiteral("items, %1 shown").arg(m_store->shownItems().size()));
    });

    service().setProperty("currentCategoryId", 1);

    QCOMPARE(told, QStringList({"category, 0 shown", "items, 1 shown"}));
    QCOMPARE(service().property("currentCategoryId").toInt(), 1);
    QCOMPARE(m_store->shownItems(), QVariantList({"Broth"}));
}

void tst_MenuService::theSameCategoryAgainTellsNothing()
{
    service().setCurrentCategoryId(1);
    QSignalSpy category(&service(), &MenuService::currentCategoryIdChanged);
    QSignalSpy items(&service(), &MenuService::menuItemsChanged);

    service().setCurrentCategoryId(1);

    QCOMPARE(category.count(), 0);
    QCOMPARE(items.count(), 0);
}

void tst_MenuService::choosingNoCategoryEmptiesTheItems()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    service().setCurrentCategoryId(1);

    service().setCurrentCategoryId(-1);

    QVERIFY(m_store->shownItems().isEmpty());
}

void tst_MenuService::aCategoryIsStoredAsGiven()
{
    QVERIFY(service().addCategory("  Soups "));

    QCOMPARE(m_store->shownCategories(), QVariantList({"  Soups "}));
}

void tst_MenuService::twoCategoriesMayBearTheSameName()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addCategory("Soups"));

    QCOMPARE(m_store->shownCategories(), QVariantList({"Soups", "Soups"}));
}

void tst_MenuService::aBlankCategoryNameIsRefused()
{
    expectLog(QtWarningMsg, "Cannot add empty category name");
    QVERIFY(!service().addCategory(" \t "));

    QCOMPARE(m_store->database.value("SELECT COUNT(*) FROM categories"), QVariant(0));
}

void tst_MenuService::aCategoryIsRenamed()
{
    QVERIFY(service().addCategory("Soups"));

    QVERIFY(service().renameCategory(1, " Drinks"));

    QCOMPARE(m_store->shownCategories(), QVariantList({" Drinks"}));
}

void tst_MenuService::aRenameIsRefused()
{
    QVERIFY(service().addCategory("Soups"));

    expectLog(QtWarningMsg, "Cannot rename category to empty name");
    QVERIFY(!service().renameCategory(1, "  "));
    expectLog(QtWarningMsg, "Category with ID 9 not found");
    QVERIFY(!service().renameCategory(9, "Drinks"));

    QCOMPARE(m_store->shownCategories(), QVariantList({"Soups"}));
}

void tst_MenuService::aCategoryGoesWithItsItems()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));

    QVERIFY(service().removeCategory(1));

    QVERIFY(m_store->shownCategories().isEmpty());
    QCOMPARE(m_store->database.value("SELECT COUNT(*) FROM menu"), QVariant(0));
}

void tst_MenuService::removingTheSelectedCategoryFallsBackToNone()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    service().setCurrentCategoryId(1);
    QSignalSpy category(&service(), &MenuService::currentCategoryIdChanged);
    QSignalSpy items(&service(), &MenuService::menuItemsChanged);

    QVERIFY(service().removeCategory(1));

    QCOMPARE(service().currentCategoryId(), -1);
    QVERIFY(m_store->shownItems().isEmpty());
    QCOMPARE(category.count(), 1);
    QCOMPARE(items.count(), 1);
}

void tst_MenuService::removingAnotherCategoryKeepsTheSelection()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addCategory("Drinks"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    service().setCurrentCategoryId(1);
    QSignalSpy category(&service(), &MenuService::currentCategoryIdChanged);
    QSignalSpy items(&service(), &MenuService::menuItemsChanged);

    QVERIFY(service().removeCategory(2));

    QCOMPARE(service().currentCategoryId(), 1);
    QCOMPARE(m_store->shownItems(), QVariantList({"Broth"}));
    QCOMPARE(category.count() + items.count(), 0);
}

void tst_MenuService::removingAnUnknownCategoryIsRefused()
{
    expectLog(QtWarningMsg, "Category with ID -1 not found");
    QVERIFY(!service().removeCategory(-1));
}

void tst_MenuService::aCategoryThatAnOrderNamesStaysAndTheSelectionFallsBack()
{
    QVERIFY(service().addCategory("Soups"));
    QVERIFY(service().addMenuItem("Broth", 1, 5.0, true, true));
    service().setCurrentCategoryId(1);
    m_store->orderFirstItem();

    expectLog(QtWarningMsg, "remove failed:");
    QVERIFY(service().removeCategory(1));

    QCOMPARE(m_store->shownCategories(), QVariantList({"Soups"}));
    QCOMPARE(m_store->database.value("SELECT COUNT(*) FROM menu"), QVariant(1));
    QCOMPARE(service().currentCategoryId(), -1);
}

void tst_MenuService::aFailedWriteStillReportsSuccess()
{
    m_store->database.run("CREATE TRIGGER refuse BEFORE INSERT ON categories "
                          "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    expectLog(QtWarningMsg, "create failed:");
    QVERIFY(service().addCategory("Soups"));

    QVERIFY(m_store->shownCategories().isEmpty());
}

ZELVAN_TEST(tst_MenuService)
#include "tst_menuservice.moc"
