// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan
import ZelvanTest 1.0

// Pages without a mouse.
KeyboardTestCase {
    id: root

    name: "Keyboard"

    function test_the_first_administrator_registers_by_keys_alone() {
        screen("setup/SetupAdmin")
        tryCompare(root, "pageFocus", "Username")

        for (const character of "alice")
            keyClick(character)
        keyClick(Qt.Key_Return)
        for (const character of "secret")
            keyClick(character)
        keyClick(Qt.Key_Return)
        for (const character of "secret")
            keyClick(character)
        keyClick(Qt.Key_Return)

        tryCompare(stack, "depth", 2)
        compare(shownScreen(), "SetupBetaWelcome")
        compare(AuthService.currentUsername, "alice")
    }

    function test_tab_goes_through_a_form_in_reading_order() {
        screen("setup/SetupAdmin")
        tryCompare(root, "pageFocus", "Username")

        compare(tabOrder(), ["Username", "Password", "Confirm password", "Register"])
    }

    function test_a_refused_log_in_selects_the_password() {
        addUser("ann", "admin")
        AuthService.logout()
        screen("auth/Login")
        enter("Username", "ann")
        enter("Password", "guess")

        press("Login")

        compare(focusName(), "Password")
        compare([field("Password").selectionStart, field("Password").selectionEnd], [0, 5])
        for (const character of "secret")
            keyClick(character)
        press("Login")
        compare(AuthService.currentUsername, "ann")
    }

    function test_a_menu_is_typed_without_the_mouse() {
        const food = addCategory("Food")
        MenuService.currentCategoryId = food
        show("admin/AdminManagement")
        tryCompare(root, "pageFocus", "Item name")

        for (const [name, price, portion] of [["Soup", "5", "Bowl"], ["Tea", "2.5", ""], ["Rice", "1", "L"]]) {
            type(name)
            keyClick(Qt.Key_Return)
            type(price)
            keyClick(Qt.Key_Return)
            type(portion)
            keyClick(Qt.Key_Return)
            compare(focusName(), "Item name")
        }

        compare(TestDb.rows("SELECT item, price, portion_size AS portion FROM menu ORDER BY id"),
                [{ item: "Soup", price: 500, portion: "Bowl" }, { item: "Tea", price: 250, portion: "" }, { item: "Rice", price: 100, portion: "L" }])
    }

    function test_a_menu_starts_with_its_first_category() {
        show("admin/AdminManagement")
        tryCompare(root, "pageFocus", "New category name")

        type("Food")
        keyClick(Qt.Key_Return)
        compare(focusName(), "New category name")
        type("Drinks")
        keyClick(Qt.Key_Return)

        compare(TestDb.rows("SELECT category FROM categories ORDER BY id").map(row => row.category), ["Food", "Drinks"])
    }

    function test_tables_are_typed_without_the_mouse() {
        show("admin/AdminManagement")
        keyClick(Qt.Key_2, Qt.AltModifier)
        tryCompare(root, "pageFocus", "Table name")

        for (const [name, seats] of [["T1", "2"], ["T2", "12"]]) {
            type(name)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_A, Qt.ControlModifier)
            type(seats)
            keyClick(Qt.Key_Return)
            compare(focusName(), "Table name")
        }

        compare(TestDb.rows("SELECT table_name AS name, capacity FROM tables ORDER BY id"), [{ name: "T1", capacity: 2 }, { name: "T2", capacity: 12 }])
    }

    function test_edit_puts_the_cursor_into_the_row_and_escape_leaves_it_as_it_was_data() {
        return [
            { tag: "admin/management/AdminMenuManagement", label: "Item Name", sql: "SELECT item FROM menu" },
            { tag: "admin/management/AdminTableManagement", label: "Table Name", sql: "SELECT table_name FROM tables" }
        ]
    }

    function test_edit_puts_the_cursor_into_the_row_and_escape_leaves_it_as_it_was(data) {
        const food = addCategory("Food")
        addItem("Soup", food, 5)
        TableService.addTable("Soup", 4)
        MenuService.currentCategoryId = food
        show(data.tag)

        press("Edit")
        compare(focusName(), data.label)
        type("p")
        keyClick(Qt.Key_Escape)

        verify(hasButton("Edit"))
        verify(shows("Soup"))
        compare(TestDb.value(data.sql), "Soup")
    }

    function test_a_row_is_saved_by_return_in_its_last_field() {
        const food = addCategory("Food")
        addItem("Soup", food, 5)
        MenuService.currentCategoryId = food
        show("admin/management/AdminMenuManagement")
        press("Edit")

        type("s")
        keyClick(Qt.Key_Return)
        keyClick(Qt.Key_Return)
        keyClick(Qt.Key_Return)

        compare(TestDb.value("SELECT item FROM menu"), "Soups")
        verify(hasButton("Edit"))
    }

    function test_an_order_is_taken_by_keys_alone() {
        const food = addCategory("Food")
        addCategory("Drinks")
        addItem("Soup", food, 5)
        addItem("Rice", food, 1)
        TableService.addTable("T1", 2)
        TableService.addTable("T2", 2)
        screen("serviceStaff/ServiceStaffHome")

        button("Dine In").forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Space)
        tabTo("Food")
        keyClick(Qt.Key_Return)
        tabTo("Soup")
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        keyClick(Qt.Key_Return)
        tabTo("T1")
        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Space)
        keyClick(Qt.Key_Return, Qt.ControlModifier)

        compare(TestDb.rows("SELECT item_name, quantity FROM order_items"), [{ item_name: "Rice", quantity: 2 }])
        compare(TestDb.value("SELECT t.table_name FROM order_sessions s JOIN tables t ON t.id = s.table_id"), "T2")
    }

    function test_the_order_page_chosen_once_more_keeps_the_order() {
        const food = addCategory("Food")
        addItem("Soup", food, 5)
        MenuService.currentCategoryId = food
        show("serviceStaff/ServiceStaffHome")
        press("Add")

        press("Take Order")

        verify(hasButton("Remove"))
    }

    function test_the_pages_are_reached_by_their_number() {
        setKitchenMode("kds")
        screen("admin/AdminHome")

        keyClick(Qt.Key_7, Qt.ControlModifier)
        tryVerify(() => shows("Restaurant Settings"))
        keyClick(Qt.Key_4, Qt.AltModifier)
        tryVerify(() => shows("Tax Settings"))
        keyClick(Qt.Key_2, Qt.ControlModifier)

        tryVerify(() => shows("Recent Paid Orders"))
    }

    function test_settings_are_saved_by_return_in_the_last_field_and_by_the_keys_of_the_button() {
        show("admin/settings/AdminStoreSettings")
        field("Restaurant Name").forceActiveFocus()

        type("Corner")
        for (let count = 0; count < 5; ++count)
            keyClick(Qt.Key_Return)
        compare(TestDb.value("SELECT name FROM restaurant"), "Corner")
        tryVerify(() => !Work.busy)
        field("Address").forceActiveFocus()
        type("Street")
        keyClick(Qt.Key_Return, Qt.ControlModifier)

        compare(TestDb.value("SELECT address FROM restaurant"), "Street")
    }
}
