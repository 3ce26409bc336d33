// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// Buttons: the keys that press them, the frame of the one in focus, and what they end that is being typed.
KeyboardTestCase {
    id: root

    name: "KeyboardButtons"

    function test_space_and_return_press_the_button_in_focus_data() {
        return [{ tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }]
    }

    function test_space_and_return_press_the_button_in_focus(data) {
        screen("setup/SetupDBChoice")
        button("Open Existing Database").forceActiveFocus(Qt.TabFocusReason)

        keyClick(data.key)

        compare(shownScreen(), "SetupDBOpen")
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
}
