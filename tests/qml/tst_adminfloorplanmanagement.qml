// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "AdminFloorPlanManagement"

    function editor() {
        return show("admin/management/AdminFloorPlanManagement")
    }

    function items_(): var {
        const rows = []
        for (let i = 0; i < FloorPlanService.canvasModel.rowCount(); ++i)
            rows.push(FloorPlanService.canvasModel.get(i))
        return rows
    }

    function addFloor(name: string) {
        press("+ New Floor")
        tryVerify(() => hasButton("Create Floor"))
        enter("Floor Name", name)
        press("Create Floor")
        tryVerify(() => !hasButton("Create Floor"))
    }

    function addTable(label: string) {
        press("Add Table")
        tryVerify(() => hasButton("Create Table"))
        enter("Table Label", label)
        press("Create Table")
        tryVerify(() => !hasButton("Create Table"))
    }

    function save() {
        page.forceActiveFocus()
        keySequence(StandardKey.Save)
    }

    function test_without_floors_only_a_new_one_is_offered() {
        editor()

        verify(hasButton("+ New Floor"))
        verify(!hasButton("Add Table"))
        verify(!hasButton("Add Divider"))
        compare(page.currentFloorId, -1)
    }

    function test_a_new_floor_is_stored_at_once_and_shown() {
        editor()

        addFloor("Hall")

        compare(TestDb.rows("SELECT name, sort_order FROM floors"), [{ name: "Hall", sort_order: 1 }])
        compare(page.currentFloorId, 1)
        verify(button("Hall").checked)
        verify(hasButton("Add Table"))
    }

    function test_a_name_can_be_typed_and_confirmed_at_once() {
        editor()
        press("+ New Floor")
        tryVerify(() => hasButton("Create Floor"))

        for (const letter of "Hall")
            keyClick(letter)
        keyClick(Qt.Key_Return)

        tryVerify(() => !hasButton("Create Floor"))
        verify(button("Hall").checked)
        press("Add Table")
        tryVerify(() => hasButton("Create Table"))
        keySequence(StandardKey.SelectAll)
        for (const letter of "A1")
            keyClick(letter)
        press("Create Table")
        compare(items_()[0].label, "A1")
    }

    function test_an_empty_name_is_accepted_and_the_field_keeps_its_text() {
        editor()
        addFloor("Hall")
        press("+ New Floor")
        tryVerify(() => hasButton("Create Floor"))
        compare(field("Floor Name").text, "Hall")
        field("Floor Name").text = ""

        press("Create Floor")

        compare(TestDb.value("SELECT COUNT(*) FROM floors WHERE name = ''"), 1)
    }

    function test_cancel_creates_nothing() {
        editor()
        press("+ New Floor")
        tryVerify(() => hasButton("Create Floor"))

        press("Cancel")

        tryVerify(() => !hasButton("Create Floor"))
        compare(TestDb.value("SELECT COUNT(*) FROM floors"), 0)
    }

    function test_of_more_floors_than_fit_all_are_reached() {
        for (let i = 1; i <= 20; ++i)
            FloorPlanService.createFloor("Floor " + i)
        FloorPlanService.createFloor("A very long name of a floor ".repeat(20))
        editor()
        verify(button("+ New Floor").mapToItem(page, 0, 0).x > page.width)
        verify(allShown(item => isButton(item) && item.text.startsWith("A very long"))[0].width <= 240)
        const row = theShown(item => item.flickDeceleration !== undefined && item.contentWidth > page.width, "the row of floors")

        row.contentX = row.contentWidth - row.width
        press("+ New Floor")

        tryVerify(() => hasButton("Create Floor"))
    }

    function test_the_dialogs_have_their_sizes_and_ranges() {
        FloorPlanService.createFloor("Hall")
        editor()
        const sizeOf = title => {
            for (let i = 0; i < page.data.length; ++i)
                if (page.data[i].title === title)
                    return [page.data[i].width, page.data[i].height]
        }

        press("Add Table")
        tryVerify(() => hasButton("Create Table"))

        compare(sizeOf("Create Floor"), [360, 260])
        compare(sizeOf("Create Table"), [360, 320])
        const seats = theShown(item => item.Accessible.name === "Number Of Seats" && item.stepSize !== undefined, "seats")
        compare([seats.from, seats.to, seats.value], [1, 20, 4])
    }

    function test_the_first_floor_opens() {
        FloorPlanService.createFloor("Hall")
        FloorPlanService.createFloor("Terrace")

        editor()

        verify(button("Hall").checked)
        verify(!button("Terrace").checked)
    }

    function test_a_table_is_stored_at_once_and_its_item_at_the_save() {
        FloorPlanService.createFloor("Hall")
        editor()

        addTable("T1")
        compare(TestDb.rows("SELECT table_name, capacity, status FROM tables"), [{ table_name: "T1", capacity: 4, status: "available" }])
        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 0)
        save()

        compare(TestDb.rows("SELECT type, table_id, label, x, y, width, height, metadata FROM canvas_items"), [{ type: "table", table_id: 1, label: "T1", x: 100, y: 100, width: 80, height: 80, metadata: "{\"table_type\":\"square\"}" }])
    }

    function test_the_shape_decides_the_size_data() {
        return [
            { tag: "square", index: 0, width: 80 },
            { tag: "rectangle", index: 1, width: 140 },
            { tag: "circle", index: 2, width: 80 }
        ]
    }

    function test_the_shape_decides_the_size(data) {
        FloorPlanService.createFloor("Hall")
        editor()
        press("Add Table")
        tryVerify(() => hasButton("Create Table"))
        const types = theShown(item => item.Accessible.name === "Type Of Table" && item.currentIndex !== undefined, "types")
        compare([0, 1, 2].map(index => types.textAt(index)), ["Square Table", "Rectangle Table", "Circle Table"])
        compare(field("Table Label").text, "Table")

        types.currentIndex = data.index
        press("Create Table")

        compare(items_()[0].width, data.width)
        compare(items_()[0].height, 80)
        compare(JSON.parse(items_()[0].metadata), { table_type: data.tag })
    }

    function test_dividers_are_added_and_deleted_at_the_save() {
        FloorPlanService.createFloor("Hall")
        editor()
        press("Add Divider")
        compare(items_().length, 1)
        compare([items_()[0].type, items_()[0].x, items_()[0].y, items_()[0].width, items_()[0].height], ["wall", 150, 150, 150, 10])
        save()
        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 1)

        FloorPlanService.deleteItem(0)
        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 1)
        save()

        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 0)
    }

    function test_a_table_is_deleted_at_once_with_its_stored_item() {
        FloorPlanService.createFloor("Hall")
        editor()
        addTable("T1")
        save()

        FloorPlanService.deleteItem(0)

        compare(TestDb.value("SELECT COUNT(*) FROM tables"), 0)
        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 0)
    }

    function test_moves_turns_and_lengths_wait_for_the_save() {
        FloorPlanService.createFloor("Hall")
        editor()
        press("Add Divider")
        save()
        const wall = theShown(item => item.reservationText !== undefined, "the wall")

        drag(wall, 60, 40)
        drag(findChild(wall, "resizeHandle"), 30, 0)
        drag(findChild(wall, "rotationHandle"), 40, 0)
        verify(wall.x > 160)
        verify(wall.width > 150)
        verify(wall.rotation > 10)
        compare(storedItems(), [{ x: 150, width: 150, rotation: 0 }])
        save()

        compare(storedItems(), [{ x: wall.x, width: wall.width, rotation: wall.rotation }])
    }

    function storedItems(): var {
        return TestDb.rows("SELECT x, width, rotation FROM canvas_items")
    }

    function test_the_save_key_without_a_floor_does_nothing() {
        editor()

        save()

        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 0)
    }

    function test_another_floor_drops_unsaved_changes() {
        FloorPlanService.createFloor("Hall")
        FloorPlanService.createFloor("Terrace")
        editor()
        press("Add Divider")

        press("Terrace")
        compare(items_().length, 0)
        press("Hall")

        compare(items_().length, 0)
    }

    function deleteFloor(name: string) {
        mouseClick(button(name), 5, 5, Qt.RightButton)
        tryVerify(() => hasButton("Delete Floor"))
        press("Delete Floor")
        tryVerify(() => !hasButton("Delete Floor"))
    }

    function test_deleting_another_floor_keeps_the_shown_one_and_its_changes() {
        FloorPlanService.createFloor("Hall")
        FloorPlanService.createFloor("Terrace")
        editor()
        press("Add Divider")

        deleteFloor("Terrace")

        verify(!hasButton("Terrace"))
        compare(page.currentFloorId, 1)
        compare(items_().length, 1)
    }

    function test_deleting_the_shown_floor_moves_to_the_first_or_to_none() {
        FloorPlanService.createFloor("Hall")
        FloorPlanService.createFloor("Terrace")
        editor()

        deleteFloor("Hall")
        compare(page.currentFloorId, 2)
        press("Add Divider")
        deleteFloor("Terrace")

        compare(page.currentFloorId, -1)
        compare(items_().length, 0)
        verify(!hasButton("Add Table"))
    }

    function test_a_floor_that_cannot_be_deleted_stays() {
        FloorPlanService.createFloor("Hall")
        editor()
        TestDb.run("CREATE TRIGGER refuse BEFORE DELETE ON floors BEGIN SELECT RAISE(ABORT, 'no'); END")

        deleteFloor("Hall")
        TestDb.run("DROP TRIGGER refuse")

        compare(page.currentFloorId, 1)
        verify(hasButton("Hall"))
    }

    function test_a_blank_label_makes_the_next_save_fail_silently() {
        FloorPlanService.createFloor("Hall")
        editor()
        press("Add Divider")
        save()
        ignoreWarning("Cannot add empty table name")
        addTable("  ")
        compare(items_()[1].table_id, -1)
        ignoreWarning(/Insert failed:/)

        save()

        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 1)
        compare(TestDb.value("SELECT COUNT(*) FROM tables"), 0)
    }

    function test_an_unsaved_table_stays_in_the_table_list() {
        FloorPlanService.createFloor("Hall")
        editor()
        addTable("T1")

        FloorPlanService.loadCanvas(1)

        compare(items_().length, 0)
        compare(TestDb.value("SELECT COUNT(*) FROM tables"), 1)
    }
}
