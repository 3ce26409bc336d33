// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "widths/Views.h"

using namespace Qt::StringLiterals;

namespace {
using Steps = QList<View::Step>;

View setupView(const QString &name, const QString &screen, const QString &properties = u"{}"_s,
               const Steps &steps = {})
{
    return {name, screen, properties, steps, true};
}

/// A row of the administrator's sidebar, and what is done on the page.
View homeView(const QString &name, int row, const Steps &steps = {})
{
    const View::Step choose{u"AdminHome"_s, u"sidebar.select(%1)"_s.arg(row)};
    return {name, u"admin/AdminHome"_s, u"{}"_s, Steps{choose} + steps};
}

View orderView(const QString &name, const QString &layout, const Steps &steps)
{
    const QString script =
        u"MenuService.currentCategoryId = 1;"
        u"SettingService.saveTableSettings({ id: 1, layout_mode: '%1' })"_s.arg(layout);
    return homeView(name, 0, Steps{{u"Main"_s, script}} + steps);
}

View simpleOrder(const QString &name, const QString &script)
{
    return orderView(name, u"simple"_s, {{u"OrderTakingSimple"_s, script}});
}

View plan(const QString &name, const Steps &steps)
{
    return orderView(name, u"floor_plan"_s, steps);
}

/// A row of the sidebar of the management pages.
View managed(const QString &name, int row, const Steps &steps = {})
{
    const View::Step choose{u"AdminManagement"_s, u"sidebar.select(%1)"_s.arg(row)};
    return homeView(name, 5, Steps{choose} + steps);
}

View menuPage(const QString &name, const QString &script, const Steps &steps = {})
{
    return managed(name, 0, Steps{{u"AdminMenuManagement"_s, script}} + steps);
}

/// With a name of forty letters.
View deletion(const QString &name, const QString &category)
{
    return menuPage(
        name, u"MenuService.currentCategoryId = 1"_s,
        {{u"AdminMenuManagement"_s, u"confirmCategoryDeletion(1, '%1')"_s.arg(category)}});
}

View tablesPage(const QString &name, const QString &layout, const Steps &steps)
{
    View view = managed(name, 1, steps);
    view.steps.prepend(
        {u"Main"_s,
         u"SettingService.saveTableSettings({ id: 1, layout_mode: '%1' })"_s.arg(layout)});
    return view;
}

View setting(const QString &name, int row, const Steps &steps = {})
{
    const View::Step choose{u"AdminSettings"_s, u"sidebar.select(%1)"_s.arg(row)};
    return homeView(name, 6, Steps{choose} + steps);
}

/// Twelve lines of the menu's first dishes.
const QString keyedInLines =
    u"for (const id of [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12])"
    u"    orderModel.append({ menuItemId: id, qty: 12, price: 1288.5,"
    u"                        name: OrderService.getOrderItems(1)[0].item_name,"
    u"                        notes: '' });"_s;

QList<View> setupViews()
{
    const QString path = u"currentPath: '/home/restaurant/Documents/ZelvanPOS/data/Zelvan.db'"_s;
    return {
        setupView(u"set-up"_s, u"setup/SetupDBChoice"_s),
        setupView(u"set-up: there is one already"_s, u"setup/SetupDBChoice"_s,
                  u"{ mode: 'exists', %1 }"_s.arg(path)),
        setupView(u"set-up: replace"_s, u"setup/SetupDBChoice"_s,
                  u"{ mode: 'exists', %1 }"_s.arg(path),
                  {{u"SetupDBChoice"_s, u"replaceDialog.open()"_s}}),
        setupView(u"set-up: missing"_s, u"setup/SetupDBChoice"_s, u"{ mode: 'missing' }"_s),
        setupView(u"set-up: unusable"_s, u"setup/SetupDBChoice"_s, u"{ mode: 'unusable' }"_s),
        setupView(u"set-up: create"_s, u"setup/SetupDBCreation"_s),
        setupView(u"set-up: open"_s, u"setup/SetupDBOpen"_s),
        setupView(u"set-up: first user"_s, u"setup/SetupAdmin"_s, u"{}"_s,
                  {{u"SetupAdmin"_s, u"errorLabel.text = 'Login failed after registration'"_s}}),
        setupView(u"set-up: welcome"_s, u"setup/SetupBetaWelcome"_s),
        setupView(u"log-in"_s, u"auth/Login"_s),
    };
}

QList<View> orderViews()
{
    const auto dineIn = [](const QString &script) {
        return u"currentOrderType = 'dine_in'; selectedTableId = 2;"_s + script;
    };
    const View::Step table{u"OrderTakingFloorPlan"_s,
                           u"selectedTableId = FloorPlanService.canvasModel.get(0).table_id"_s};
    const View::Step booked{u"OrderTakingFloorPlan"_s,
                            u"selectedTableId = FloorPlanService.canvasModel.get(1).table_id"_s};
    const View::Step dineInOrder{u"OrderTakingFloorPlan"_s, u"startDineIn()"_s};
    const View::Step booking{u"OrderTakingFloorPlan"_s, u"editReservation()"_s};
    return {
        simpleOrder(u"order"_s, u"currentOrderType = ''"_s),
        simpleOrder(u"order: keyed in"_s, dineIn(keyedInLines)),
        simpleOrder(u"order: takeaway"_s, u"currentOrderType = 'takeaway';"_s + keyedInLines),
        simpleOrder(u"order: edit"_s, u"editOrder(OrderService.getOpenOrders()[0])"_s),
        simpleOrder(u"order: open ones"_s, u"showOpenOrders()"_s),
        plan(u"plan"_s, {}),
        plan(u"plan: table"_s, {table}),
        plan(u"plan: booked table"_s, {booked}),
        plan(u"plan: booking"_s, {booked, booking}),
        plan(u"plan: calendar"_s,
             {booked, booking, {u"ReservationDialog"_s, u"datePicker.open()"_s}}),
        plan(u"plan: order"_s, {table, dineInOrder}),
        plan(u"plan: order keyed in"_s, {table, dineInOrder, {u"OrderEditor"_s, keyedInLines}}),
        homeView(u"checkout"_s, 1),
        homeView(u"checkout: open session"_s, 1,
                 {{u"Checkout"_s,
                   u"selectSession(activeSessions.find(session => session.id === 1));"
                   u"changePhone('+49 151 12345610'); updateMembershipPreview(); redeem(400)"_s}}),
        homeView(
            u"checkout: new member"_s, 1,
            {{u"Checkout"_s, u"requireReadyForCheckout = true;"
                             u"selectSession(activeSessions.find(session => session.id === 1));"
                             u"changePhone('12345'); updateMembershipPreview()"_s}}),
        homeView(u"checkout: paid session"_s, 1,
                 {{u"Checkout"_s, u"selectRecent(recentOrders.find(order => order.id === 2))"_s}}),
        homeView(u"board"_s, 2),
        {u"board of the kitchen"_s, u"kitchenStaff/KitchenStaffHome"_s, u"{}"_s, {}},
        {u"staff's home"_s, u"serviceStaff/ServiceStaffHome"_s, u"{}"_s, {}},
    };
}

QList<View> managementViews()
{
    const View::Step editRow{u"AdminMenuManagement"_s, u"itemList.itemAtIndex(0).startEditing()"_s};
    return {
        menuPage(u"menu: nothing chosen"_s, u"MenuService.currentCategoryId = -1"_s),
        menuPage(u"menu"_s, u"MenuService.currentCategoryId = 1"_s),
        menuPage(u"menu: editing"_s, u"MenuService.currentCategoryId = 1"_s, {editRow}),
        menuPage(u"menu: renaming"_s, u"MenuService.currentCategoryId = 1"_s,
                 {{u"MenuCategoryPane"_s, u"startRenaming(0)"_s}}),
        deletion(u"menu: delete a category"_s, u"Charcoal Roasts, Grills and Hot Sizzlers"_s),
        deletion(u"menu: delete a category in Chinese"_s,
                 u"炭火烧烤与铁板烧什锦拼盘类"_s.repeated(4).left(40)),
        tablesPage(u"tables"_s, u"simple"_s, {}),
        tablesPage(u"tables: editing"_s, u"simple"_s,
                   {{u"AdminTableManagement"_s, u"tableList.itemAtIndex(0).startEditing()"_s}}),
        tablesPage(u"floors"_s, u"floor_plan"_s, {}),
        tablesPage(u"floors: new floor"_s, u"floor_plan"_s,
                   {{u"AdminFloorPlanManagement"_s, u"floorDialog.open()"_s}}),
        tablesPage(u"floors: new table"_s, u"floor_plan"_s,
                   {{u"AdminFloorPlanManagement"_s, u"tableDialog.open()"_s}}),
        managed(u"members"_s, 2),
        managed(
            u"members: one"_s, 2,
            {{u"AdminMembersManagement"_s, u"memberDialog.memberId = 1; memberDialog.open()"_s}}),
        managed(u"users"_s, 3),
        managed(u"users: create"_s, 3, {{u"AdminUserManagement"_s, u"createDialog.open()"_s}}),
        managed(u"users: edit"_s, 3,
                {{u"AdminUserManagement"_s, u"editDialog.edit(1, 'Christopher')"_s}}),
        managed(u"users: password"_s, 3, {{u"AdminUserManagement"_s, u"passwordDialog.open()"_s}}),
        managed(u"users: deactivate"_s, 3,
                {{u"AdminUserManagement"_s,
                  u"confirmDeactivation(1, OrderService.getOrderItems(1)[0].item_name)"_s}}),
    };
}

QList<View> settingViews()
{
    const QString path = u"/home/restaurant/Documents/Backups of the restaurant"_s;
    return {
        setting(u"restaurant"_s, 0),
        setting(u"table settings"_s, 1,
                {{u"AdminTableSettings"_s, u"layoutBox.selectValue('floor_plan')"_s}}),
        setting(u"printers"_s, 2),
        setting(
            u"printers: new"_s, 2,
            {{u"AdminPrinterSettings"_s, u"printerDialog.openForNew(); printerDialog.save()"_s}}),
        setting(u"printers: change"_s, 2,
                {{u"AdminPrinterSettings"_s, u"printerDialog.loadPrinterForEdit(printers[0])"_s}}),
        setting(u"tax settings"_s, 3),
        setting(u"membership settings"_s, 4),
        setting(u"kitchen settings"_s, 5),
        setting(u"region"_s, 6),
        setting(u"database"_s, 7),
        setting(u"database: restore"_s, 7,
                {{u"AdminDatabaseSettings"_s,
                  u"selectedRestoreFile = '%1/Zelvan.db'; restoreDialog.open()"_s.arg(path)}}),
        setting(u"database: move"_s, 7,
                {{u"AdminDatabaseSettings"_s,
                  u"destinationPreview = '%1/Zelvan.db'; moveDialog.open()"_s.arg(path)}}),
        homeView(u"analytics"_s, 3),
        homeView(u"tax report"_s, 4),
    };
}
} // namespace

QList<View> allViews()
{
    return setupViews() + orderViews() + managementViews() + settingViews();
}
