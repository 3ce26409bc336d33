// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest

FloorTestCase {
    id: root

    name: "FloorPlanView"

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

    function test_a_click_beside_a_round_table_means_what_is_seen_there() {
        addTable("lower", 100, 100)
        addTable("round", 150, 100, { metadata: JSON.stringify({ table_type: "circle" }) })
        plan()
        selectedSpy.target = page
        selectedSpy.clear()

        mouseClick(page, 154, 104)
        mouseClick(page, 190, 140)
        mouseClick(page, 227, 103)
        mouseClick(page, 90, 140)

        compare(selectedSpy.signalArguments.map(list => list[0]), [1, 2, 2, -1])
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

    function focusedLabel(): string {
        return root.Window.activeFocusItem?.label ?? ""
    }

    function test_arrows_lead_from_table_to_table_data() {
        return [
            { tag: "right", keys: [Qt.Key_Right], label: "right" },
            { tag: "right and back", keys: [Qt.Key_Right, Qt.Key_Left], label: "middle" },
            { tag: "up", keys: [Qt.Key_Up], label: "above" },
            { tag: "down, past a wall", keys: [Qt.Key_Down], label: "below" },
            { tag: "straight ahead before nearer but beside", keys: [Qt.Key_Down, Qt.Key_Up], label: "middle" },
            { tag: "where nothing lies", keys: [Qt.Key_Left], label: "middle" }
        ]
    }

    function test_arrows_lead_from_table_to_table(data) {
        addTable("middle", 400, 300)
        addTable("right", 600, 320)
        addTable("above", 420, 100)
        addTable("below", 400, 500)
        addTable("beside", 560, 400)
        addWall(380, 420)
        plan()
        item("middle").forceActiveFocus(Qt.TabFocusReason)

        for (const key of data.keys)
            keyClick(key)

        compare(focusedLabel(), data.label)
    }

    function test_return_on_a_table_chooses_it() {
        addTable("T1", 100, 200)
        addTable("T2", 400, 200)
        plan()
        selectedSpy.target = page
        selectedSpy.clear()
        item("T1").forceActiveFocus(Qt.TabFocusReason)

        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Return)

        compare(selectedSpy.signalArguments.map(list => list[0]), [2])
    }
}
