// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    readonly property var cleared: /Checkout.qml:\d+: TypeError/
    property int tableId
    property int soup
    property int burger

    name: "Checkout"

    function arrange() {
        setKitchenMode("none")
        SettingService.saveRestaurantSetting({ name: "Corner", address: "1 Main Street" })
        SettingService.saveMembershipSettings({ enabled: true, earn_points: 1, earn_spend: 1, redeem_points: 1, redeem_value: 0.1, earn_on: "total" })
        tableId = TableService.addTable("Window", 4)
        const food = addCategory("Food")
        soup = addItem("Soup", food, 5)
        burger = addItem("Burger", food, 12.5, "L")
    }

    function order(type: string, options: var): int {
        return OrderService.createOrder(type, [{ menuItemId: burger, qty: 2, notes: "rare" }, { menuItemId: soup, qty: 1, notes: "" }], options)
    }

    function sessionRow(index: int): var {
        return allShown(item => item.Accessible.role === Accessible.ListItem && item.Accessible.name.startsWith("#"))[index]
    }

    function pay(type: string) {
        order(type, {})
        CheckoutService.completeCheckout(TestDb.value("SELECT MAX(id) FROM order_sessions"), "", 0)
    }

    function test_without_open_sessions_nothing_is_shown() {
        show("common/Checkout")

        compare(page.activeSessions.length, 0)
        verify(!hasButton("Checkout"))
        verify(!hasButton("Reprint Receipt"))
    }

    function test_open_sessions_tell_their_table_or_type() {
        order("dine_in", { tableId: tableId })
        order("takeaway", {})

        show("common/Checkout")

        verify(shows("Table Window"))
        verify(shows("takeaway"))
    }

    function test_a_selected_session_shows_its_bill() {
        order("dine_in", { tableId: tableId })
        show("common/Checkout")

        click(sessionRow(0))

        verify(shows("Order #" + page.selectedSession.display_number))
        verify(shows("Order " + page.checkoutDetails[0].display_number))
        for (const text of ["Item", "Qty", "Unit", "Total", "Burger (L)", "(rare)", "x2", "12.50", "25.00", "Soup", "x1", "Subtotal: $30.00", "Tax: $0.00", "Total: $30.00"])
            verify(shows(text), text)
        verify(!texts().some(text => text.startsWith("Discount")))
        verify(!shows("SERVED"))
    }

    function test_a_payment_is_stored_printed_and_leaves_the_list() {
        SettingService.savePrinter({ system_name: "TM88", role: "receipt", paper_width: 80, cut_mode: "full" })
        order("dine_in", { tableId: tableId })
        show("common/Checkout")
        click(sessionRow(0))
        const before = TestDb.printedDocuments()
        ignoreWarning(cleared)

        press("Checkout")

        compare(TestDb.value("SELECT status FROM order_sessions"), "paid")
        compare(TestDb.value("SELECT status FROM tables"), "available")
        compare(TestDb.printedDocuments() - before, 1)
        compare(page.activeSessions.length, 0)
        compare(page.recentOrders.length, 1)
        compare(page.selectedSession, null)
        verify(!hasButton("Checkout"))
    }

    function test_a_failed_payment_leaves_the_page_as_it_was() {
        order("dine_in", { tableId: tableId })
        show("common/Checkout")
        click(sessionRow(0))
        TestDb.run("CREATE TRIGGER refuse BEFORE INSERT ON receipt_snapshot BEGIN SELECT RAISE(ABORT, 'no'); END")
        ignoreWarning(/Failed to create receipt snapshot:/)
        ignoreWarning(/Failed creating receipt snapshot/)
        ignoreWarning(/Rolling back transaction/)

        press("Checkout")
        TestDb.run("DROP TRIGGER refuse")

        compare(TestDb.value("SELECT status FROM order_sessions"), "open")
        verify(page.selectedSession !== null)
        verify(hasButton("Checkout"))
        verify(shows("Total: $30.00"))
    }

    function test_selecting_on_one_side_clears_the_other() {
        pay("takeaway")
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        verify(hasButton("Checkout"))
        ignoreWarning(cleared)

        click(sessionRow(1))
        verify(!hasButton("Checkout"))
        verify(hasButton("Reprint Receipt"))
        click(sessionRow(0))

        verify(hasButton("Checkout"))
        verify(!hasButton("Reprint Receipt"))
    }

    function test_a_recent_order_shows_its_stored_figures_and_is_reprinted() {
        SettingService.savePrinter({ system_name: "TM88", role: "both", paper_width: 80, cut_mode: "full" })
        pay("takeaway")
        TestDb.run("UPDATE order_sessions SET tax = 125, discount = 500, total = 2625")
        show("common/Checkout")
        verify(shows("$26.25"))

        click(sessionRow(0))
        for (const text of ["Subtotal: $30.00", "Tax: $1.25", "Discount: -$5.00", "Total: $26.25", "Burger (L)"])
            verify(shows(text), text)
        const before = TestDb.printedDocuments()
        press("Reprint Receipt")

        compare(TestDb.printedDocuments() - before, 1)
        verify(TestDb.lastPrintedDocument().includes("Reprint"))
    }

    function test_twenty_recent_orders_are_listed() {
        for (let i = 0; i < 22; ++i)
            pay("takeaway")

        show("common/Checkout")

        compare(page.recentOrders.length, 20)
    }

    function test_served_orders_unlock_the_payment() {
        setKitchenMode("kds", { require_ready_for_checkout: true })
        const id = order("dine_in", { tableId: tableId })
        show("common/Checkout")
        click(sessionRow(0))
        verify(shows("PENDING"))
        verify(!button("Checkout").enabled)

        KitchenOrderService.markState(id, "served")
        click(sessionRow(0))

        verify(shows("SERVED"))
        verify(button("Checkout").enabled)
    }

    function test_the_word_served_is_trimmed_and_read_in_any_case() {
        setKitchenMode("kds", { require_ready_for_checkout: true })
        const id = order("takeaway", {})
        TestDb.run("UPDATE orders SET status = ' Served ' WHERE id = " + id)
        show("common/Checkout")

        click(sessionRow(0))

        verify(page.canCheckout)
    }

    function test_with_tickets_pending_orders_can_be_paid() {
        setKitchenMode("tickets", { require_ready_for_checkout: true })
        const id = order("takeaway", {})
        TestDb.run("UPDATE orders SET status = 'pending' WHERE id = " + id)
        show("common/Checkout")

        click(sessionRow(0))

        verify(button("Checkout").enabled)
    }

    function test_the_member_is_asked_for_only_with_membership() {
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        verify(shows("Member Phone (optional)"))

        SettingService.saveMembershipSettings(Object.assign(SettingService.getMembershipSettings(), { enabled: false }))

        verify(!shows("Member Phone (optional)"))
    }

    function test_a_new_member_earns() {
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        verify(!button("Check").enabled)
        enter("Member Phone (optional)", "0123")

        press("Check")

        verify(shows("New member will be created"))
        verify(shows("Points to Earn: +30"))
        verify(!hasButton("Redeem All"))
    }

    function member(points: int) {
        TestDb.run("INSERT INTO memberships (phone_number, total_points, status) VALUES ('0123', " + points + ", 'active')")
    }

    function test_a_member_redeems_all_points_or_none() {
        member(100)
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        enter("Member Phone (optional)", "0123")
        keyClick(Qt.Key_Return)
        verify(shows("Current Points: 100"))

        press("Redeem All")
        compare(page.redeemPointsRequested, 100)
        verify(shows("Discount: -$10.00"))
        verify(shows("Total: $20.00"))
        press("Clear")
        compare(page.redeemPointsRequested, 0)
        verify(shows("Total: $30.00"))
        press("Redeem All")
        ignoreWarning(cleared)
        press("Checkout")

        compare(TestDb.value("SELECT discount FROM order_sessions"), 1000)
        compare(TestDb.value("SELECT total FROM order_sessions"), 2000)
        compare(TestDb.value("SELECT points_redeemed FROM order_sessions"), 100)
    }

    function test_a_bill_redeemed_to_nothing_still_shows_the_full_total() {
        member(5000)
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        enter("Member Phone (optional)", "0123")
        press("Check")

        press("Redeem All")

        verify(shows("Discount: -$30.00"))
        verify(shows("Total: $30.00"))
    }

    function test_changing_the_phone_forgets_the_member_but_keeps_the_redemption() {
        member(100)
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        enter("Member Phone (optional)", "0123")
        press("Check")
        press("Redeem All")

        enter("Member Phone (optional)", "9")

        compare(page.membershipChecked, false)
        compare(page.memberId, 0)
        compare(page.redeemPointsRequested, 100)
        click(sessionRow(0))
        compare(page.redeemPointsRequested, 0)
        compare(page.memberPhone, "")
        compare(field("Member Phone (optional)").text, "")
    }

    function test_another_bill_does_not_inherit_the_redemption() {
        member(100)
        order("takeaway", {})
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        enter("Member Phone (optional)", "0123")
        press("Check")
        press("Redeem All")
        verify(shows("Total: $20.00"))

        click(sessionRow(1))

        verify(shows("Total: $30.00"))
        verify(!texts().some(text => text.startsWith("Discount")))
        verify(!page.membershipChecked)
    }

    function test_the_phone_is_trimmed() {
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))

        enter("Member Phone (optional)", " 012 ")

        compare(page.memberPhone, "012")
        compare(field("Member Phone (optional)").text, " 012 ")
    }

    function test_a_revoked_member_shows_with_nothing_to_earn_and_cannot_pay() {
        member(100)
        TestDb.run("UPDATE memberships SET status = 'revoked'")
        order("takeaway", {})
        show("common/Checkout")
        click(sessionRow(0))
        enter("Member Phone (optional)", "0123")
        press("Check")
        verify(shows("Current Points: 100"))
        verify(shows("Points to Earn: +0"))
        ignoreWarning(/Failed applying membership/)
        ignoreWarning(/Rolling back transaction/)

        press("Checkout")

        compare(TestDb.value("SELECT status FROM order_sessions"), "open")
    }

    function test_the_preview_loses_the_fraction_of_a_cent() {
        const dish = addItem("Dish", TestDb.value("SELECT MAX(id) FROM categories"), 19.99)
        OrderService.createOrder("takeaway", [{ menuItemId: dish, qty: 1, notes: "" }], {})
        show("common/Checkout")
        click(sessionRow(0))
        verify(shows("Total: $19.99"))
        enter("Member Phone (optional)", "0123")

        press("Check")

        verify(shows("Total: $19.98"))
    }
}
