// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/MainWindow.h"
#include "core/SystemTheme.h"
#include "core/Theme.h"
#include "core/Translation.h"
#include "repositories/RegionalSettingsRepository.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTranslator>

#include <memory>

/// What the start builds, wires and publishes.
class tst_Startup : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aNewOrderReachesTheBoardSynchronously();
    void aChangedOrderReachesTheBoardSynchronously();
    void aReservationOfAnyTableReloadsTheFloorOnShow();
    void darknessReachesTheTheme();
    void theStoredLocaleIsTheLanguage_data();
    void theStoredLocaleIsTheLanguage();
    void aCatalogueIsInstalledWhereThereIsOne_data();
    void aCatalogueIsInstalledWhereThereIsOne();
    void aSetUpRunOpensNothing();
    void withoutTheScreensThereIsNoWindow();
    void nothingHasAParent();
    void everythingPublishedIsUsableInQml();
};

void tst_Startup::aNewOrderReachesTheBoardSynchronously()
{
    TestStore store;
    QSignalSpy board(&store.services.kitchenOrders, &KitchenOrderService::ordersChanged);

    emit store.services.orders.orderCreated(1);

    QCOMPARE(board.count(), 1);
}

void tst_Startup::aChangedOrderReachesTheBoardSynchronously()
{
    TestStore store;
    QSignalSpy board(&store.services.kitchenOrders, &KitchenOrderService::ordersChanged);

    emit store.services.orders.orderUpdated(1);

    QCOMPARE(board.count(), 1);
}

void tst_Startup::aReservationOfAnyTableReloadsTheFloorOnShow()
{
    TestStore store;
    store.services.floorPlan.createFloor("Ground");
    const int shown = store.services.floorPlan.createFloor("Terrace");
    store.services.floorPlan.loadCanvas(shown);
    QSignalSpy reset(store.services.floorPlan.canvasModel(), &QAbstractItemModel::modelReset);

    emit store.services.reservations.reservationChanged(4711);

    QVERIFY(reset.count() > 0);
    QCOMPARE(store.services.floorPlan.currentFloorId(), shown);
}

void tst_Startup::darknessReachesTheTheme()
{
    SystemTheme systemTheme;
    Theme theme(&systemTheme);
    QObject::connect(&systemTheme, &SystemTheme::darkModeChanged, &theme,
                     &Theme::onSystemThemeChanged);
    QSignalSpy changed(&theme, &Theme::themeChanged);

    emit systemTheme.darkModeChanged();

    QCOMPARE(changed.count(), 1);
}

void tst_Startup::theStoredLocaleIsTheLanguage_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("language");

    QTest::newRow("stored") << "UPDATE regional_settings SET locale = 'zh_CN'"
                            << "zh_CN";
    QTest::newRow("empty") << "UPDATE regional_settings SET locale = ''"
                           << QLocale::system().name();
    QTest::newRow("no row") << "DELETE FROM regional_settings" << QLocale::system().name();
}

void tst_Startup::theStoredLocaleIsTheLanguage()
{
    QFETCH(QString, sql);
    QFETCH(QString, language);
    TestStore store;
    store.database.run(sql);

    QCOMPARE(chosenLanguage(store.repositories.regionalSettings), language);
}

void tst_Startup::aCatalogueIsInstalledWhereThereIsOne_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("installed");

    QTest::newRow("Simplified Chinese") << "zh_CN" << true;
    QTest::newRow("English has none") << "en_US" << false;
    QTest::newRow("French has none") << "fr_FR" << false;
}

void tst_Startup::aCatalogueIsInstalledWhereThereIsOne()
{
    QFETCH(QString, language);
    QFETCH(bool, installed);
    {
        QTranslator translator;

        QCOMPARE(installTranslation(translator, language), installed);

        QCOMPARE(QObject::tr("Delivery") != QStringLiteral("Delivery"), installed);
    }
    QCOMPARE(QObject::tr("Delivery"), QStringLiteral("Delivery"));
}

