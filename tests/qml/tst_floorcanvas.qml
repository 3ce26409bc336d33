// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

FloorTestCase {
    id: root

    name: "FloorCanvas"

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

    function test_of_tables_on_one_spot_the_one_on_top_is_deleted() {
        for (const label of ["old", "newer", "one too many"])
            addTable(label, 100, 100)
        canvas()

        deleteAt(140, 140)
        compare(storedTables(), ["old", "newer"])
        deleteAt(140, 140)

        compare(storedTables(), ["old"])
        compare(rowLabels(), ["old"])
    }

    function test_what_is_seen_on_top_takes_a_right_click_data() {
        return [
            { tag: "the table drawn later", x: 160, y: 140, meant: 2 },
            { tag: "the lower one where it is seen", x: 110, y: 140, meant: 1 },
            { tag: "its chair on the lower table", x: 130, y: 140, upper: { x: 150 }, meant: 2 },
            { tag: "the higher z before the later one", x: 160, y: 140, lower: { z_order: 1 }, meant: 1 },
            { tag: "the lower one beside the round of a circle", x: 154, y: 104, upper: { metadata: JSON.stringify({ table_type: "circle" }) }, meant: 1 },
            { tag: "a circle within its round", x: 164, y: 116, upper: { metadata: JSON.stringify({ table_type: "circle" }) }, meant: 2 },
            { tag: "a circle's empty corner over nothing", x: 227, y: 103, upper: { metadata: JSON.stringify({ table_type: "circle" }) }, meant: 2 },
            { tag: "a turned table's corner", x: 190, y: 88, upper: { rotation: 45 }, meant: 2 }
        ]
    }

    function test_what_is_seen_on_top_takes_a_right_click(data) {
        addTable("lower", 100, 100, data.lower)
        addTable("upper", 150, 100, data.upper)
        canvas()

        mouseClick(root, data.x, data.y, Qt.RightButton)
        tryVerify(() => hasButton("Delete"))
        press("Delete")

        compare(rowLabels(), [data.meant === 2 ? "lower" : "upper"])
    }

    function test_a_handle_over_a_table_belongs_to_its_wall() {
        addTable("T1", 100, 100)
        addWall(60, 190)
        canvas()
        const handle = findChild(floorItems()[1], "rotationHandle").mapToItem(root, 9, 9)
        verify(item("T1").contains(item("T1").mapFromItem(root, handle.x, handle.y)))

        deleteAt(handle.x, handle.y)

        compare(rowLabels(), ["T1"])
    }

    function test_a_right_click_on_the_empty_floor_opens_nothing() {
        addTable("T1", 100, 100)
        canvas()

        mouseClick(root, 600, 600, Qt.RightButton)

        compare(page.selectedIndex, -1)
        verify(!hasButton("Delete"))
    }

    function test_of_items_on_one_spot_the_one_on_top_is_dragged() {
        for (const label of ["old", "new"])
            addTable(label, 100, 100)
        canvas()

        pull(140, 140, 200, 0)

        compare(item("old").x, 100)
        verify(item("new").x > 200)
        pull(140, 140, 0, 200)
        compare(item("old").x, 100)
        verify(item("old").y > 200)
    }

    function test_a_table_seen_beside_a_round_one_is_dragged() {
        addTable("lower", 100, 100)
        addTable("round", 150, 100, { metadata: JSON.stringify({ table_type: "circle" }) })
        canvas()

        pull(154, 104, 0, 200)

        verify(item("lower").y > 200)
        compare(item("round").y, 100)
    }

    function test_a_label_stays_inside_its_table_data() {
        const label = "The long table by the window to the garden"
        return [
            { tag: "square", metadata: { table_type: "square" }, label: label },
            { tag: "rectangle", width: 140, metadata: { table_type: "rectangle" }, label: label },
            { tag: "circle", metadata: { table_type: "circle" }, label: label },
            { tag: "one word", metadata: { table_type: "square" }, label: "W".repeat(40) },
            { tag: "reserved", metadata: { table_type: "square", reservation: { time_label: "07:00 PM" } }, label: label }
        ]
    }

    function test_a_label_stays_inside_its_table(data) {
        addTable(data.label, 100, 100, { width: data.width ?? 80, metadata: JSON.stringify(data.metadata) })
        canvas()
        const table = floorItems()[0]

        const label = theShown(shown => shown.text === data.label && shown.contentWidth !== undefined, "the label")
        const corner = label.mapToItem(table, (label.width - label.contentWidth) / 2, (label.height - label.contentHeight) / 2)

        compare(label.truncated, data.tag !== "rectangle")
        verify(label.contentWidth > 30 && label.contentHeight > 14)
        verify(corner.x >= 2 && corner.x + label.contentWidth <= table.width - 2, corner.x + " " + label.contentWidth)
        verify(corner.y >= 2 && corner.y + label.contentHeight <= table.height - 2, corner.y + " " + label.contentHeight)
        if (data.metadata.reservation) {
            const reserved = theShown(shown => shown.text === "Reserved 07:00 PM", "the booking")
            verify(corner.y + label.contentHeight <= reserved.y)
        }
    }
}
