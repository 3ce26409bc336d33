// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import zelvan

// A right click, and the menu key, where something can be typed in.
ZelvanTestCase {
    id: root
    name: "TextFieldMenu"

    Component {
        id: fields

        Column {
            spacing: 10

            ThemedField { label: "Name"; width: 300 }
            ThemedField { echoMode: TextInput.Password; label: "Secret"; width: 300 }
            ThemedField { label: "Shown"; readOnly: true; text: "fixed"; width: 300 }
            NotesArea { height: 100; label: "Notes"; width: 300 }
            ThemedSpinBox { label: "Seats"; value: 6; width: 300 }
        }
    }

    function init() {
        failOnWarning(/.*/)
        page = createTemporaryObject(fields, root)
        waitForRendering(page)
    }

    function cleanup() {
        keyClick(Qt.Key_Escape)
        tryVerify(() => offered().length === 0)
    }

    function isEntry(item) {
        return item.highlighted !== undefined && item.subMenu !== undefined
    }

    // Everything that any menu offers, Qt's own included.
    function offered(): var {
        return allShown(item => isEntry(item) && item.height > 0)
    }

    function entry(text: string): var {
        return theShown(item => isEntry(item) && item.height > 0 && item.text === text, text)
    }

    function opened(input): var {
        mouseClick(input, 40, 12, Qt.RightButton)
        tryVerify(() => offered().length > 0)
        return offered().map(item => item.text)
    }

    function choose(text: string) {
        const chosen = entry(text)
        tryVerify(() => chosen.width > 0 && chosen.mapToItem(null, 0, 0).y >= 0)
        verify(chosen.enabled, text)
        mouseClick(chosen)
        tryVerify(() => offered().length === 0, 5000, text)
    }

    function test_a_right_click_offers_what_can_be_done_with_text_data() {
        return [
            { tag: "a field", label: "Name" },
            { tag: "notes", label: "Notes" }
        ]
    }

    function test_a_right_click_offers_what_can_be_done_with_text(row) {
        compare(opened(field(row.label)), ["Cut", "Copy", "Paste", "Select All"])
        keyClick(Qt.Key_Escape)
        tryVerify(() => offered().length === 0)
    }

    function test_a_password_is_neither_cut_nor_copied() {
        compare(opened(field("Secret")), ["Paste", "Select All"])
    }

    function test_text_goes_from_one_field_into_another_data() {
        return test_a_right_click_offers_what_can_be_done_with_text_data()
    }

    function test_text_goes_from_one_field_into_another(row) {
        const source = field(row.label)
        const target = field(row.label === "Name" ? "Notes" : "Name")
        source.text = "two noodles"

        opened(source)
        choose("Select All")
        compare(source.selectedText, "two noodles")
        opened(source)
        compare(source.selectedText, "two noodles")
        choose("Copy")
        opened(target)
        choose("Paste")
        compare(target.text, "two noodles")

        source.selectAll()
        opened(source)
        choose("Cut")
        compare(source.text, "")
    }

    function test_entries_that_would_do_nothing_cannot_be_chosen() {
        opened(field("Name"))
        verify(!entry("Cut").enabled)
        verify(!entry("Copy").enabled)
        verify(!entry("Select All").enabled)
    }

    function test_a_text_that_cannot_be_changed_can_be_copied() {
        const fixed = field("Shown")
        fixed.selectAll()
        opened(fixed)
        verify(!entry("Cut").enabled)
        verify(entry("Copy").enabled)
        verify(!entry("Paste").enabled)
    }

    function test_the_field_has_the_focus_again_after_its_menu() {
        const name = field("Name")
        opened(name)
        verify(name.hasMenuOpen)
        keyClick(Qt.Key_Escape)
        tryVerify(() => offered().length === 0)
        verify(!name.hasMenuOpen)
        verify(name.activeFocus)
    }

    function test_the_menu_key_opens_it_for_the_keyboard_data() {
        return [
            { tag: "menu key", key: Qt.Key_Menu, modifiers: Qt.NoModifier },
            { tag: "Shift+F10", key: Qt.Key_F10, modifiers: Qt.ShiftModifier }
        ]
    }

    function test_the_menu_key_opens_it_for_the_keyboard(row) {
        const name = field("Name")
        name.text = "two noodles"
        name.forceActiveFocus()

        keyClick(row.key, row.modifiers)
        tryVerify(() => offered().length === 4)
        tryVerify(() => {
            keyClick(Qt.Key_Down)
            return entry("Select All").highlighted
        })
        keyClick(Qt.Key_Return)
        tryVerify(() => offered().length === 0)

        compare(name.selectedText, "two noodles")
        tryVerify(() => name.activeFocus)
    }

    function test_f10_alone_opens_nothing() {
        field("Name").forceActiveFocus()

        keyClick(Qt.Key_F10)

        compare(offered().length, 0)
    }

    function seats(): var {
        return theShown(item => item.cursorPosition !== undefined && item.text === "6", "the number")
    }

    function test_a_number_to_step_through_has_it_too() {
        const source = seats()
        source.selectAll()

        compare(opened(source), ["Cut", "Copy", "Paste", "Select All"])
        choose("Copy")
        opened(field("Name"))
        choose("Paste")

        compare(field("Name").text, "6")
    }

    function test_the_menu_key_opens_it_in_a_number() {
        seats().forceActiveFocus()

        keyClick(Qt.Key_F10, Qt.ShiftModifier)

        tryVerify(() => offered().length === 4)
    }

    function test_its_entries_have_the_program_s_look() {
        opened(field("Name"))

        for (const item of offered())
            verify(item.height >= 40, item.text)
    }

    function test_every_menu_is_gone_after_use() {
        const name = field("Name")
        for (let i = 0; i < 3; ++i) {
            opened(name)
            compare(offered().length, 4)
            keyClick(Qt.Key_Escape)
            tryVerify(() => offered().length === 0)
        }
    }
}
