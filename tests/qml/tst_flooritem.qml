// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "FloorItem"

    function make(properties: var): var {
        page = create("components/FloorItem", Object.assign({ x: 300, y: 300 }, properties))
        waitForRendering(page)
        return page
    }

    // The chairs' centres in the item's coordinates, rounded to a hundredth.
    function chairs(): var {
        const round = number => Math.round(number * 100) / 100
        return items(page).filter(item => item.objectName === "chair").map(chair => [round(chair.x + 6), round(chair.y + 6)])
    }

    function pull(handle, dx: int, dy: int) {
        mousePress(handle, handle.width / 2, handle.height / 2)
        mouseMove(handle, handle.width / 2 + dx, handle.height / 2 + dy)
    }

    function test_chairs_stand_around_a_square_side_after_side_data() {
        return [
            { tag: "1", capacity: 1, expected: [[40, -20]] },
            { tag: "2", capacity: 2, expected: [[40, -20], [100, 40]] },
            { tag: "3", capacity: 3, expected: [[40, -20], [100, 40], [40, 100]] },
            { tag: "4", capacity: 4, expected: [[40, -20], [100, 40], [40, 100], [-20, 40]] },
            { tag: "5", capacity: 5, expected: [[26.67, -20], [53.33, -20], [100, 26.67], [100, 53.33], [53.33, 100]] },
            { tag: "8", capacity: 8, expected: [[26.67, -20], [53.33, -20], [100, 26.67], [100, 53.33], [53.33, 100], [26.67, 100], [-20, 53.33], [-20, 26.67]] }
        ]
    }

    function test_chairs_stand_around_a_square_side_after_side(data) {
        make({ capacity: data.capacity })

        compare(chairs(), data.expected)
    }

    function test_chairs_stand_on_the_long_sides_of_a_rectangle_data() {
        return [
            { tag: "1", capacity: 1, expected: [[70, -20]] },
            { tag: "3", capacity: 3, expected: [[46.67, -20], [93.33, -20], [46.67, 100]] },
            { tag: "6", capacity: 6, expected: [[35, -20], [70, -20], [105, -20], [35, 100], [70, 100], [105, 100]] }
        ]
    }

    function test_chairs_stand_on_the_long_sides_of_a_rectangle(data) {
        make({ capacity: data.capacity, width: 140, metadata: { table_type: "rectangle" } })

        compare(chairs(), data.expected)
    }

    function test_chairs_stand_clockwise_around_a_circle() {
        make({ capacity: 4, metadata: { table_type: "circle" } })

        compare(chairs(), [[100, 40], [40, 100], [-20, 40], [40, -20]])
    }

    function test_every_table_has_as_many_chairs_as_seats_data() {
        const rows = []
        for (const type of ["square", "rectangle", "circle", "oval"])
            for (let capacity = 1; capacity <= 12; ++capacity)
                rows.push({ tag: type + " " + capacity, type: type, capacity: capacity })
        return rows
    }

    function test_every_table_has_as_many_chairs_as_seats(data) {
        make({ capacity: data.capacity, metadata: { table_type: data.type } })

        compare(chairs().length, data.capacity)
        compare(new Set(chairs().map(String)).size, data.capacity)
    }

    function test_a_wall_has_no_chairs() {
        make({ type: "wall", width: 150, height: 10 })

        compare(chairs().length, 0)
    }

    function test_the_shape_follows_the_table_type_data() {
        return [
            { tag: "circle", radius: 35 },
            { tag: "rectangle", radius: 3 },
            { tag: "square", radius: 6 },
            { tag: "oval", radius: 6 }
        ]
    }

    function test_the_shape_follows_the_table_type(data) {
        make({ width: 90, height: 70, metadata: { table_type: data.tag }, color: "#123456", borderColor: "#654321" })

        const shape = findChild(page, "shape").item
        compare(shape.radius, data.radius)
        compare(shape.border.width, 2)
        compare(shape.color, "#123456")
        compare(shape.border.color, "#654321")
    }

    function test_a_reservation_shows_its_time() {
        make({ metadata: { reservation: { time_label: "07:00 PM" } } })

        compare(page.reservationText, "Reserved 07:00 PM")
        verify(shows("Reserved 07:00 PM"))
    }

    function test_odd_metadata_harms_nothing_data() {
        return [
            { tag: "null", metadata: null },
            { tag: "list", metadata: [1, 2] },
            { tag: "text", metadata: "<script>" },
            { tag: "number as type", metadata: { table_type: 7 } },
            { tag: "script in a label", metadata: { reservation: { time_label: "<img src='x'>" } } }
        ]
    }

    function test_odd_metadata_harms_nothing(data) {
        make({ metadata: data.metadata })

        compare(chairs().length, 4)
    }

    SignalSpy {
        id: changedSpy

        signalName: "changed"
    }

    function test_handles_show_for_what_can_be_turned_and_lengthened_data() {
        return [
            { tag: "table", turns: false, resizes: false },
            { tag: "wall", turns: true, resizes: true },
            { tag: "divider", turns: true, resizes: false }
        ]
    }

    function test_handles_show_for_what_can_be_turned_and_lengthened(data) {
        make({ type: data.tag, width: 150, height: 10 })

        compare(findChild(page, "rotationHandle").visible, data.turns)
        compare(findChild(page, "resizeHandle").visible, data.resizes)
    }

    function test_without_editing_there_are_no_handles() {
        make({ type: "wall", width: 150, height: 10, editable: false })

        verify(!findChild(page, "rotationHandle").visible)
        verify(!findChild(page, "resizeHandle").visible)
    }

    function test_the_handles_stand_where_they_belong() {
        make({ type: "wall", width: 150, height: 10 })
        const turner = findChild(page, "rotationHandle")
        const resizer = findChild(page, "resizeHandle")

        compare([turner.x, turner.y, turner.width, turner.height, turner.z], [66, -25, 18, 18, 9999])
        compare([resizer.x, resizer.y, resizer.width, resizer.height, resizer.z], [142, -3, 16, 16, 9999])
    }

    function test_the_edge_follows_the_pointer() {
        make({ type: "wall", width: 150, height: 10 })
        changedSpy.target = page
        changedSpy.clear()

        pull(findChild(page, "resizeHandle"), 30, 0)
        mouseRelease(page)

        compare(page.width, 180)
        compare(page.height, 10)
        verify(changedSpy.count > 0)
        compare(changedSpy.signalArguments[0][2], 180)
    }

    function test_a_wall_is_never_narrower_than_40() {
        make({ type: "wall", width: 60, height: 10 })

        pull(findChild(page, "resizeHandle"), -50, 0)
        compare(page.width, 40)
        mouseMove(findChild(page, "resizeHandle"), -200, 8)
        mouseRelease(page)

        compare(page.width, 40)
    }

    function test_a_wall_is_turned_about_its_centre() {
        make({ type: "wall", width: 150, height: 10, rotation: 10 })
        changedSpy.target = page
        changedSpy.clear()
        const handle = findChild(page, "rotationHandle")
        const centre = page.mapToItem(root, page.width / 2, page.height / 2)
        const start = handle.mapToItem(root, 9, 9)
        // A quarter turn clockwise about the centre.
        const end = Qt.point(centre.x - (start.y - centre.y), centre.y + (start.x - centre.x))

        mousePress(root, start.x, start.y)
        mouseMove(root, end.x, end.y)
        mouseRelease(root, end.x, end.y)

        fuzzyCompare(page.rotation, 100, 2)
        verify(changedSpy.count > 0)
    }

    function test_an_editable_item_is_dragged_and_tells_it() {
        make({})
        changedSpy.target = page
        changedSpy.clear()

        drag(page, 50, 60)

        verify(page.x > 320 && page.y > 330)
        verify(changedSpy.count > 1)
        const last = changedSpy.signalArguments[changedSpy.count - 1]
        compare([last[0], last[1], last[2], last[3]], [page.x, page.y, 80, 0])
    }

    function test_an_item_that_is_not_editable_stays() {
        make({ editable: false })

        drag(page, 50, 60)

        compare([page.x, page.y], [300, 300])
    }
}
