// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    property int tableId
    property int food
    property int soup
    property int burger
    property StackView stack: null

    name: "OrderEditor"

    Component {
        id: stackComponent

        StackView {
            width: root.width
            height: root.height
            initialItem: Item {
                objectName: "firstPage"
            }
        }
    }

    function arrange() {
        setKitchenMode("kds")
        tableId = TableService.addTable("Window", 4)
        food = addCategory("Food")
        soup = addItem("Soup", food, 5)
        burger = addItem("Burger", food, 12.5, "L")
        MenuService.currentCategoryId = food
    }

    function push(properties: var) {
        stack = createTemporaryObject(stackComponent, root)
        page = stack.push("qrc:/qt/qml/zelvan/qml/components/OrderEditor.qml", properties, StackView.Immediate)
        waitForRendering(page)
    }

    function test_the_heading_tells_whose_order_it_is_data() {
        return [
            { tag: "dine_in", title: "Window 7", subtitle: "Dine In" },
            { tag: "takeaway", title: "Takeaway Order", subtitle: "Takeaway" },
            { tag: "delivery", title: "Delivery Order", subtitle: "Delivery" }
        ]
    }

    function test_the_heading_tells_whose_order_it_is(data) {
        push({ orderType: data.tag, tableLabel: "Window 7" })

        verify(shows(data.title))
        verify(shows(data.subtitle))
    }

    function test_an_empty_label_leaves_the_heading_empty() {
        push({ orderType: "dine_in", tableLabel: "" })

        verify(shows("Dine In"))
        verify(!shows("Window 7"))
    }

    function test_a_long_currency_symbol_cuts_no_price_off() {
        verify(SettingService.saveRegionalSettings({ id: 1, locale: "en_US", currency_code: "MYR" }))
        addItem("Feast", food, 129.5)
        push({})

        const price = theShown(item => item.text === "RM129.50" && item.truncated !== undefined, "the price")

        compare(price.width, 70)
        verify(!price.truncated)
    }

    function test_columns_and_rows_have_their_sizes() {
        push({ tableLabel: "Window 7" })
        press("Add", 1)

        compare(button("Back").parent.parent.height, 64)
        compare(row("Food").height, 44)
        compare(theShown(item => item.text === "Price", "the price's title").width, 70)
        compare(theShown(item => item.text === "Portion", "the portion's title").width, 100)
        const rows = allShown(item => item.Accessible.role === Accessible.ListItem && item.Accessible.name === "Burger")
        compare(rows.map(item => item.height), [50, 64])
        compare([button("-").width, button("-").height, button("+").width, button("+").height], [28, 28, 28, 28])
        compare(button("Remove").background.color, "#ff4d4d")
        // 420 less the margins.
        compare(button("Place Order").width, 388)
    }

    function test_it_fills_the_page_of_the_stack() {
        push({})

        compare(page.width, root.width)
        compare(page.height, root.height)
    }

    function test_a_dine_in_order_is_stored_and_the_page_leaves() {
        push({ tableId: tableId, tableLabel: "Window" })
        verify(!button("Place Order").enabled)
        press("Add", 1)
        press("+")
        verify(shows("$25.00"))

        press("Place Order")

        compare(TestDb.rows("SELECT item_name, quantity, notes FROM order_items"), [{ item_name: "Burger", quantity: 2, notes: "" }])
        compare(TestDb.value("SELECT table_id FROM order_sessions"), tableId)
        tryCompare(stack, "depth", 1)
    }

    function test_a_takeaway_sends_no_table() {
        push({ orderType: "takeaway", tableId: tableId })
        press("Add", 0)

        press("Place Order")

        compare(TestDb.value("SELECT COUNT(*) FROM order_sessions WHERE table_id IS NULL AND order_type = 'takeaway'"), 1)
        compare(TestDb.value("SELECT status FROM tables"), "available")
    }

    function test_an_empty_order_is_not_sent() {
        push({ orderType: "takeaway" })
        verify(!button("Place Order").enabled)

        page.sendOrder()

        compare(TestDb.value("SELECT COUNT(*) FROM orders"), 0)
        compare(stack.depth, 2)
    }

    function test_a_line_whose_item_ran_out_is_dropped_and_the_page_still_leaves() {
        push({ orderType: "takeaway" })
        press("Add", 0)
        press("Add", 1)
        TestDb.run("UPDATE menu SET is_available = 0 WHERE id = " + soup)
        ignoreWarning(/Menu item unavailable:/)

        press("Place Order")

        compare(TestDb.rows("SELECT item_name FROM order_items"), [{ item_name: "Burger" }])
        tryCompare(stack, "depth", 1)
    }

    function test_a_refused_order_leaves_like_a_good_one() {
        push({ tableId: 999 })
        press("Add", 0)
        ignoreWarning(/Failed to create order session:/)
        TestDb.expectCritical("OrderSession creation failed, aborting order creation")

        press("Place Order")

        compare(TestDb.value("SELECT COUNT(*) FROM orders"), 0)
        tryCompare(stack, "depth", 1)
    }

    function test_back_drops_the_lines() {
        push({ orderType: "takeaway" })
        press("Add", 0)

        press("Back")

        compare(TestDb.value("SELECT COUNT(*) FROM orders"), 0)
        tryCompare(stack, "depth", 1)
    }

    function test_an_order_given_to_it_is_replaced() {
        const id = OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
        push({ orderType: "takeaway", currentOrderId: id })
        press("Add", 1)
        verify(!hasButton("Place Order"))
        TestDb.expectCritical("updateOrder commit failed")

        press("Update Order")

        compare(TestDb.rows("SELECT item_name FROM order_items"), [{ item_name: "Burger" }])
        compare(TestDb.value("SELECT COUNT(*) FROM orders"), 1)
    }

    function test_without_a_category_the_middle_shows_only_its_heading() {
        MenuService.currentCategoryId = -1

        push({})

        verify(shows("Select a category"))
        verify(!shows("Price"))
        verify(!hasButton("Add"))
    }

    function test_it_finds_the_stack_above_it_without_being_its_page() {
        stack = createTemporaryObject(stackComponent, root)
        const holder = stack.push(holderComponent, {}, StackView.Immediate)
        page = holder.editor

        page.leave()

        tryCompare(stack, "depth", 1)
    }

    Component {
        id: holderComponent

        Item {
            readonly property Item editor: loader.item

            Loader {
                id: loader

                source: "qrc:/qt/qml/zelvan/qml/components/OrderEditor.qml"
            }
        }
    }
}
