// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

TouchTestCase {
    id: root

    property int hall

    name: "TouchFloorPlan"

    function arrange() {
        hall = FloorPlanService.createFloor("Hall")
        FloorPlanService.createFloor("Terrace")
        FloorPlanService.loadCanvas(hall)
        for (const label of ["old", "new"])
            FloorPlanService.createTableItem({ floor_id: hall, label: label, capacity: 4, x: 300, y: 100, width: 80, height: 80, metadata: JSON.stringify({ table_type: "square" }) })
        FloorPlanService.addItem({ type: "wall", x: 300, y: 400, width: 150, height: 10, label: "" })
        FloorPlanService.saveCanvas(hall)
    }

    function editor() {
        show("admin/management/AdminFloorPlanManagement")
    }

    function item(label: string): var {
        return theShown(shown => shown.reservationText !== undefined && shown.label === label, "the item " + label)
    }

    function handle(name: string): var {
        return findChild(item(""), name)
    }

    function entries(): var {
        return allShown(shown => isButton(shown) && shown.subMenu !== undefined).map(shown => shown.text)
    }

    function closeMenu() {
        tapAt(1200, 780)
        tryVerify(() => entries().length === 0)
    }

    function test_a_finger_moves_the_table_on_top() {
        editor()

        dragByFinger(item("new"), 100, 60)

        verify(item("new").x > 350 && item("new").y > 130, item("new").x + " " + item("new").y)
        compare([item("old").x, item("old").y], [300, 100])
        compare(entries(), [])
    }

    function test_a_finger_moves_a_wall() {
        editor()

        dragByFinger(item(""), -100, -60)

        verify(item("").x < 250 && item("").y < 370, item("").x + " " + item("").y)
    }

    function test_a_finger_lengthens_a_wall() {
        editor()

        dragByFinger(handle("resizeHandle"), 60, 0)

        verify(item("").width > 170)
        compare([item("").x, item("").y], [300, 400])
    }

    function test_a_finger_turns_a_wall() {
        editor()

        dragByFinger(handle("rotationHandle"), 30, 0)

        verify(item("").rotation > 20)
        compare([item("").x, item("").y, item("").width], [300, 400, 150])
    }

    function test_a_second_finger_changes_nothing() {
        editor()
        const start = centre(item("new"))
        const wall = centre(item(""))

        const fingers = putDown(start.x, start.y)
        for (let step = 1; step <= 5; ++step)
            fingers.move(0, root, start.x + 10 * step, start.y).commit()
        fingers.stationary(0).press(1, root, wall.x, wall.y).commit()
        for (let step = 1; step <= 5; ++step)
            fingers.move(0, root, start.x + 50 + 10 * step, start.y).move(1, root, wall.x, wall.y + 10 * step).commit()
        fingers.stationary(0).release(1, root, wall.x, wall.y + 50).commit()
        fingers.release(0, root, start.x + 100, start.y).commit()
        settle()

        verify(item("new").x >= 350, item("new").x)
        compare([item("").x, item("").y], [300, 400])
        compare([item("old").x, item("old").y], [300, 100])
        compare(entries(), [])
    }

    function test_a_held_finger_opens_the_menu_of_the_item_on_top_data() {
        return [
            { tag: "a table", place: () => centre(item("new")), index: 1 },
            { tag: "a wall", place: () => centre(item("")), index: 2 },
            { tag: "a wall's turning handle", place: () => centre(handle("rotationHandle")), index: 2 },
            { tag: "a wall's end handle", place: () => centre(handle("resizeHandle")), index: 2 }
        ]
    }

    function test_a_held_finger_opens_the_menu_of_the_item_on_top(data) {
        editor()
        const canvas = theShown(shown => shown.selectedIndex !== undefined, "the canvas")
        const place = data.place()

        const took = hold(place.x, place.y, () => entries().length > 0)

        // Timers may be a twentieth early.
        verify(took >= 760, took)
        compare(entries(), ["Delete"])
        compare(canvas.selectedIndex, data.index)
        tapButton("Delete")
        tryVerify(() => entries().length === 0)
        compare(FloorPlanService.canvasModel.rowCount(), 2)
        compare(TestDb.rows("SELECT table_name FROM tables").map(row => row.table_name), data.index === 1 ? ["old"] : ["old", "new"])
    }

    function test_the_finger_that_opened_a_menu_moves_nothing_any_more() {
        editor()
        const place = centre(item("new"))
        const finger = putDown(place.x, place.y)
        tryVerify(() => entries().length > 0)

        for (let step = 1; step <= 10; ++step)
            finger.move(0, root, place.x + 10 * step, place.y).commit()
        finger.release(0, root, place.x + 100, place.y).commit()

        compare([item("new").x, item("new").y], [300, 100])
        compare(entries(), ["Delete"])
        compare(TestDb.value("SELECT COUNT(*) FROM tables"), 2)
        closeMenu()
        dragByFinger(item("new"), 100, 0)
        verify(item("new").x > 350)
    }

    function test_a_finger_that_moves_opens_no_menu() {
        editor()
        const place = centre(item("new"))

        const finger = putDown(place.x, place.y)
        finger.move(0, root, place.x + 20, place.y).commit()
        wait(1000)

        compare(entries(), [])
        finger.release(0, root, place.x + 20, place.y).commit()
    }

    function test_a_tap_on_an_item_opens_no_menu() {
        editor()

        tap(item("new"))
        wait(1000)

        compare(entries(), [])
    }

    function test_a_held_mouse_button_opens_no_menu() {
        editor()

        mousePress(item("new"))
        wait(1000)
        mouseRelease(item("new"))

        compare(entries(), [])
    }

    function test_a_finger_held_on_the_empty_floor_opens_nothing() {
        editor()

        const finger = putDown(900, 600)
        wait(1000)
        finger.release(0, root, 900, 600).commit()

        compare(entries(), [])
    }

    function test_a_held_floor_offers_to_delete_it() {
        editor()
        const place = centre(button("Terrace"))

        const took = hold(place.x, place.y, () => entries().length > 0)

        // Timers may be a twentieth early.
        verify(took >= 760, took)
        compare(entries(), ["Delete Floor"])
        compare(page.currentFloorId, hall)
        tapButton("Delete Floor")
        tryVerify(() => !hasButton("Terrace"))
        compare(TestDb.value("SELECT COUNT(*) FROM floors"), 1)
    }

    function test_a_tapped_floor_is_shown() {
        editor()

        tapButton("Terrace")

        verify(page.currentFloorId !== hall)
        verify(button("Terrace").enabled)
        tapButton("Hall")
        compare(page.currentFloorId, hall)
    }

    function test_the_order_page_takes_taps_and_scrolls() {
        show("common/OrderTakingFloorPlan")
        wait(0)
        const sheet = item("new").parent.parent.parent
        verify(sheet.contentX !== undefined)

        tap(item("new"))
        compare(page.selectedTableId, 2)
        const place = centre(item("new"))
        swipe(place.x, place.y, -200, 0)

        verify(sheet.contentX > 100)
        compare([item("new").x, item("new").y], [300, 100])
        compare(page.selectedTableId, 2)
        tryVerify(() => !sheet.moving)
        const wall = centre(item(""))
        const finger = putDown(wall.x, wall.y)
        wait(1000)
        finger.release(0, root, wall.x, wall.y).commit()
        compare(entries(), [])
        compare(page.selectedTableId, 2)
    }
}
