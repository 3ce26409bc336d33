// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Services.h"

#include "core/SystemTheme.h"
#include "core/Theme.h"
#include "core/Typing.h"
#include "services/AppService.h"

#include <QQmlEngine>

namespace {
WindowsPrinterService printerService(RawSpooler *spooler)
{
    return spooler != nullptr ? WindowsPrinterService(spooler) : WindowsPrinterService();
}
} // namespace

Services::Services(AppService &appService, DatabaseManager &database, Repositories &repositories,
                   RawSpooler *spooler)
    : app(appService)
    , printer(printerService(spooler))
    , membership(&repositories.memberships, &repositories.membershipSettings,
                 &repositories.membershipTransactions)
    , auth(&repositories.users)
    , users(&repositories.users)
    , menu(&repositories.menu, &repositories.categories)
    , tables(&repositories.tables)
    , settings(&repositories.restaurant, &repositories.printers, &repositories.taxSettings,
               &repositories.membershipSettings, &repositories.kitchenSettings,
               &repositories.regionalSettings, &repositories.tableSettings)
    , kitchenTickets(repositories.regionalSettings)
    , receipts(repositories.regionalSettings)
    , reservations(&repositories.reservations, &tables)
    , kitchenOrders(&repositories.orderSessions, &repositories.orders, &repositories.orderItems,
                    &repositories.tables)
    , checkout(&repositories.orderSessions, &repositories.orders, &repositories.orderItems,
               &repositories.restaurant, &repositories.printers, &repositories.tables,
               &repositories.memberships, &repositories.membershipTransactions,
               &repositories.taxSettings, &repositories.appState, &repositories.receiptSnapshots,
               &repositories.regionalSettings, &receipts, &printer, &taxCalculator, &membership,
               &settings, &tables, &reservations, &auth, &database)
    , analytics(&repositories.analytics)
    , floorPlan(&repositories.floors, &repositories.canvasItems, &repositories.tables,
                &repositories.reservations, &tables)
    , setup(&app, &database)
    , orders(&repositories.orderSessions, &repositories.orders, &repositories.orderItems,
             &repositories.tables, &repositories.menu, &repositories.printers, &taxCalculator,
             &kitchenTickets, &settings, &printer, &tables, &reservations, &checkout)
    , members(&repositories.memberships, &repositories.membershipTransactions)
    , databaseMaintenance(&app, &database)
    , taxReports(&repositories.taxReports)
{}

void Services::connectSignals()
{
    QObject::connect(&orders, &OrderService::orderCreated, &kitchenOrders,
                     &KitchenOrderService::ordersChanged);
    QObject::connect(&orders, &OrderService::orderUpdated, &kitchenOrders,
                     &KitchenOrderService::ordersChanged);
    // Whatever table the signal names, the floor on show is loaded anew.
    QObject::connect(&reservations, &ReservationService::reservationChanged, &floorPlan,
                     [this] { floorPlan.loadCanvas(floorPlan.currentFloorId()); });
}

void Services::publish(SystemTheme &systemTheme, Theme &theme)
{
    qmlRegisterSingletonInstance("zelvan.System", 1, 0, "SystemTheme", &systemTheme);
    qmlRegisterSingletonType<Typing>("zelvan.System", 1, 0, "Typing",
                                     [](QQmlEngine *, QJSEngine *) { return new Typing; });
    qmlRegisterSingletonInstance("zelvan.Theme", 1, 0, "Theme", &theme);

    const char *const module = "Zelvan.Services";
    qmlRegisterSingletonInstance(module, 1, 0, "AuthService", &auth);
    qmlRegisterSingletonInstance(module, 1, 0, "UserService", &users);
    qmlRegisterSingletonInstance(module, 1, 0, "MenuService", &menu);
    qmlRegisterSingletonInstance(module, 1, 0, "TableService", &tables);
    qmlRegisterSingletonInstance(module, 1, 0, "OrderService", &orders);
    qmlRegisterSingletonInstance(module, 1, 0, "KitchenOrderService", &kitchenOrders);
    qmlRegisterSingletonInstance(module, 1, 0, "CheckoutService", &checkout);
    qmlRegisterSingletonInstance(module, 1, 0, "SettingService", &settings);
    qmlRegisterSingletonInstance(module, 1, 0, "MembershipService", &membership);
    qmlRegisterSingletonInstance(module, 1, 0, "AnalyticsService", &analytics);
    qmlRegisterSingletonInstance(module, 1, 0, "WindowsPrinterService", &printer);
    qmlRegisterSingletonInstance(module, 1, 0, "FloorPlanService", &floorPlan);
    qmlRegisterSingletonInstance(module, 1, 0, "AppService", &app);
    qmlRegisterSingletonInstance(module, 1, 0, "SetupService", &setup);
    qmlRegisterSingletonInstance(module, 1, 0, "ReservationService", &reservations);
    qmlRegisterSingletonInstance(module, 1, 0, "DatabaseService", &databaseMaintenance);
    qmlRegisterSingletonInstance(module, 1, 0, "BetaService", &beta);
    qmlRegisterSingletonInstance(module, 1, 0, "MemberService", &members);
    qmlRegisterSingletonInstance(module, 1, 0, "TaxReportService", &taxReports);
}
