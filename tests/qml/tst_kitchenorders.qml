// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    property int tableId
    property int soup
    property int burger

    name: "KitchenOrders"

    function arrange() {
        setKitchenMode("kds")
        tableId = TableService.addTable("Window", 4)
        const category = addCategory("Food")
        soup = addItem("Soup", category, 5)
        burger = addItem("Burger", category, 12.5, "L")
    }

    function order(type: string, options: var): int {
        return OrderService.createOrder(type, [{ menuItemId: burger, qty: 2, notes: "no onion" }, { menuItemId: soup, qty: 1, notes: "" }], options)
    }

    function statusOf(orderId: int): string {
        return TestDb.value("SELECT status FROM orders WHERE id = " + orderId)
    }

    function test_a_card_shows_order_lines_remarks_and_note() {
        const id = order("dine_in", { tableId: tableId, notes: "Birthday" })

        show("common/KitchenOrders")

        for (const text of ["NEW", "PREPARING", "READY", "#" + page.pendingOrders[0].display_number, "DINE_IN", "Table Window", "Burger (L) x2", "- no onion", "Soup x1", "NOTE: Birthday"])
            verify(shows(text), text)
        verify(id > 0)
    }

    function test_a_card_is_as_high_as_its_content_and_24_more() {
        order("takeaway", { notes: "Birthday" })

        show("common/KitchenOrders")

        const card = row("#" + page.pendingOrders[0].display_number)
        compare(card.height, card.children[0].implicitHeight + 24)
        compare(card.children[0].y, 12)
        compare(card.radius, 6)
        compare(button("START").height, 38)
        compare(theShown(item => item.text === "NOTE: Birthday", "the note").color, Theme.orange)
        compare(theShown(item => item.text === "- no onion", "the remark").color, Theme.orange)
    }

    function test_a_takeaway_shows_its_type_in_capitals_and_no_table() {
        order("takeaway", {})

        show("common/KitchenOrders")

        verify(shows("TAKEAWAY"))
        verify(!texts().some(text => text.startsWith("Table")))
    }

    function test_an_order_walks_over_the_board_until_it_is_served() {
        const id = order("dine_in", { tableId: tableId })
        show("common/KitchenOrders")

        press("START")
        compare(statusOf(id), "in_progress")
        compare(page.preparingOrders.length, 1)
        press("MARK READY")
        compare(statusOf(id), "ready")
        compare(TestDb.value("SELECT item_status FROM order_items LIMIT 1"), "pending")
        press("SERVE")

        compare(statusOf(id), "served")
        compare(TestDb.value("SELECT COUNT(*) FROM order_items WHERE item_status = 'served'"), 2)
        compare(page.pendingOrders.length + page.preparingOrders.length + page.readyOrders.length, 0)
        compare(TestDb.value("SELECT status FROM tables"), "occupied")
    }

    function test_a_new_order_shows_at_once() {
        show("common/KitchenOrders")
        compare(page.pendingOrders.length, 0)

        order("takeaway", {})

        compare(page.pendingOrders.length, 1)
    }

    function test_a_change_from_elsewhere_shows_at_the_next_poll() {
        const id = order("takeaway", {})
        show("common/KitchenOrders")

        TestDb.run("UPDATE orders SET status = 'ready' WHERE id = " + id)

        compare(page.readyOrders.length, 0)
        tryVerify(() => page.readyOrders.length === 1, 3000)
    }

    function test_the_poll_leaves_unchanged_cards_alone() {
        order("takeaway", {})
        show("common/KitchenOrders")
        const shown = button("START")

        page.loadOrders()

        compare(button("START"), shown)
    }

    function columnOf(title: string): var {
        return theShown(item => item.indexAt !== undefined && item.Accessible.name === title, "the column " + title)
    }

    function test_a_new_order_leaves_the_cards_standing_where_they_are() {
        for (let i = 0; i < 12; ++i)
            order("takeaway", {})
        show("common/KitchenOrders")
        columnOf("NEW").positionViewAtIndex(6, ListView.Beginning)
        const card = row("#" + page.pendingOrders[6].display_number)
        const place = card.mapToItem(page, 0, 0).y

        order("takeaway", {})

        compare(page.pendingOrders.length, 13)
        compare(row("#" + page.pendingOrders[6].display_number), card)
        compare(card.mapToItem(page, 0, 0).y, place)
    }

    function test_an_order_that_leaves_moves_the_next_cards_up() {
        const first = order("takeaway", {})
        order("takeaway", {})
        show("common/KitchenOrders")
        const place = row("#" + page.pendingOrders[0].display_number).mapToItem(page, 0, 0).y
        const next = row("#" + page.pendingOrders[1].display_number)

        KitchenOrderService.markState(first, "served")

        compare(row("#" + page.pendingOrders[0].display_number), next)
        compare(next.mapToItem(page, 0, 0).y, place)
    }

    function test_a_changed_order_keeps_its_card() {
        const id = order("takeaway", {})
        show("common/KitchenOrders")
        const start = button("START")
        TestDb.run("UPDATE orders SET notes = 'hurry' WHERE id = " + id)

        page.loadOrders()

        verify(shows("NOTE: hurry"))
        compare(button("START"), start)
    }

    function test_orders_that_come_back_stand_by_their_age() {
        for (let i = 0; i < 4; ++i)
            order("takeaway", {})
        show("common/KitchenOrders")
        const [first, second, third, fourth] = page.pendingOrders.map(order => order.id)
        const shown = () => allShown(item => item.orderId !== undefined).sort((a, b) => a.y - b.y).map(card => card.orderId)
        compare(shown(), [first, second, third, fourth])

        KitchenOrderService.markState(first, "burnt")
        KitchenOrderService.markState(third, "burnt")
        compare(shown(), [second, fourth])
        KitchenOrderService.markState(third, "pending")
        KitchenOrderService.markState(first, "pending")
        compare(shown(), [first, second, third, fourth])
        TestDb.run("UPDATE orders SET created_at = datetime('now', '-1 hour') WHERE id = " + fourth)
        page.loadOrders()

        compare(shown(), [fourth, first, second, third])
    }

    function test_an_order_without_a_kitchen_display_never_shows_data() {
        return [{ tag: "none" }, { tag: "tickets" }]
    }

    function test_an_order_without_a_kitchen_display_never_shows(data) {
        setKitchenMode(data.tag)
        order("takeaway", {})

        show("common/KitchenOrders")

        compare(page.pendingOrders.length + page.preparingOrders.length + page.readyOrders.length, 0)
    }

    function test_an_unknown_word_drops_the_order_off_all_columns() {
        const id = order("takeaway", {})
        show("common/KitchenOrders")

        verify(KitchenOrderService.markState(id, "burnt"))

        compare(statusOf(id), "burnt")
        compare(page.pendingOrders.length + page.preparingOrders.length + page.readyOrders.length, 0)
    }

    function test_the_board_offers_no_way_back() {
        const id = order("takeaway", {})
        KitchenOrderService.markState(id, "ready")
        show("common/KitchenOrders")

        compare(allShown(item => isButton(item)).map(item => item.text), ["SERVE"])

        KitchenOrderService.markState(id, "pending")
        compare(statusOf(id), "pending")
    }

    function test_serving_twice_rewrites_the_closing_time() {
        const id = order("takeaway", {})
        KitchenOrderService.markState(id, "served")
        TestDb.run("UPDATE orders SET closed_at = 'earlier' WHERE id = " + id)

        KitchenOrderService.markState(id, "served")

        verify(TestDb.value("SELECT closed_at FROM orders WHERE id = " + id) !== "earlier")
    }

    function test_the_card_of_a_deleted_table_shows_no_table() {
        order("dine_in", { tableId: tableId })
        TableService.removeTable(tableId)

        show("common/KitchenOrders")

        compare(page.pendingOrders[0].table_name, null)
        verify(!texts().some(text => text.startsWith("Table")))
    }

    function test_an_update_of_a_ready_order_leaves_it_ready_with_pending_lines() {
        const id = order("takeaway", {})
        KitchenOrderService.markState(id, "ready")
        TestDb.expectCritical("updateOrder commit failed")
        OrderService.updateOrder(id, "takeaway", [{ menuItemId: soup, qty: 3, notes: "" }], {})

        show("common/KitchenOrders")

        compare(page.readyOrders.length, 1)
        compare(page.readyOrders[0].items[0].quantity, 3)
        compare(page.readyOrders[0].items[0].item_status, "pending")
    }

    function test_orders_of_an_earlier_day_stay_oldest_first() {
        const first = order("takeaway", {})
        const second = order("takeaway", {})
        TestDb.run("UPDATE orders SET created_at = datetime('now', '-3 days') WHERE id = " + second)

        show("common/KitchenOrders")

        compare(page.pendingOrders.map(row => row.id), [second, first])
    }

    function test_data_is_shown_as_it_was_typed() {
        TestDb.run("UPDATE menu SET item = '<b>Soup</b>' WHERE id = " + soup)
        order("takeaway", { notes: "<img src='x'>" })

        show("common/KitchenOrders")

        verify(shows("<b>Soup</b> x1"))
        verify(shows("NOTE: <img src='x'>"))
    }

    function test_the_kitchens_home_is_the_board() {
        order("takeaway", {})

        show("kitchenStaff/KitchenStaffHome")

        verify(hasButton("START"))
    }
}
