// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import ZelvanTest 1.0

// Dialogs without a mouse.
KeyboardTestCase {
    id: root

    name: "KeyboardDialogs"

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

    function test_a_button_has_the_keys_again_after_its_dialog_data() {
        return [
            { tag: "Escape", press: () => keyClick(Qt.Key_Escape) },
            { tag: "its button", press: () => press("Cancel") }
        ]
    }

    function test_a_button_has_the_keys_again_after_its_dialog(data) {
        screen("admin/management/AdminUserManagement")
        const opener = button("Create User")
        opener.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Space)
        tryVerify(() => hasButton("Cancel"))

        data.press()

        tryVerify(() => !hasButton("Cancel"))
        tryVerify(() => opener.activeFocus)
        verify(opener.visualFocus)
    }
}
