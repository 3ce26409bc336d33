// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0

FloorTestCase {
    id: root

    name: "FloorHandles"

    function test_the_handles_are_reached_over_the_dragging_area() {
        addWall(100, 100)
        canvas()
        const handle = findChild(floorItems()[0], "resizeHandle")

        mousePress(handle, 8, 8)
        mouseMove(handle, 58, 8)
        mouseRelease(handle, 8, 8)

        compare(FloorPlanService.canvasModel.get(0).width, 200)
    }

    // Places on the handles, measured from the middle of the edge that they sit on.
    function handlePlaces(): var {
        return [
            { tag: "the end handle's outer half", x: 156, y: 5, lengthens: true },
            { tag: "its inner half", x: 144, y: 5, lengthens: true },
            { tag: "its upper edge", x: 151, y: -2, lengthens: true },
            { tag: "its lower edge", x: 151, y: 12, lengthens: true },
            { tag: "the turning handle", x: 75, y: -16, lengthens: false },
            { tag: "its far edge", x: 75, y: -23, lengthens: false }
        ]
    }

    function verifyHandle(wall, data: var) {
        const start = wall.mapToItem(root, data.x, data.y)
        const along = wall.mapToItem(root, data.x + 40, data.y)

        pull(start.x, start.y, along.x - start.x, along.y - start.y)

        compare(wall.width > 160, data.lengthens, wall.width)
        compare(wall.rotation !== wall.startRotation, !data.lengthens)
    }

    function startedWall(index: int): var {
        const wall = floorItems()[index]
        return { get width() { return wall.width }, get rotation() { return wall.rotation }, startRotation: wall.rotation, mapToItem: (other, x, y) => wall.mapToItem(other, x, y) }
    }

    function test_every_handle_of_a_loaded_wall_works_data() {
        return handlePlaces()
    }

    function test_every_handle_of_a_loaded_wall_works(data) {
        addWall(300, 300)
        addTable("T1", 600, 300)
        addWall(300, 500)
        FloorPlanService.saveCanvas(floorId)
        FloorPlanService.loadCanvas(floorId)
        canvas()

        verifyHandle(startedWall(0), data)
        verifyHandle(startedWall(2), data)
    }

    function test_every_handle_of_a_fresh_wall_works_data() {
        return handlePlaces()
    }

    function test_every_handle_of_a_fresh_wall_works(data) {
        canvas()
        addTable("T1", 600, 300)
        addWall(300, 300)

        verifyHandle(startedWall(1), data)
    }

    function test_every_handle_of_a_turned_wall_works_data() {
        return handlePlaces()
    }

    function test_every_handle_of_a_turned_wall_works(data) {
        FloorPlanService.addItem({ type: "wall", x: 300, y: 300, width: 150, height: 10, label: "", rotation: 60 })
        canvas()

        verifyHandle(startedWall(0), data)
    }

    function test_a_handle_under_a_table_leaves_the_press_to_the_table() {
        addWall(300, 300)
        addTable("T1", 440, 280)
        canvas()
        const wall = startedWall(0)

        pull(454, 305, 0, 100)
        compare([wall.width, wall.rotation], [150, 0])
        verify(item("T1").y > 300)

        verifyHandle(wall, { x: 156, y: 5, lengthens: true })
    }

    function test_a_divider_is_turned_and_a_table_has_no_handle() {
        FloorPlanService.addItem({ type: "divider", x: 300, y: 300, width: 150, height: 10, label: "" })
        addTable("T1", 600, 300)
        canvas()

        verifyHandle(startedWall(0), { x: 75, y: -16, lengthens: false })
        pull(640, 284, 50, 0)
        compare([item("T1").rotation, item("T1").x], [0, 600])
    }
}
