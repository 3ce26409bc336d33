// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// Orders that were placed and are changed.
OrderTakingTestCase {
    id: root

    name: "OrderTakingEdits"

    function test_an_order_is_loaded_and_sent_again() {
        const id = OrderService.createOrder("dine_in", [{ menuItemId: soup, qty: 2, notes: "hot" }], { tableId: windowTable })
        show("common/OrderTakingSimple")

        click(openEditList()[0])
        compare(page.currentOrderId, id)
        compare(page.currentOrderType, "dine_in")
        compare(page.selectedTableId, windowTable)
        compare(page.totalItems, 2)
        compare(field("Add a remark").text, "")
        press("+")
        TestDb.expectCritical("updateOrder commit failed")
        press("Edit Order", 1)

        compare(lines(), [{ item_name: "Soup", quantity: 3, notes: "hot" }])
        compare(page.currentOrderId, -1)
        verify(hasButton("Place Order"))
    }

    function test_leaving_dine_in_frees_the_table() {
        OrderService.createOrder("dine_in", [{ menuItemId: soup, qty: 1, notes: "" }], { tableId: windowTable })
        show("common/OrderTakingSimple")
        click(openEditList()[0])
        TestDb.expectCritical("updateOrder commit failed")

        press("Takeaway")
        press("Edit Order", 1)

        compare(TestDb.value("SELECT status FROM tables WHERE id = " + windowTable), "available")
        compare(lastOrder("order_type"), "takeaway")
        compare(TestDb.value("SELECT COUNT(*) FROM order_sessions WHERE table_id IS NULL"), 1)
    }

    function test_yesterdays_order_is_not_offered() {
        const old = OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
        TestDb.run("UPDATE orders SET created_at = datetime('now', '-2 days') WHERE id = " + old)
        const today = OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
        show("common/OrderTakingSimple")

        openEditList()

        compare(page.editOrdersList.map(order => order.id), [today])
    }

    function test_the_list_tells_number_status_and_table() {
        OrderService.createOrder("dine_in", [{ menuItemId: soup, qty: 1, notes: "" }], { tableId: windowTable })
        show("common/OrderTakingSimple")

        openEditList()

        verify(shows("Order #" + lastOrder("o.display_number") + " (dine_in)"))
        verify(shows("Status: pending"))
        verify(shows("Table: Window"))
        verify(!shows("Current Order"))
        verify(!hasButton("Place Order"))
    }

    function test_lines_keyed_in_stay_until_an_order_is_picked() {
        OrderService.createOrder("takeaway", [{ menuItemId: burger, qty: 5, notes: "" }], {})
        show("common/OrderTakingSimple")
        press("Add", 0)

        const list = openEditList()
        compare(page.totalItems, 1)
        click(list[0])

        compare(page.totalItems, 5)
    }

    function test_without_the_setting_no_way_leads_to_a_placed_order() {
        setKitchenMode("kds", { allow_edit_after_send: false })
        OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})

        show("common/OrderTakingSimple")

        verify(!hasButton("Edit Order"))
        verify(!hasButton("Print Ticket"))
    }

    function test_the_settings_are_read_once() {
        show("common/OrderTakingSimple")

        setKitchenMode("kds", { allow_edit_after_send: false })

        verify(hasButton("Edit Order"))
    }

    function test_a_ticket_is_printed_by_hand_while_an_order_is_loaded_data() {
        return [
            { tag: "manual", timing: "manual", offered: true },
            { tag: "order_created", timing: "order_created", offered: false }
        ]
    }

    function test_a_ticket_is_printed_by_hand_while_an_order_is_loaded(data) {
        setKitchenMode("kds", { ticket_print_timing: data.timing })
        SettingService.savePrinter({ system_name: "TM88", role: "kitchen", paper_width: 80, cut_mode: "full" })
        OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
        show("common/OrderTakingSimple")
        verify(!hasButton("Print Ticket"))
        click(openEditList()[0])
        compare(hasButton("Print Ticket"), data.offered)
        const before = TestDb.printedDocuments()

        if (data.offered)
            press("Print Ticket")

        compare(TestDb.printedDocuments() - before, data.offered ? 1 : 0)
    }
}
