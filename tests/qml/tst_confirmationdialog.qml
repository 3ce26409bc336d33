// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import ZelvanTest 1.0

ZelvanTestCase {
    name: "ConfirmationDialog"

    property var dialog: null
    property var answers: []

    function open(properties: var) {
        answers = []
        dialog = create("components/ConfirmationDialog", Object.assign({ confirmCallback: confirmed => answers.push(confirmed) }, properties || {}))
        dialog.open()
        tryVerify(() => dialog.opened)
    }

    function test_it_asks_in_general_words_unless_told_otherwise() {
        open()

        verify(shows("Confirm"))
        verify(shows("Are you sure?"))
        compare(dialog.width, 360)
        compare(dialog.height, 180)
        verify(dialog.modal)
    }

    function test_a_button_closes_first_and_answers_then_data() {
        return [{ tag: "Cancel", answer: false }, { tag: "Delete", answer: true }]
    }

    function test_a_button_closes_first_and_answers_then(data) {
        let openAtAnswer = true
        open({ confirmCallback: confirmed => {
            openAtAnswer = dialog.opened
            answers.push(confirmed)
        } })

        press(data.tag)

        compare(answers, [data.answer])
        verify(!openAtAnswer)
        tryVerify(() => !dialog.visible)
    }

    function test_the_confirming_button_always_deletes() {
        open({ title: "Deactivate User", message: "Deactivate \"ann\"?" })

        verify(shows("Deactivate User"))
        verify(hasButton("Delete"))
    }

    function test_only_its_buttons_close_it() {
        open()

        keyClick(Qt.Key_Escape)
        mouseClick(windowItem(), 5, 5)

        verify(dialog.opened)
        compare(answers, [])
    }

    function test_what_is_typed_meanwhile_reaches_nothing_behind_it() {
        const behind = create("components/ThemedField")
        behind.forceActiveFocus()
        open()

        for (const letter of "abc")
            keyClick(letter)

        compare(behind.text, "")
        press("Cancel")
        tryVerify(() => !dialog.visible)
    }

    function test_without_a_listener_it_just_closes() {
        open({ confirmCallback: null })

        press("Delete")

        tryVerify(() => !dialog.visible)
    }

    function test_a_word_longer_than_the_dialog_is_broken() {
        const message = "Delete \"" + "x".repeat(200) + "\"?"
        open({ message: message })

        const label = theShown(item => item.text === message, "the message")
        verify(label.contentWidth <= label.width)
    }

    function test_a_message_of_a_long_name_is_seen_whole_data() {
        const chinese = "炭火烧烤与铁板烧什锦拼盘类菜单".repeat(3).slice(0, 40)
        return [
            { tag: "English", name: "Charcoal Roasts, Grills and Hot Sizzlers", message: "Are you sure you want to delete \"%1\"? All menu items within \"%1\" will be deleted." },
            { tag: "Chinese", name: chinese, message: "确定要删除“%1”吗？“%1”中的所有菜品都将被删除。" }
        ]
    }

    function test_a_message_of_a_long_name_is_seen_whole(data) {
        const message = data.message.replace(/%1/g, data.name)
        open({ title: "Delete Category", message: message })

        const label = theShown(item => item.text === message, "the message")
        compare([dialog.width, dialog.height], [360, 180])
        verify(!label.truncated)
        verify(label.contentHeight <= label.parent.parent.height, label.contentHeight + " of " + label.parent.parent.height)
        verify(button("Delete").mapToItem(label.parent.parent, 0, 0).y >= label.parent.parent.height)
    }

    function test_markup_in_the_message_is_shown_as_it_was_typed() {
        open({ message: "Delete \"<b>x</b>\"?" })

        verify(shows("Delete \"<b>x</b>\"?"))
        compare(theShown(item => item.text === "Delete \"<b>x</b>\"?", "the message").textFormat, Text.PlainText)
    }
}
