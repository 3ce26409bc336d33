// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan
import ZelvanTest 1.0

// A second press that comes while the first is at work, or at once after it.
ScreenTestCase {
    id: root

    property int soup
    property int burger

    name: "SecondPress"

    function arrange() {
        AuthService.logout()
        const category = addCategory("Food")
        soup = addItem("Soup", category, 5)
        burger = addItem("Burger", category, 12.5)
        MenuService.currentCategoryId = category
        userSpy.clear()
    }

    // On one spot of the window, whatever stands there the second time.
    function pressTwice(text: string, index: var) {
        tryVerify(() => !Work.busy)
        const pressed = button(text, index)
        const spot = pressed.mapToItem(root, pressed.width / 2, pressed.height / 2)
        mouseClick(root, spot.x, spot.y)
        mouseClick(root, spot.x, spot.y)
        settle()
    }

    function order(): int {
        return OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
    }

    function orderIn(status: string): int {
        const id = order()
        TestDb.run("UPDATE orders SET status = '" + status + "' WHERE id = " + id)
        return id
    }

    function statusOf(orderId: int): string {
        return TestDb.value("SELECT status FROM orders WHERE id = " + orderId)
    }

    function fill(fields: var) {
        for (const label in fields)
            enter(label, fields[label])
    }

    // Once a user that is made last is there, whatever was asked for before has been answered.
    function answersUpTo(username: string): var {
        UserService.createUser(username, "secret", "secret", "admin")
        tryVerify(() => TestDb.value("SELECT COUNT(*) FROM users WHERE username = '" + username + "'") === 1)
        tryVerify(() => userSpy.count >= 2)
        return userSpy.signalArguments.map(answer => answer[0])
    }

    function test_work_is_started_once_and_again_when_it_is_over() {
        let times = 0
        const work = () => ++times

        tryVerify(() => !Work.busy)
        Work.start(work)
        Work.start(work)
        compare(times, 1)
        tryVerify(() => !Work.busy)
        Work.start(work)

        compare(times, 2)
    }

    function test_work_that_fails_is_over_too() {
        tryVerify(() => !Work.busy)
        try {
            Work.start(() => {
                throw new Error("meant")
            })
        } catch (error) {
            compare(error.message, "meant")
        }

        verify(Work.busy)
        tryVerify(() => !Work.busy)
    }

    function test_the_first_administrator_is_registered_once() {
        screen("setup/SetupAdmin")
        fill({ "Username": "boss", "Password": "secret", "Confirm password": "secret" })

        pressTwice("Register")
        tryVerify(() => userSpy.count > 0)
        compare(shownScreen(), "SetupBetaWelcome")

        compare(stack.depth, 2)
        compare(answersUpTo("last"), [true, true])
        compare(TestDb.value("SELECT COUNT(*) FROM users"), 2)
    }

    function test_a_user_is_created_once() {
        addUser("boss", "admin")
        userSpy.clear()
        show("admin/management/AdminUserManagement")
        press("Create User")
        tryVerify(() => hasButton("Create"))
        fill({ "Username": "ann", "Password": "secret", "Confirm Password": "secret" })

        pressTwice("Create")
        tryVerify(() => !hasButton("Create"))

        compare(answersUpTo("last"), [true, true])
        compare(TestDb.value("SELECT COUNT(*) FROM users"), 3)
    }

    function test_a_refused_user_can_be_tried_again() {
        addUser("boss", "admin")
        userSpy.clear()
        show("admin/management/AdminUserManagement")
        press("Create User")
        tryVerify(() => hasButton("Create"))
        press("Create")
        tryCompare(userSpy, "count", 1)
        fill({ "Username": "ann", "Password": "secret", "Confirm Password": "secret" })

        press("Create")

        tryVerify(() => !hasButton("Create"))
        compare(TestDb.value("SELECT COUNT(*) FROM users"), 2)
    }

    function test_a_log_in_leads_to_one_home() {
        addUser("boss", "admin")
        screen("auth/Login")
        fill({ "Username": "boss", "Password": "secret" })

        pressTwice("Login")

        compare(shownScreen(), "AdminHome")
        compare(stack.depth, 2)
    }

    function test_the_setup_leads_to_one_home_data() {
        return [{ tag: "Continue" }, { tag: "Skip for now" }]
    }

    function test_the_setup_leads_to_one_home(data) {
        screen("setup/SetupBetaWelcome")

        pressTwice(data.tag)

        compare(shownScreen(), "AdminHome")
        compare(stack.depth, 2)
        compare(maximizedTimes, 1)
    }

    function test_a_page_on_its_way_takes_no_press() {
        screen("setup/SetupDBChoice", { mode: "none" })
        press("Create New Database")
        verify(stack.busy)

        // Where a button of the page that leaves stands, and one of the page that comes.
        for (let y = 10; y < root.height; y += 30)
            mouseClick(root, root.width / 2, y)

        compare(shownScreen(), "SetupDBCreation")
        compare(stack.depth, 2)
    }

    function test_a_backup_is_made_once_a_second() {
        show("admin/settings/AdminDatabaseSettings")

        pressTwice("Backup Database")
        pressTwice("Backup Database")

        verify(shows("Database backup created successfully."))
        compare(page.errorMessage, "")
        page.clearMessages()
        tryVerify(() => {
            press("Backup Database")
            return page.successMessage !== ""
        })
        compare(page.errorMessage, "")
    }

    function test_the_card_that_slides_under_the_finger_stays_data() {
        return [
            { tag: "START", from: "pending", to: "in_progress" },
            { tag: "MARK READY", from: "in_progress", to: "ready" },
            { tag: "SERVE", from: "ready", to: "served" }
        ]
    }

    function test_the_card_that_slides_under_the_finger_stays(data) {
        setKitchenMode("kds")
        const first = orderIn(data.from)
        const second = orderIn(data.from)
        const third = orderIn(data.from)
        show("common/KitchenOrders")

        pressTwice(data.tag)

        compare([first, second, third].map(statusOf), [data.to, data.from, data.from])
        verify(!button(data.tag).enabled)
        tryVerify(() => button(data.tag).enabled)
        press(data.tag)
        compare([first, second, third].map(statusOf), [data.to, data.to, data.from])
    }

    function test_a_card_that_another_till_moved_protects_the_next_one() {
        setKitchenMode("kds")
        const first = orderIn("pending")
        const second = orderIn("pending")
        show("common/KitchenOrders")
        KitchenOrderService.markState(first, "in_progress")

        mouseClick(button("START"))

        compare(statusOf(second), "pending")
    }

    function test_the_line_that_slides_under_the_finger_stays() {
        show("common/OrderTakingSimple")
        press("Add", 0)
        press("Add", 1)

        pressTwice("Remove")

        compare(allShown(item => isButton(item) && item.text === "Remove").length, 1)
        tryVerify(() => {
            if (hasButton("Remove"))
                press("Remove")
            return !hasButton("Remove")
        })
    }

    function test_the_printer_that_slides_under_the_finger_stays() {
        for (const printer of ["Bar", "Counter"])
            SettingService.savePrinter({ system_name: printer, role: "receipt", paper_width: 58, cut_mode: "none" })
        show("admin/settings/AdminPrinterSettings")

        pressTwice("Remove")

        compare(SettingService.getPrinters().map(printer => printer.system_name), ["Counter"])
    }

    function test_an_order_is_placed_once() {
        show("common/OrderTakingSimple")
        press("Takeaway")
        press("Add", 0)

        pressTwice("Place Order")

        compare(TestDb.value("SELECT COUNT(*) FROM orders"), 1)
    }

    function test_a_ticket_is_printed_once() {
        setKitchenMode("tickets", { ticket_print_timing: "manual", allow_edit_after_send: true })
        TestDb.addPrinter("Kitchen")
        SettingService.savePrinter({ system_name: "Kitchen", role: "kitchen", paper_width: 58, cut_mode: "none" })
        order()
        show("common/OrderTakingSimple")
        press("Edit Order")
        page.editOrder(page.editOrdersList[0])
        const before = TestDb.printedDocuments()

        pressTwice("Print Ticket")

        compare(TestDb.printedDocuments(), before + 1)
    }

    function test_a_receipt_is_printed_again_once() {
        TestDb.addPrinter("Counter")
        SettingService.savePrinter({ system_name: "Counter", role: "receipt", paper_width: 58, cut_mode: "none" })
        SettingService.saveRestaurantSetting({ name: "Corner Cafe" })
        order()
        const session = TestDb.value("SELECT MAX(id) FROM order_sessions")
        verify(CheckoutService.completeCheckout(session, "", 0))
        show("common/Checkout")
        page.selectRecent(page.recentOrders[0])
        const before = TestDb.printedDocuments()

        pressTwice("Reprint Receipt")

        compare(TestDb.printedDocuments(), before + 1)
    }

    // At the pace of a hand that clicks twice out of habit.
    function test_a_double_click_prints_a_receipt_again_once_and_a_later_one_again() {
        TestDb.addPrinter("Counter")
        SettingService.savePrinter({ system_name: "Counter", role: "receipt", paper_width: 58, cut_mode: "none" })
        SettingService.saveRestaurantSetting({ name: "Corner Cafe" })
        order()
        verify(CheckoutService.completeCheckout(TestDb.value("SELECT MAX(id) FROM order_sessions"), "", 0))
        show("common/Checkout")
        page.selectRecent(page.recentOrders[0])
        const before = TestDb.printedDocuments()

        mouseClick(button("Reprint Receipt"))
        wait(150)
        mouseClick(button("Reprint Receipt"))
        compare(TestDb.printedDocuments(), before + 1)
        press("Reprint Receipt")

        compare(TestDb.printedDocuments(), before + 2)
    }

    function test_a_deletion_is_confirmed_once() {
        const answers = []
        const dialog = create("components/ConfirmationDialog", { confirmCallback: confirmed => answers.push(confirmed) })
        dialog.open()
        tryVerify(() => dialog.opened)

        pressTwice("Delete")
        compare(answers, [true])
        tryVerify(() => !dialog.visible)
        dialog.open()
        tryVerify(() => dialog.opened)
        press("Cancel")

        compare(answers, [true, false])
    }

    function test_settings_are_saved_once_and_again_later() {
        show("admin/settings/AdminStoreSettings")
        fill({ "Restaurant Name": "Corner Cafe" })
        pressTwice("Save")

        fill({ "Restaurant Name": "Cafe" })
        press("Save")

        compare(SettingService.getRestaurant().name, "Cafe")
    }

    SignalSpy {
        id: userSpy

        signalName: "createUserFinished"
        target: UserService
    }
}
