// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/DatabaseManager.h"
#include "core/Repositories.h"
#include "printing/KitchenTicketBuilder.h"
#include "printing/ReceiptBuilder.h"
#include "services/AnalyticsService.h"
#include "services/AuthService.h"
#include "services/BetaService.h"
#include "services/CheckoutService.h"
#include "services/DatabaseService.h"
#include "services/FloorPlanService.h"
#include "services/KitchenOrderService.h"
#include "services/MemberService.h"
#include "services/MembershipService.h"
#include "services/MenuService.h"
#include "services/OrderService.h"
#include "services/ReservationService.h"
#include "services/SettingService.h"
#include "services/SetupService.h"
#include "services/TableService.h"
#include "services/TaxCalculator.h"
#include "services/TaxReportService.h"
#include "services/UserService.h"
#include "services/WindowsPrinterService.h"

class AppService;
class RawSpooler;
class SystemTheme;
class Theme;

/// Every service of the program, wired through constructors in the order of the members and gone in
/// reverse. They have no parent: whoever holds this struct owns them all.
struct Services
{
    /// The database manager, the repositories and the application service outlive this object.
    /// `spooler` replaces the platform's print spooler where it is given.
    Services(AppService &app, DatabaseManager &database, Repositories &repositories,
             RawSpooler *spooler = nullptr);

    /// The few signals that cross services.
    void connectSignals();
    /// Publishes everything to QML as singleton instances; a published object serves one engine.
    void publish(SystemTheme &systemTheme, Theme &theme);

    AppService &app;
    WindowsPrinterService printer;
    TaxCalculator taxCalculator;
    BetaService beta;
    MembershipService membership;
    AuthService auth;
    UserService users;
    MenuService menu;
    TableService tables;
    SettingService settings;
    KitchenTicketBuilder kitchenTickets;
    ReceiptBuilder receipts;
    ReservationService reservations;
    KitchenOrderService kitchenOrders;
    CheckoutService checkout;
    AnalyticsService analytics;
    FloorPlanService floorPlan;
    SetupService setup;
    OrderService orders;
    MemberService members;
    DatabaseService databaseMaintenance;
    TaxReportService taxReports;
};
