// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

OrderTakingTestCase {
    id: root

    name: "OrderTakingSimple"

    function test_a_category_is_chosen_for_all_screens() {
        MenuService.currentCategoryId = -1
        show("common/OrderTakingSimple")
        verify(shows("Select a category"))
        verify(!hasButton("Add"))

        click(row("Food"))

        compare(MenuService.currentCategoryId, food)
        verify(shows("Menu Items"))
        verify(shows("$12.50"))
        verify(shows("L"))
        verify(shows("-"))
    }

    function test_an_item_takes_one_line_and_the_figures_follow() {
        show("common/OrderTakingSimple")

        press("Add", 0)
        press("Add", 0)
        press("Add", 1)

        compare(page.totalItems, 3)
        compare(page.subtotal, 22.5)
        compare(page.total, 22.5)
        verify(shows("$22.50"))
        compare(allShown(item => isButton(item) && item.text === "Remove").length, 2)
    }

    function test_an_unavailable_item_cannot_be_added() {
        MenuService.editMenuItem(soup, "Soup", food, 5, false, true, "")
        show("common/OrderTakingSimple")

        verify(shows("Unavailable"))
        verify(!button("Add", 0).enabled)
        verify(button("Add", 1).enabled)
    }

    function test_a_quantity_does_not_fall_below_one() {
        show("common/OrderTakingSimple")
        press("Add", 0)
        verify(!button("-").enabled)

        press("+")
        compare(page.totalItems, 2)
        press("-")

        compare(page.totalItems, 1)
        verify(!button("-").enabled)
        press("Remove")
        compare(page.totalItems, 0)
    }

    function test_dine_in_needs_a_table() {
        show("common/OrderTakingSimple")
        verify(!button("Place Order").enabled)
        press("Add", 0)
        verify(button("Place Order").enabled)

        press("Dine In")
        verify(!button("Place Order").enabled)
        click(row("Window"))

        compare(page.selectedTableId, windowTable)
        verify(button("Place Order").enabled)
    }

    function test_a_dine_in_order_is_stored_and_the_page_starts_afresh() {
        show("common/OrderTakingSimple")
        press("Dine In")
        click(row("Window"))
        press("Add", 1)
        enter("Add a remark", "rare")

        press("Place Order")

        compare(lines(), [{ item_name: "Burger", quantity: 1, notes: "rare" }])
        compare(lastOrder("order_type"), "dine_in")
        compare(lastOrder("table_id"), windowTable)
        compare(TestDb.value("SELECT status FROM tables WHERE id = " + windowTable), "occupied")
        compare(page.currentOrderType, "")
        compare(page.selectedTableId, -1)
        compare(page.currentOrderId, -1)
        compare(page.totalItems, 0)
        verify(!button("Dine In").checked)
    }

    function test_an_order_without_a_type_is_stored_with_none_and_no_table() {
        show("common/OrderTakingSimple")
        press("Add", 0)

        press("Place Order")

        compare(lastOrder("order_type"), "")
        compare(TestDb.value("SELECT COUNT(*) FROM order_sessions WHERE table_id IS NULL"), 1)
    }

    function test_a_second_order_joins_the_session_of_an_occupied_table() {
        OrderService.createOrder("dine_in", [{ menuItemId: soup, qty: 1, notes: "" }], { tableId: windowTable })
        show("common/OrderTakingSimple")
        press("Dine In")
        click(row("Window"))
        press("Add", 0)

        press("Place Order")

        compare(TestDb.value("SELECT COUNT(*) FROM order_sessions"), 1)
        compare(TestDb.value("SELECT COUNT(*) FROM orders"), 2)
    }

    function test_only_an_occupied_table_is_marked() {
        TableService.setTableStatus(windowTable, "occupied")
        TableService.setTableStatus(doorTable, "reserved")
        show("common/OrderTakingSimple")
        press("Dine In")

        compare(row("Window").children[0].color, "#ff4d4d")
        compare(row("Door").children[0].color, "#4caf50")
    }

    function test_the_grid_follows_every_change_of_status() {
        show("common/OrderTakingSimple")
        press("Dine In")
        compare(row("Window").children[0].color, "#4caf50")

        TableService.setTableStatus(windowTable, "occupied")

        compare(row("Window").children[0].color, "#ff4d4d")
    }

    function test_tables_show_for_dine_in_only() {
        show("common/OrderTakingSimple")
        press("Takeaway")
        compare(page.currentOrderType, "takeaway")
        verify(!shows("Table"))

        press("Dine In")

        verify(shows("Table"))
    }

    function test_new_order_clears_everything() {
        show("common/OrderTakingSimple")
        press("Dine In")
        click(row("Window"))
        press("Add", 0)
        openEditList()

        press("New Order")

        compare(page.totalItems, 0)
        compare(page.currentOrderType, "")
        compare(page.selectedTableId, -1)
        compare(page.showEditOrdersList, false)
    }

    function test_rows_tiles_and_buttons_have_their_looks() {
        OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
        show("common/OrderTakingSimple")
        press("Dine In")
        click(row("Window"))
        compare(row("Food").height, 44)
        compare(row("Burger").height, 44)
        press("Add", 1)
        const line = button("Remove").parent.parent.parent
        const tile = row("Window").children[0]

        compare(line.height, 56)
        compare(field("Add a remark").width, 100)
        compare([button("-").width, button("-").height, button("+").width, button("+").height], [28, 28, 28, 28])
        compare([tile.width, tile.height, tile.radius, tile.border.width, tile.border.color], [72, 40, 4, 3, Theme.primary()])
        compare(row("Door").children[0].border.color, Theme.background)
        compare(button("Dine In").background.color, Theme.primary())
        compare(button("Takeaway").background.color, Theme.surface)
        compare(button("New Order").background.color, "#4faba1")
        compare(button("Edit Order").background.color, "#5f7ddc")
        compare(button("Remove").background.color, "#ff4d4d")
        compare(openEditList()[0].height, 75)
    }

    function test_the_heads_stand_over_their_columns() {
        show("common/OrderTakingSimple")

        const price = theShown(item => item.text === "Price", "the price's head")
        const portion = theShown(item => item.text === "Portion", "the portion's head")
        const burger = row("Burger")
        compare(burger.children[1].mapToItem(page, 0, 0).x, price.mapToItem(page, 0, 0).x)
        compare(burger.children[2].mapToItem(page, 0, 0).x, portion.mapToItem(page, 0, 0).x)
    }

    function test_a_remark_stands_under_its_dish_in_a_narrow_row() {
        show("common/OrderTakingSimple")
        press("Add", 1)
        const beside = field("Add a remark").mapToItem(button("Remove"), 0, 0)
        verify(beside.y < button("Remove").height)

        keyClickInto(field("Add a remark"), "mild")
        page.width = 874
        settle()

        const under = field("Add a remark")
        verify(under.mapToItem(button("Remove"), 0, 0).y >= button("Remove").height)
        compare(under.text, "mild")
        press("Place Order")
        compare(TestDb.value("SELECT notes FROM order_items"), "mild")
    }

    function keyClickInto(input, text: string) {
        input.forceActiveFocus()
        for (const character of text)
            keyClick(character)
    }

    function test_a_line_that_is_added_comes_into_view() {
        for (let i = 0; i < 20; ++i)
            addItem("Dish " + i, food, 1)
        show("common/OrderTakingSimple")
        const list = theShown(item => item.rowWidth !== undefined && item.Accessible.name === "Current Order", "the lines")
        for (let i = 0; i < 12; ++i)
            press("Add", i)

        verify(list.contentHeight > list.height)
        verify(list.atYEnd)
        press("Add", 0)
        tryVerify(() => list.atYBeginning)
    }

    function test_tables_of_like_names_can_be_told_apart() {
        for (const name of ["Table 10", "Table 11"])
            TableService.addTable(name, 4)
        show("common/OrderTakingSimple")

        press("Dine In")

        for (const name of ["Table 10", "Table 11"])
            verify(!theShown(item => item.text === name, name).truncated)
    }

    function test_the_buttons_of_a_row_name_it_to_a_screen_reader() {
        show("common/OrderTakingSimple")
        press("Add", 1)

        compare(button("Add", 0).Accessible.description, "Soup")
        for (const text of ["-", "+", "Remove"])
            compare(button(text).Accessible.description, "Burger", text)
    }

    function test_names_are_shown_as_they_were_typed() {
        MenuService.editMenuItem(soup, "<img src='x'>", food, 5, true, true, "")
        show("common/OrderTakingSimple")

        press("Add", 0)

        compare(texts().filter(text => text === "<img src='x'>").length, 2)
    }

    function test_the_page_fills_its_parent() {
        const frame = createTemporaryQmlObject("import QtQuick; import zelvan; Item { width: 900; height: 500; OrderTaking {} }", root)

        compare(frame.children[0].width, 900)
        compare(frame.children[0].height, 500)
    }

    function test_the_layout_mode_switches_the_page_at_once() {
        FloorPlanService.createFloor("Hall")
        show("common/OrderTaking")
        verify(hasButton("Place Order"))

        SettingService.saveTableSettings({ layout_mode: "floor_plan" })

        verify(!hasButton("Place Order"))
        verify(shows("Table Session"))
    }
}
