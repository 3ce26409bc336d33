// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    property int floorId

    name: "FloorCanvas"

    function arrange() {
        floorId = FloorPlanService.createFloor("Hall")
        FloorPlanService.loadCanvas(floorId)
    }

    function addTable(label: string, x: real, y: real, more: var) {
        FloorPlanService.createTableItem(Object.assign({ floor_id: floorId, label: label, capacity: 4, x: x, y: y, width: 80, height: 80, metadata: JSON.stringify({ table_type: "square" }) }, more || {}))
    }

    function addWall(x: real, y: real) {
        FloorPlanService.addItem({ type: "wall", x: x, y: y, width: 150, height: 10, label: "" })
    }

    function canvas() {
        return show("components/FloorCanvas", { model: FloorPlanService.canvasModel })
    }

    function plan() {
        return show("common/floor/FloorPlanView", { model: FloorPlanService.canvasModel })
    }

    function floorItems(): var {
        return allShown(item => item.reservationText !== undefined)
    }

    function test_an_item_takes_all_from_its_row() {
        addTable("T1", 100, 200, { rotation: 15, opacity: 0.5, z_order: 3, capacity: 6 })

        canvas()

        const item = floorItems()[0]
        compare([item.label, item.x, item.y, item.width, item.height, item.rotation, item.opacity, item.z, item.capacity], ["T1", 100, 200, 80, 80, 15, 0.5, 3, 6])
        compare(item.tableType, "square")
        compare(item.borderColor, "#555555")
    }

    function test_the_fill_tells_the_status_data() {
        return [
            { tag: "occupied", fill: "#e74c3c" },
            { tag: "reserved", fill: "#f39c12" },
            { tag: "available", fill: "#66bb6a" },
            { tag: "broken", fill: "#f5f5f5" }
        ]
    }

    function test_the_fill_tells_the_status(data) {
        addTable("T1", 100, 200)
        TableService.setTableStatus(1, data.tag)

        canvas()
        compare(floorItems()[0].color, data.fill)
        page.destroy()
        plan()

        compare(floorItems()[floorItems().length - 1].color, data.fill)
    }

    function test_a_wall_takes_the_neutral_fill_and_no_chairs() {
        addWall(100, 100)

        plan()

        compare(floorItems()[0].color, "#f5f5f5")
        compare(allShown(item => item.objectName === "chair").length, 0)
    }

    function test_a_malformed_text_leaves_the_empty_object() {
        addTable("T1", 100, 200, { metadata: "{nonsense" })

        canvas()

        compare(floorItems()[0].metadata, {})
        compare(floorItems()[0].tableType, "square")
    }

    function test_hostile_texts_harm_nothing_data() {
        return [
            { tag: "list", text: "[1,2,3]" },
            { tag: "null", text: "null" },
            { tag: "script", text: JSON.stringify({ table_type: "<script>", reservation: { time_label: "<img src='x'>" } }) },
            { tag: "a megabyte of nesting", text: "[".repeat(500000) + "]".repeat(500000) }
        ]
    }

    function test_hostile_texts_harm_nothing(data) {
        addTable("T1", 100, 200, { metadata: data.text })

        plan()

        compare(floorItems().length, 1)
        compare(allShown(item => item.objectName === "chair").length, 4)
    }

    function test_a_stale_reservation_shows_beside_a_free_table() {
        addTable("T1", 100, 200, { metadata: JSON.stringify({ reservation: { time_label: "07:00 PM" } }) })

        plan()

        verify(shows("Reserved 07:00 PM"))
        compare(floorItems()[0].color, "#66bb6a")
    }

    function test_a_dragged_table_is_written_to_its_row() {
        addTable("T1", 100, 200)
        canvas()

        drag(floorItems()[0], 60, 30)

        const row = FloorPlanService.canvasModel.get(0)
        verify(row.x > 140 && row.x <= 160 && row.y > 210 && row.y <= 230, row.x + " " + row.y)
        compare([row.x, row.y], [floorItems()[0].x, floorItems()[0].y])
        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 0)
    }

    function test_an_item_stays_right_of_and_below_the_edges() {
        addTable("T1", 20, 20)
        canvas()

        drag(floorItems()[0], -200, -200)

        compare([floorItems()[0].x, floorItems()[0].y], [0, 0])
        compare(FloorPlanService.canvasModel.get(0).x, 0)
    }

    function test_the_handles_are_reached_over_the_dragging_area() {
        addWall(100, 100)
        canvas()
        const handle = findChild(floorItems()[0], "resizeHandle")

        mousePress(handle, 8, 8)
        mouseMove(handle, 58, 8)
        mouseRelease(handle, 8, 8)

        compare(FloorPlanService.canvasModel.get(0).width, 200)
    }

    function test_a_right_click_selects_and_offers_to_delete() {
        addTable("T1", 100, 200)
        addTable("T2", 300, 200)
        canvas()
        compare(page.selectedIndex, -1)

        mouseClick(floorItems()[1], 40, 40, Qt.RightButton)
        compare(page.selectedIndex, 1)
        compare(floorItems()[1].borderColor, "#9a7bff")
        tryVerify(() => hasButton("Delete"))
        compare(button("Delete").font.pixelSize, Theme.fontNormal)
        press("Delete")

        compare(FloorPlanService.canvasModel.rowCount(), 1)
        compare(FloorPlanService.canvasModel.get(0).label, "T1")
        compare(TestDb.value("SELECT COUNT(*) FROM tables"), 1)
    }

    function test_a_left_click_selects_nothing() {
        addTable("T1", 100, 200)
        canvas()

        click(floorItems()[0])

        compare(page.selectedIndex, -1)
    }

    SignalSpy {
        id: selectedSpy

        signalName: "tableSelected"
    }

    function test_a_click_on_the_plan_tells_the_table_or_none() {
        addTable("T1", 100, 200)
        addWall(100, 500)
        plan()
        selectedSpy.target = page
        selectedSpy.clear()

        click(floorItems()[0])
        compare(selectedSpy.signalArguments[0][0], 1)
        mouseClick(page, 600, 600)
        compare(selectedSpy.signalArguments[1][0], -1)
        click(floorItems()[1])

        compare(selectedSpy.count, 2)
    }

    function test_the_selected_table_is_framed() {
        addTable("T1", 100, 200)
        plan()

        page.selectedTableId = 1

        compare(floorItems()[0].borderColor, "#9a7bff")
    }

    function test_the_plan_cannot_be_edited() {
        addTable("T1", 100, 200)
        addWall(100, 500)
        plan()

        drag(floorItems()[0], 60, 30)

        compare(floorItems()[0].x, 100)
        verify(!findChild(floorItems()[1], "resizeHandle").visible)
    }
}
