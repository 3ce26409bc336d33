// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtTest
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
}
