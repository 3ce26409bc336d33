// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// Pages and dialogs under an on-screen keyboard, and what Tab leads to beyond the edge of a list.
TouchTestCase {
    id: root

    property var sight: null
    property var dialog: null
    readonly property var content: Window.contentItem

    name: "FocusInSight"

    function startWatching() {
        sight = create("components/FocusInSight")
        sight.parent = windowItem()
    }

    function cleanup() {
        dialog?.close()
        dialog = null
        hideKeyboard()
        tryCompare(content, "y", 0)
    }

    // Over the lower third of the window.
    function showKeyboard() {
        sight.keyboard = Qt.rect(0, height * 2 / 3, width, height / 3)
    }

    function hideKeyboard() {
        sight.keyboard = Qt.rect(0, 0, 0, 0)
    }

    function bottomInWindow(item): real {
        return item.mapToItem(null, 0, item.height).y
    }

    function topInWindow(item): real {
        return item.mapToItem(null, 0, 0).y
    }

    function isAboveKeyboard(item): bool {
        return topInWindow(item) >= 0 && bottomInWindow(item) <= sight.keyboard.y
    }

    // A page of one column of fields, from the window's upper edge to its lower one.
    Component {
        id: column

        Column {
            anchors.fill: parent
            anchors.margins: 10
            spacing: 10
        }
    }

    property int presses: 0

    function showColumn(count: int) {
        page = createTemporaryObject(column, root)
        for (let i = 0; i < count; ++i)
            create("components/ThemedField", { parent: page, label: "Field " + i })
        const presser = create("components/FilledButton", { parent: page, text: "Go", height: 40 })
        presser.clicked.connect(() => ++presses)
        presses = 0
        startWatching()
        settle()
    }

    function test_nothing_moves_without_a_keyboard() {
        showColumn(14)

        tap(field("Field 13"))
        settle()

        compare(content.y, 0)
    }

    function test_a_covered_field_rises_above_the_keyboard_and_goes_back() {
        showColumn(14)
        tap(field("Field 13"))

        showKeyboard()
        tryVerify(() => isAboveKeyboard(field("Field 13")))
        hideKeyboard()

        tryCompare(content, "y", 0)
    }

    function test_a_field_that_is_not_covered_stays_where_it_is() {
        showColumn(14)
        tap(field("Field 2"))

        showKeyboard()
        settle()

        compare(content.y, 0)
    }

    function test_return_and_tab_take_the_page_along() {
        showColumn(14)
        field("Field 5").forceActiveFocus()
        showKeyboard()

        for (let i = 6; i < 14; ++i) {
            keyClick(Qt.Key_Tab)
            tryVerify(() => field("Field " + i).activeFocus && isAboveKeyboard(field("Field " + i)), 2000, "Field " + i)
        }
        for (let i = 12; i >= 0; --i)
            keyClick(Qt.Key_Backtab)

        tryVerify(() => field("Field 0").activeFocus && isAboveKeyboard(field("Field 0")))
    }

    function test_typing_taps_and_presses_work_on_the_risen_page() {
        showColumn(14)
        tap(field("Field 12"))
        showKeyboard()
        tryVerify(() => content.y < 0)

        for (const letter of "abc")
            keyClick(letter)
        tap(field("Field 11"))
        for (const letter of "de")
            keyClick(letter)
        tap(button("Go"))

        compare(field("Field 12").text, "abc")
        compare(field("Field 11").text, "de")
        compare(presses, 1)
    }

    function test_a_button_stays_under_the_finger_that_presses_it_data() {
        return [{ tag: "keyboard closes at the press", closes: true }, { tag: "keyboard stays", closes: false }]
    }

    function test_a_button_stays_under_the_finger_that_presses_it(data) {
        showColumn(14)
        tap(field("Field 13"))
        showKeyboard()
        tryVerify(() => content.y < 0)
        const risen = content.y
        const place = centre(button("Go"))

        const finger = putDown(place.x, place.y)
        if (data.closes)
            hideKeyboard()
        settle()
        settle()
        compare(content.y, risen)
        finger.release(0, root, place.x, place.y).commit()

        compare(presses, 1)
        if (data.closes)
            tryCompare(content, "y", 0)
    }

    function test_a_dialog_s_button_stays_under_the_finger() {
        startWatching()
        dialog = create("common/floor/ReservationDialog")
        dialog.openCreate(1)
        tryVerify(() => dialog.opened)
        field("Notes").forceActiveFocus()
        showKeyboard()
        tryVerify(() => content.y < 0)
        const risen = content.y
        const place = centre(button("Cancel"))

        const finger = putDown(place.x, place.y)
        verify(sight.pressed)
        hideKeyboard()
        settle()
        settle()
        compare(content.y, risen)
        finger.release(0, root, place.x, place.y).commit()

        tryVerify(() => !dialog.visible)
        tryCompare(content, "y", 0)
    }

    function test_a_list_flicks_on_the_risen_page() {
        const food = addCategory("Food")
        for (let i = 0; i < 40; ++i)
            addItem("Dish " + i, food, 1)
        MenuService.currentCategoryId = food
        show("admin/management/AdminMenuManagement")
        startWatching()
        const list = allShown(item => item.flickableDirection !== undefined && item.count === 40)[0]
        press("Edit", 6)
        const name = theShown(item => item.cursorPosition !== undefined && item.text === "Dish 6", "the row's field")
        tap(name)
        sight.keyboard = Qt.rect(0, 400, width, height - 400)
        tryVerify(() => content.y < 0)
        const before = list.contentY
        const place = list.mapToItem(root, list.width / 2, list.height / 2)

        swipe(place.x, place.y, 0, -120)

        tryVerify(() => list.contentY > before + 60)
        tryVerify(() => !list.moving)
    }

    function test_a_dialog_rises_with_its_field() {
        startWatching()
        dialog = create("common/floor/ReservationDialog")
        dialog.openCreate(1)
        tryVerify(() => dialog.opened)
        showKeyboard()

        const notes = field("Notes")
        notes.forceActiveFocus()

        tryVerify(() => isAboveKeyboard(notes))
        verify(content.y < 0)
        tapButton("Cancel")
        tryVerify(() => !dialog.visible)
    }

    function test_a_field_taller_than_the_room_shows_its_beginning() {
        page = create("components/NotesArea", { x: 10, y: 300, width: 400, height: 490, label: "Notes" })
        startWatching()
        field("Notes").forceActiveFocus()

        sight.keyboard = Qt.rect(0, 400, width, height - 400)

        tryVerify(() => content.y < 0)
        fuzzyCompare(topInWindow(field("Notes")), 12, 1)
    }

    function test_the_program_s_window_makes_room() {
        const component = Qt.createComponent("qrc:/qt/qml/zelvan/qml/Main.qml")
        const appWindow = createTemporaryObject(component, root)
        verify(appWindow, component.errorString())
        sight = items(appWindow.contentItem).find(item => item.keyboard !== undefined && item.focused !== undefined)
        tryVerify(() => sight.focused && sight.focused.cursorPosition !== undefined)
        const before = bottomInWindow(sight.focused)

        sight.keyboard = Qt.rect(0, before - 5, appWindow.width, 300)

        tryVerify(() => bottomInWindow(sight.focused) < before - 5)
        hideKeyboard()
        tryVerify(() => bottomInWindow(sight.focused) === before)
    }

    function test_a_floating_keyboard_at_the_upper_edge_pushes_nothing_out() {
        showColumn(14)
        field("Field 0").forceActiveFocus()

        sight.keyboard = Qt.rect(0, 5, 300, 200)
        settle()

        compare(content.y, 0)
    }

    function test_tab_scrolls_a_form_to_what_it_leads_to() {
        startWatching()
        dialog = create("common/floor/ReservationDialog")
        dialog.openCreate(1)
        tryVerify(() => dialog.opened)
        const view = ancestorView(field("Customer Name"))
        verify(!isInView(field("Notes"), view))

        for (let i = 0; i < 20 && !field("Notes").activeFocus; ++i) {
            keyClick(Qt.Key_Tab)
            settle()
            verify(isInView(root.Window.activeFocusItem, view), root.Window.activeFocusItem.Accessible.name)
        }
        verify(field("Notes").activeFocus)
        field("Customer Name").forceActiveFocus()

        tryVerify(() => isInView(field("Customer Name"), view))
    }

    function test_a_plan_follows_to_a_table_that_is_not_seen() {
        const floor = FloorPlanService.createFloor("Hall")
        FloorPlanService.loadCanvas(floor)
        for (const [label, x, y] of [["near", 100, 100], ["far", 1500, 1100]])
            FloorPlanService.createTableItem({ floor_id: floor, label: label, capacity: 4, x: x, y: y, width: 80, height: 80, metadata: "{}" })
        FloorPlanService.saveCanvas(floor)
        startWatching()
        show("common/OrderTakingFloorPlan")
        const table = label => allShown(item => item.label === label && item.reservationText !== undefined)[0]
        tryVerify(() => table("far") !== undefined)
        const view = ancestorView(table("far"))

        table("far").forceActiveFocus(Qt.TabFocusReason)

        tryVerify(() => view.contentX > 0 && view.contentY > 0)
        verify(isInView(table("far"), view))
    }

    function ancestorView(item): var {
        while (item && item.flickableDirection === undefined)
            item = item.parent
        return item
    }

    function isInView(item, view): bool {
        const box = item.mapToItem(view, 0, 0, item.width, item.height)
        return box.y >= 0 && box.y + box.height <= view.height
    }
}