void tst_Startup::aSetUpRunOpensNothing()
{
    QString language;
    bool wired = false;
    QStringList lines;
    {
        const LogCapture log;
        language = chosenLanguage(RegionalSettingsRepository(DatabaseManager::connection()));
        AppService app;
        DatabaseManager manager;
        Repositories repositories;
        Services services(app, manager, repositories);
        services.connectSignals();
        wired = services.users.userModel() != nullptr;
        lines = log.lines();
    }

    QCOMPARE(language, QLocale::system().name());
    QVERIFY(wired);
    QVERIFY(!QSqlDatabase::contains(DatabaseManager::mainConnectionName));
    // Every failed read has told so.
    QVERIFY(!lines.isEmpty());
    for (const QString &line : lines) {
        QVERIFY2(line.startsWith("warning "), qPrintable(line));
    }
}

void tst_Startup::withoutTheScreensThereIsNoWindow()
{
    bool loaded = true;
    QStringList lines;
    {
        const LogCapture log;
        // This program holds no screens.
        QQmlApplicationEngine engine;
        loaded = loadMainWindow(engine);
        lines = log.lines();
    }

    QVERIFY(!loaded);
    QVERIFY(!lines.isEmpty());
}

void tst_Startup::nothingHasAParent()
{
    TestStore store;
    Services &services = store.services;

    const QList<QObject *> objects{&services.printer,
                                   &services.beta,
                                   &services.membership,
                                   &services.auth,
                                   &services.users,
                                   &services.menu,
                                   &services.tables,
                                   &services.settings,
                                   &services.checkout,
                                   &services.analytics,
                                   &services.floorPlan,
                                   &services.setup,
                                   &services.orders,
                                   &services.kitchenOrders,
                                   &services.members,
                                   &services.reservations,
                                   &services.databaseMaintenance,
                                   &services.taxReports};
    for (const QObject *object : objects) {
        QVERIFY2(object->parent() == nullptr, object->metaObject()->className());
    }
}

void tst_Startup::everythingPublishedIsUsableInQml()
{
    TestStore store;
    SystemTheme systemTheme;
    Theme theme(&systemTheme);
    store.services.publish(systemTheme, theme);
    const int table = store.addTable("T1");
    const int soup = store.addDish({});
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Zelvan.Services 1.0
        import zelvan.Theme 1.0
        import zelvan.System 1.0
        QtObject {
            property list<QtObject> published: [
                SystemTheme, Theme, AuthService, UserService, MenuService, TableService,
                OrderService, KitchenOrderService, CheckoutService, SettingService,
                MembershipService, AnalyticsService, WindowsPrinterService, FloorPlanService,
                AppService, SetupService, ReservationService, DatabaseService, BetaService,
                MemberService, TaxReportService]
            property int board: 0
            property Connections wire: Connections {
                target: KitchenOrderService
                function onOrdersChanged() { board += 1 }
            }
            function order(table, dish) {
                return OrderService.createOrder("dine_in",
                    [{menuItemId: dish, qty: 2, notes: "hot"}], {tableId: table})
            }
            function takeAway(order, dish) {
                return OrderService.updateOrder(order, "takeaway",
                    [{menuItemId: dish, qty: 1}], {tableId: null, notes: ""})
            }
        })",
                      QUrl());
    const std::unique_ptr<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    QCOMPARE(QQmlListReference(root.get(), "published").count(), 21);

    QVariant order;
    QMetaObject::invokeMethod(root.get(), "order", Q_RETURN_ARG(QVariant, order),
                              Q_ARG(QVariant, table), Q_ARG(QVariant, soup));
    QCOMPARE(order.toInt(), 1);
    QCOMPARE(root->property("board").toInt(), 1);
    QCOMPARE(store.text("SELECT quantity || notes FROM order_items"), QStringLiteral("2hot"));
    QCOMPARE(store.tableStatus(table), QStringLiteral("occupied"));

    // A script's null is no table.
    expectLog(QtCriticalMsg, "updateOrder commit failed");
    QVariant answer;
    QMetaObject::invokeMethod(root.get(), "takeAway", Q_RETURN_ARG(QVariant, answer),
                              Q_ARG(QVariant, order), Q_ARG(QVariant, soup));
    QCOMPARE(answer.toInt(), -1);
    QCOMPARE(store.tableStatus(table), QStringLiteral("available"));
    QVERIFY(store.database.value("SELECT table_id FROM order_sessions").isNull());
}

ZELVAN_TEST(tst_Startup)
#include "tst_startup.moc"
