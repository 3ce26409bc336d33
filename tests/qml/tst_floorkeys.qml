// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// The editor of floors without a pointer.
FloorTestCase {
    id: root

    name: "FloorKeys"

    function row(index: int): var {
        const found = FloorPlanService.canvasModel.get(index)
        return [found.x, found.y]
    }

    function startOn(label: string) {
        canvas()
        item(label).forceActiveFocus(Qt.TabFocusReason)
        settle()
    }

    function hasRing(floorItem): bool {
        return items(floorItem).some(part => part.visible && part.z === 2 && part.border !== undefined)
    }

    function test_tab_leads_from_item_to_item_and_the_focus_is_seen() {
        addTable("T1", 100, 100)
        addWall(300, 300)
        addTable("T2", 500, 100)
        startOn("T1")
        verify(hasRing(item("T1")))

        keyClick(Qt.Key_Tab)
        verify(hasRing(item("")))
        keyClick(Qt.Key_Tab)

        verify(hasRing(item("T2")))
        verify(!hasRing(item("T1")))
        compare(page.selectedIndex, -1)
    }

    function test_arrows_move_an_item_and_its_row_data() {
        return [
            { tag: "right", key: Qt.Key_Right, modifiers: Qt.NoModifier, place: [110, 5] },
            { tag: "down", key: Qt.Key_Down, modifiers: Qt.NoModifier, place: [100, 15] },
            { tag: "left, finely", key: Qt.Key_Left, modifiers: Qt.ShiftModifier, place: [99, 5] },
            { tag: "not over the edge", key: Qt.Key_Up, modifiers: Qt.NoModifier, place: [100, 0] }
        ]
    }

    function test_arrows_move_an_item_and_its_row(data) {
        addTable("T1", 100, 5)
        addTable("T2", 500, 100)
        startOn("T1")

        keyClick(data.key, data.modifiers)

        compare(row(0), data.place)
        compare([item("T1").x, item("T1").y], data.place)
        compare(row(1), [500, 100])
        verify(item("T1").activeFocus)
    }

    function test_what_was_moved_by_keys_is_stored_by_the_save() {
        addTable("T1", 100, 100)
        startOn("T1")

        keyClick(Qt.Key_Right)
        compare(TestDb.value("SELECT COUNT(*) FROM canvas_items"), 0)
        FloorPlanService.saveCanvas(floorId)

        compare(TestDb.value("SELECT x FROM canvas_items"), 110)
    }

    function test_arrows_with_ctrl_turn_and_lengthen_a_wall() {
        addWall(300, 300)
        startOn("")

        keyClick(Qt.Key_Right, Qt.ControlModifier)
        keyClick(Qt.Key_Down, Qt.ControlModifier)
        keyClick(Qt.Key_Up, Qt.ControlModifier | Qt.ShiftModifier)
        compare([item("").width, item("").rotation], [160, 14])
        for (let i = 0; i < 25; ++i)
            keyClick(Qt.Key_Left, Qt.ControlModifier)

        compare(item("").width, 40)
        compare(FloorPlanService.canvasModel.get(0).width, 40)
    }

    function test_a_table_is_neither_turned_nor_lengthened() {
        addTable("T1", 300, 300)
        startOn("T1")

        keyClick(Qt.Key_Right, Qt.ControlModifier)
        keyClick(Qt.Key_Down, Qt.ControlModifier)

        compare([item("T1").x, item("T1").y, item("T1").width, item("T1").rotation], [300, 300, 80, 0])
    }

    function test_the_menu_is_opened_and_used_by_keys_data() {
        return [
            { tag: "menu key", key: Qt.Key_Menu, modifiers: Qt.NoModifier },
            { tag: "Shift+F10", key: Qt.Key_F10, modifiers: Qt.ShiftModifier },
            { tag: "Delete", key: Qt.Key_Delete, modifiers: Qt.NoModifier }
        ]
    }

    function test_the_menu_is_opened_and_used_by_keys(data) {
        addTable("T1", 100, 100)
        addTable("T2", 300, 100)
        addTable("T3", 500, 100)
        startOn("T2")

        keyClick(data.key, data.modifiers)
        tryVerify(() => hasButton("Delete"))
        compare(page.selectedIndex, 1)
        tryVerify(() => button("Delete").highlighted)
        compare(storedTables(), ["T1", "T2", "T3"])
        keyClick(Qt.Key_Return)

        tryVerify(() => !hasButton("Delete"))
        compare(storedTables(), ["T1", "T3"])
        tryVerify(() => item("T3").activeFocus)
    }

    function test_escape_leaves_the_item_and_goes_back_to_it() {
        addTable("T1", 100, 100)
        startOn("T1")

        keyClick(Qt.Key_Delete)
        tryVerify(() => hasButton("Delete"))
        keyClick(Qt.Key_Escape)

        tryVerify(() => !hasButton("Delete"))
        compare(storedTables(), ["T1"])
        tryVerify(() => item("T1").activeFocus)
    }

    function test_the_menu_of_a_floor_is_opened_by_keys() {
        show("admin/management/AdminFloorPlanManagement")
        button("Hall").forceActiveFocus(Qt.TabFocusReason)

        keyClick(Qt.Key_Menu)
        tryVerify(() => hasButton("Delete Floor"))
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)

        tryVerify(() => !hasButton("Hall"))
    }

    function test_a_floor_s_tab_has_the_keys_again_after_its_menu() {
        show("admin/management/AdminFloorPlanManagement")
        button("Hall").forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_F10, Qt.ShiftModifier)
        tryVerify(() => hasButton("Delete Floor"))

        keyClick(Qt.Key_Escape)

        tryVerify(() => !hasButton("Delete Floor"))
        tryVerify(() => button("Hall").activeFocus)
    }
}
