// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// What a finger presses is forty pixels high, but for what is asked to be smaller.
ScreenTestCase {
    id: root

    // The steps and the buttons of a row, and the button of a card of the board.
    readonly property var smaller: ({ "+": 28, "-": 28, "Add": 24, "Edit": 24, "Save": 24, "Delete": 24, "START": 38, "MARK READY": 38, "SERVE": 38 })
    property var dialog: null

    name: "TouchTargets"

    function arrange() {
        setKitchenMode("kds", { allow_edit_after_send: true })
        addUser("boss", "admin")
        const food = addCategory("Food")
        const soup = addItem("Soup", food, 5)
        MenuService.currentCategoryId = food
        TableService.addTable("Window", 4)
        TestDb.addPrinter("Counter")
        SettingService.savePrinter({ system_name: "Counter", role: "receipt", paper_width: 58, cut_mode: "none" })
        FloorPlanService.createFloor("Hall")
        for (const status of ["pending", "preparing", "ready"])
            OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
    }

    function cleanup() {
        dialog?.close()
        dialog = null
        stack.clear(StackView.Immediate)
    }

    function isTarget(item): bool {
        const isChoice = item.checkState !== undefined || item.visualPosition !== undefined && item.checkable !== undefined
        const isBox = item.stepSize !== undefined && item.up !== undefined || item.displayText !== undefined && item.popup !== undefined
        const isField = item.cursorPosition !== undefined && item.placeholderText !== undefined
        return isButton(item) || isChoice || isBox || isField
    }

    function verifySizes() {
        settle()
        const low = allShown(item => isTarget(item) && item.height < (smaller[item.text] ?? 40))

        compare(low.map(item => (item.text || item.Accessible.name || item) + " " + item.height), [])
        verify(allShown(isTarget).length > 0)
    }

    function test_pages_data() {
        return ["auth/Login", "setup/SetupAdmin", "setup/SetupBetaWelcome", "setup/SetupDBChoice", "setup/SetupDBCreation", "setup/SetupDBOpen",
                "admin/AdminHome", "admin/AdminTaxReports", "admin/management/AdminFloorPlanManagement", "admin/management/AdminMembersManagement",
                "admin/management/AdminMenuManagement", "admin/management/AdminTableManagement", "admin/management/AdminUserManagement",
                "admin/settings/AdminDatabaseSettings", "admin/settings/AdminKitchenSettings", "admin/settings/AdminMembershipSettings",
                "admin/settings/AdminPrinterSettings", "admin/settings/AdminRegionalSettings", "admin/settings/AdminStoreSettings",
                "admin/settings/AdminTableSettings", "admin/settings/AdminTaxSettings", "common/KitchenOrders", "common/OrderTakingFloorPlan",
                "common/OrderTakingSimple", "serviceStaff/ServiceStaffHome"].map(path => ({ tag: path }))
    }

    function test_pages(data) {
        screen(data.tag)

        verifySizes()
    }

    function test_an_order_being_keyed_in() {
        screen("common/OrderTakingSimple")
        press("Dine In")
        press("Add")

        verifySizes()
    }

    function test_a_row_being_edited_data() {
        return [{ tag: "admin/management/AdminMenuManagement" }, { tag: "admin/management/AdminTableManagement" }]
    }

    function test_a_row_being_edited(data) {
        screen(data.tag)
        press("Edit")

        verifySizes()
    }

    function test_dialogs_data() {
        return ["admin/management/UserCreateDialog", "admin/management/UserEditDialog", "admin/management/UserPasswordDialog", "admin/settings/MoveDatabaseDialog",
                "admin/settings/RestoreDatabaseDialog", "admin/settings/PrinterDialog", "common/floor/ReservationDialog", "components/ReplaceDatabaseDialog"].map(path => ({ tag: path }))
    }

    function test_dialogs(data) {
        dialog = create(data.tag)
        dialog.open()
        tryVerify(() => dialog.opened)

        verifySizes()
    }
}
