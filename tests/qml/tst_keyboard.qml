// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtTest
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0
import ZelvanTest 1.0

ScreenTestCase {
    id: root

    property var dialog: null

    name: "Keyboard"

    function focused(): var {
        return root.Window.window.activeFocusItem
    }

    function focusName(): string {
        return focused().Accessible.name
    }

    // What Tab goes through from here, until it is back at something known.
    function tabOrder(): var {
        const names = []
        for (let count = 0; count < 40 && !names.includes(focusName()); ++count) {
            names.push(focusName())
            keyClick(Qt.Key_Tab)
        }
        return names
    }

    function openDialog(path: string, properties: var): var {
        dialog = create(path, properties)
        dialog.open()
        tryVerify(() => dialog.opened)
        return dialog
    }

    function cleanup() {
        stack.clear(StackView.Immediate)
        dialog?.close()
        dialog = null
    }

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

    readonly property string pageFocus: root.Window.window?.activeFocusItem?.Accessible.name ?? ""

    function test_tab_goes_through_a_form_in_reading_order() {
        screen("setup/SetupAdmin")
        tryCompare(root, "pageFocus", "Username")

        compare(tabOrder(), ["Username", "Password", "Confirm password", "Register"])
    }

    function test_space_and_return_press_the_button_in_focus_data() {
        return [{ tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }]
    }

    function test_space_and_return_press_the_button_in_focus(data) {
        screen("setup/SetupDBChoice")
        button("Open Existing Database").forceActiveFocus(Qt.TabFocusReason)

        keyClick(data.key)

        compare(shownScreen(), "SetupDBOpen")
    }

    function test_escape_cancels_every_form_data() {
        return [
            { tag: "admin/management/UserCreateDialog" },
            { tag: "admin/management/UserEditDialog" },
            { tag: "admin/management/UserPasswordDialog" },
            { tag: "admin/management/MemberDialog", properties: { memberId: 1 } },
            { tag: "admin/settings/MoveDatabaseDialog" },
            { tag: "admin/settings/RestoreDatabaseDialog" },
            { tag: "admin/settings/PrinterDialog" },
            { tag: "common/floor/ReservationDialog" },
            { tag: "components/ReplaceDatabaseDialog" },
            { tag: "components/FloorDialog", properties: { title: "T", label: "L", placeholder: "P", confirmText: "OK", cancelText: "No" } },
            { tag: "components/TableItemDialog", properties: { title: "T", labelTitle: "L", labelPlaceholder: "P", startLabel: "S", seatsTitle: "N", typeTitle: "Y", types: [{ text: "a", value: "a" }], confirmText: "OK", cancelText: "No" } }
        ]
    }

    function test_escape_cancels_every_form(data) {
        openDialog(data.tag, data.properties)

        keyClick(Qt.Key_Escape)

        tryVerify(() => !dialog.visible)
    }

    function test_neither_escape_nor_return_answers_a_deletion() {
        let answers = 0
        openDialog("components/ConfirmationDialog", { confirmCallback: () => ++answers })

        keyClick(Qt.Key_Escape)
        keyClick(Qt.Key_Return)
        keyClick(Qt.Key_Space)
        keyClick(Qt.Key_Tab)
        keyClick(Qt.Key_Space)

        verify(dialog.opened)
        compare(answers, 0)
        compare(button("Delete").focusPolicy, Qt.NoFocus)
        compare(button("Cancel").focusPolicy, Qt.NoFocus)
    }

    function test_return_leads_through_a_dialog_to_its_main_button() {
        addUser("boss", "admin")
        openDialog("admin/management/UserCreateDialog")
        tryCompare(root, "pageFocus", "Username")

        for (const text of ["ann", "secret", "secret"]) {
            for (const character of text)
                keyClick(character)
            keyClick(Qt.Key_Return)
        }

        tryVerify(() => !dialog.visible)
        compare(TestDb.value("SELECT count(*) FROM users WHERE username = 'ann'"), 1)
    }

    function test_return_presses_the_main_button_of_a_dialog_without_fields() {
        openDialog("admin/settings/MoveDatabaseDialog")
        let moves = 0
        dialog.accepted.connect(() => ++moves)

        keyClick(Qt.Key_Return)

        compare(moves, 1)
    }

    function test_a_replacement_by_return_needs_the_word() {
        openDialog("components/ReplaceDatabaseDialog")

        keyClick("x")
        keyClick(Qt.Key_Return)

        verify(dialog.opened)
        verify(!button("Replace Database").enabled)
    }

    function test_escape_closes_the_calendar_after_a_click_on_its_field() {
        page = create("components/DatePicker")
        page.x = 400
        page.y = 50
        waitForRendering(page)
        click(field("Date"))
        tryVerify(() => hasButton("Today"))

        keyClick(Qt.Key_Escape)

        tryVerify(() => !hasButton("Today"))
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

    function test_a_button_takes_over_what_is_still_being_composed_data() {
        return [{ tag: "without focus", policy: Qt.NoFocus }, { tag: "with focus", policy: Qt.StrongFocus }]
    }

    function test_a_button_takes_over_what_is_still_being_composed(data) {
        const input = create("components/ThemedField")
        const presser = create("components/FilledButton", { y: 100, text: "Go", focusPolicy: data.policy })
        let edited = ""
        input.textEdited.connect(() => edited = input.text)
        input.forceActiveFocus()
        keyClick("a")
        TestDb.compose("辣")
        compare(input.preeditText, "辣")

        click(presser)

        compare(input.text, "a辣")
        compare(edited, "a辣")
        compare(input.activeFocus, data.policy === Qt.NoFocus)
    }

    function test_a_button_without_focus_ends_the_editing_and_gives_the_field_back() {
        const input = create("components/ThemedField")
        const presser = create("components/FilledButton", { y: 100, text: "Go", focusPolicy: Qt.NoFocus })
        let finished = 0
        input.editingFinished.connect(() => ++finished)
        input.forceActiveFocus()
        keyClick("a")

        click(presser)

        compare(finished, 1)
        verify(input.activeFocus)
    }

    // The lighter of two colours over the darker, as the rules of readable pages have it.
    function contrast(a: color, b: color): real {
        const light = part => part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4)
        const luminance = c => 0.2126 * light(c.r) + 0.7152 * light(c.g) + 0.0722 * light(c.b)
        const [x, y] = [luminance(a), luminance(b)].sort((m, n) => n - m)
        return (x + 0.05) / (y + 0.05)
    }

    function test_the_focus_is_seen_on_a_button_of_any_colour_data() {
        return ["red", "#e53935", "#ffaa66", "#6b6b6b", "#ffffff", "#000000", "#9a7bff"].map(fill => ({ tag: fill }))
    }

    function test_the_focus_is_seen_on_a_button_of_any_colour(data) {
        const presser = create("components/FilledButton", { text: "Go", fillColor: data.tag, width: 120, height: 40 })
        waitForRendering(presser)
        const before = grabImage(presser)

        presser.forceActiveFocus(Qt.TabFocusReason)
        waitForRendering(presser)

        const after = grabImage(presser)
        const strips = [0, 1, 2, 3].map(x => contrast(before.pixel(x, 20), after.pixel(x, 20)))
        verify(Math.max(...strips) >= 3, "the ring on " + data.tag + ": " + strips)
    }

    function tabTo(name: string) {
        const names = []
        for (let count = 0; count < 40 && focusName() !== name; ++count) {
            keyClick(Qt.Key_Tab)
            names.push(focusName())
        }
        compare(focusName(), name, names.join(", "))
    }

    function type(text: string) {
        for (const character of text)
            keyClick(character)
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

    function test_a_category_s_new_name_survives_a_press_on_the_sidebar() {
        addCategory("Food")
        show("admin/AdminManagement")
        const row = allShown(item => item.startEditing !== undefined && item.name === "Food")[0]
        row.startEditing()
        type("Meals")

        press("Members")

        compare(TestDb.value("SELECT category FROM categories"), "Meals")
    }

    function test_a_composed_name_of_a_category_survives_a_press_on_the_sidebar() {
        addCategory("Food")
        show("admin/AdminManagement")
        allShown(item => item.startEditing !== undefined && item.name === "Food")[0].startEditing()
        TestDb.compose("饭")

        press("Members")

        compare(TestDb.value("SELECT category FROM categories"), "饭")
    }

    function test_a_composed_remark_goes_with_the_order() {
        const food = addCategory("Food")
        addItem("Soup", food, 5)
        MenuService.currentCategoryId = food
        show("common/OrderTakingSimple")
        press("Takeaway")
        press("Add")
        field("Add a remark").forceActiveFocus()
        TestDb.compose("辣")

        press("Place Order")

        compare(TestDb.value("SELECT notes FROM order_items"), "辣")
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

    function test_a_deletion_is_answered_by_keys_that_no_slip_presses_data() {
        return [{ tag: "Delete", key: Qt.Key_Return, answer: true }, { tag: "Cancel", key: Qt.Key_Backspace, answer: false }]
    }

    function test_a_deletion_is_answered_by_keys_that_no_slip_presses(data) {
        const answers = []
        openDialog("components/ConfirmationDialog", { confirmCallback: confirmed => answers.push(confirmed) })

        keyClick(data.key, Qt.ControlModifier)

        compare(answers, [data.answer])
        tryVerify(() => !dialog.visible)
    }

    function test_a_spin_box_is_high_enough_for_a_finger_and_takes_typed_numbers() {
        openDialog("components/TableItemDialog", { title: "T", labelTitle: "L", labelPlaceholder: "P", startLabel: "S", seatsTitle: "N", typeTitle: "Y", types: [{ text: "a", value: "a" }], confirmText: "OK", cancelText: "No" })
        let seats = 0
        dialog.confirmed.connect((label, count) => seats = count)
        const box = theShown(item => item.stepSize !== undefined && item.contentItem !== undefined && item.up !== undefined, "the spin box")

        box.contentItem.forceActiveFocus()
        keyClick(Qt.Key_A, Qt.ControlModifier)
        type("12")
        press("OK")

        verify(box.height >= 40)
        compare(seats, 12)
    }

    function test_what_a_finger_presses_is_forty_high_where_nothing_else_is_asked_data() {
        return [{ tag: "auth/Login" }, { tag: "setup/SetupDBCreation" }, { tag: "admin/AdminTaxReports" }, { tag: "common/OrderTakingFloorPlan" },
                { tag: "admin/settings/AdminDatabaseSettings" }, { tag: "admin/management/AdminUserManagement" }]
    }

    function test_what_a_finger_presses_is_forty_high_where_nothing_else_is_asked(data) {
        FloorPlanService.createFloor("Hall")
        addUser("boss", "admin")
        screen(data.tag)

        const low = allShown(item => isButton(item) && item.height < 40).map(item => item.text + " " + item.height)

        compare(low, [])
    }
}
