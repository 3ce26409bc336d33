// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "AdminTableManagement"

    function tables(): var {
        return TestDb.rows("SELECT table_name, capacity FROM tables ORDER BY id")
    }

    function spinBox(index: int): var {
        return allShown(item => item.valueModified !== undefined && item.stepSize !== undefined && item.from !== undefined && item.to > 1)[index]
    }

    function newCapacity() {
        const boxes = allShown(item => item.valueModified !== undefined && item.from !== undefined)
        return boxes[boxes.length - 1]
    }

    function test_a_table_is_added_and_the_form_returns_to_four_seats() {
        show("admin/management/AdminTableManagement")
        compare(newCapacity().value, 6)
        enter("Table name", "Window")

        press("Add Table")

        compare(tables(), [{ table_name: "Window", capacity: 6 }])
        compare(field("Table name").text, "")
        compare(newCapacity().value, 4)
    }

    function test_a_table_without_seats_is_refused_and_the_form_clears_all_the_same() {
        ignoreWarning(/Capacity must be greater than 0/)
        show("admin/management/AdminTableManagement")
        enter("Table name", "Window")
        newCapacity().value = 0

        press("Add Table")

        compare(tables(), [])
        compare(field("Table name").text, "")
        compare(newCapacity().value, 4)
    }

    function test_a_failed_write_keeps_the_form() {
        TestDb.run("CREATE TRIGGER full BEFORE INSERT ON tables BEGIN SELECT RAISE(ABORT, 'full'); END")
        ignoreWarning(/create failed:/)
        show("admin/management/AdminTableManagement")
        enter("Table name", "Window")

        press("Add Table")

        compare(field("Table name").text, "Window")
        compare(newCapacity().value, 6)
        TestDb.run("DROP TRIGGER full")
    }

    function test_a_name_of_blanks_sends_nothing() {
        show("admin/management/AdminTableManagement")
        enter("Table name", "  ")

        press("Add Table")

        compare(tables(), [])
        compare(field("Table name").text, "  ")
    }

    function edit() {
        show("admin/management/AdminTableManagement")
        press("Edit")
    }

    function test_a_row_is_edited_in_place() {
        TableService.addTable("Window", 4)
        edit()
        enter("Table Name", "Door")
        mouseClick(spinBox(0).up.indicator)

        press("Save")

        compare(tables(), [{ table_name: "Door", capacity: 5 }])
        verify(hasButton("Edit"))
    }

    function test_return_saves_and_escape_does_not_data() {
        return [{ tag: "return", key: Qt.Key_Return, name: "Door" }, { tag: "escape", key: Qt.Key_Escape, name: "Window" }]
    }

    function test_return_saves_and_escape_does_not(data) {
        TableService.addTable("Window", 4)
        edit()
        enter("Table Name", "Door")

        keyClick(data.key)

        compare(tables()[0].table_name, data.name)
        verify(shows(data.name))
        verify(!hasButton("Save"))
    }

    function test_an_edit_without_a_change_sends_nothing_data() {
        return [{ tag: "unchanged", name: "Window" }, { tag: "blanks", name: "   " }]
    }

    function test_an_edit_without_a_change_sends_nothing(data) {
        TableService.addTable("Window", 4)
        TestDb.run("CREATE TRIGGER no_update BEFORE UPDATE ON tables BEGIN SELECT RAISE(ABORT, 'sent'); END")
        edit()
        enter("Table Name", data.name)

        press("Save")

        verify(!hasButton("Save"))
        verify(shows("Window"))
        TestDb.run("DROP TRIGGER no_update")
    }

    function test_more_than_twenty_seats_do_not_survive_an_edit() {
        TableService.addTable("Hall", 30)
        edit()
        compare(spinBox(0).value, 20)

        press("Save")

        compare(tables(), [{ table_name: "Hall", capacity: 20 }])
    }

    function test_a_table_is_deleted_only_after_a_yes_data() {
        return [{ tag: "Cancel", left: 1 }, { tag: "Delete", left: 0 }]
    }

    function test_a_table_is_deleted_only_after_a_yes(data) {
        TableService.addTable("Window", 4)
        show("admin/management/AdminTableManagement")

        press("Delete")
        verify(shows("Delete Table"))
        verify(shows("Are you sure you want to delete table \"Window\"?"))
        answerWith(data.tag)

        compare(tables().length, data.left)
    }

    function test_an_occupied_table_goes_and_its_session_stays_open() {
        const table = TableService.addTable("Window", 4)
        const soup = addItem("Soup", addCategory("Food"), 5)
        OrderService.createOrder("dine_in", [{ menuItemId: soup, qty: 1, notes: "" }], { tableId: table })
        compare(TestDb.value("SELECT status FROM tables"), "occupied")
        show("admin/management/AdminTableManagement")

        press("Delete")
        answerWith("Delete")

        compare(tables(), [])
        compare(TestDb.rows("SELECT status, table_id IS NULL AS tableless FROM order_sessions"), [{ status: "open", tableless: 1 }])
    }

    function test_a_row_names_its_buttons_to_a_screen_reader() {
        TableService.addTable("Window", 4)

        show("admin/management/AdminTableManagement")

        compare(row("Window").height, 44)
        compare(button("Edit").Accessible.description, "Window")
        compare(button("Delete").Accessible.description, "Window")
    }

    function test_editing_goes_on_when_an_order_changes_a_table() {
        const table = TableService.addTable("Window", 4)
        TableService.addTable("Door", 2)
        edit()
        enter("Table Name", "Half typed")

        TableService.setTableStatus(table, "occupied")

        compare(field("Table Name").text, "Half typed")
        verify(hasButton("Save"))
    }

    function test_a_name_is_shown_as_it_was_typed() {
        TableService.addTable("<b>x</b>", 4)

        show("admin/management/AdminTableManagement")

        verify(shows("<b>x</b>"))
        compare(theShown(item => item.text === "<b>x</b>", "the name").textFormat, Text.PlainText)
    }
}
