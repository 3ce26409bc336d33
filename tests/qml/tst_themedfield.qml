// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import zelvan
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "ThemedField"

    function init() {
        field.clear()
        field.forceActiveFocus()
    }

    function paste(text: string) {
        clipboard.text = text
        clipboard.selectAll()
        clipboard.copy()
        field.forceActiveFocus()
        field.paste()
    }

    function test_what_is_pasted_takes_one_line_data() {
        return [
            { tag: "a line", pasted: "Soup of the day", line: "Soup of the day" },
            { tag: "two lines", pasted: "Soup\nof the day", line: "Soup of the day" },
            { tag: "lines of another system", pasted: "Soup\r\nof\r\nthe day", line: "Soup of the day" },
            { tag: "paragraphs", pasted: "Soup\n\n\nof\u2029the\u2028day", line: "Soup of the day" },
            { tag: "other control characters", pasted: "So\u0007up\u001b of the\u007f day\u0085", line: "Soup of the day " },
            { tag: "nothing else", pasted: "\n", line: " " },
        ]
    }

    function test_what_is_pasted_takes_one_line(data) {
        paste(data.pasted)

        compare(field.text, data.line)
        compare(field.cursorPosition, data.line.length)
    }

    function test_a_control_character_that_is_typed_is_dropped() {
        keyClick("a")
        field.insert(1, "\u0002")
        keyClick("b")

        compare(field.text, "ab")
    }

    function test_the_cursor_stays_behind_what_was_pasted_in_the_middle() {
        field.text = "Hot soup"
        field.cursorPosition = 4
        paste("and\nsour ")

        compare(field.text, "Hot and sour soup")
        compare(field.cursorPosition, 13)
    }

    function test_pasting_is_undone_and_done_again_in_one_step() {
        keyClick("x")
        paste("one\ntwo\nthree")
        compare(field.text, "xone two three")

        field.undo()
        compare(field.text, "x")
        field.redo()
        compare(field.text, "xone two three")
    }

    function test_a_word_being_composed_is_left_alone() {
        paste("one\ntwo")
        TestDb.compose("ni")
        compare(field.preeditText, "ni")
        compare(field.text, "one two")

        TestDb.finishComposing("\u4f60")
        compare(field.preeditText, "")
        compare(field.text, "one two\u4f60")
    }

    function test_a_line_break_that_is_composed_is_a_blank() {
        TestDb.finishComposing("one\ntwo")

        compare(field.text, "one two")
        compare(field.cursorPosition, 7)
    }

    ThemedField {
        id: field

        width: 300
    }

    TextEdit {
        id: clipboard

        visible: false
    }
}
