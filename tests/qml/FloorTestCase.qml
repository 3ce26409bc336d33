// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// The root of the tests of floors: one floor, "Hall", in the editor or as a plan to take orders from.
ZelvanTestCase {
    id: root

    property int floorId

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

    // Presses, moves in small steps and releases, all in the window's coordinates.
    function pull(x: real, y: real, dx: int, dy: int) {
        mousePress(root, x, y)
        for (let step = 1; step <= 10; ++step)
            mouseMove(root, x + dx * step / 10, y + dy * step / 10)
        mouseRelease(root, x + dx, y + dy)
    }

    function item(label: string): var {
        return floorItems().find(found => found.label === label)
    }

    function rowLabels(): var {
        const labels = []
        for (let i = 0; i < FloorPlanService.canvasModel.rowCount(); ++i)
            labels.push(FloorPlanService.canvasModel.get(i).label)
        return labels
    }

    function storedTables(): var {
        return TestDb.rows("SELECT table_name FROM tables ORDER BY id").map(row => row.table_name)
    }

    function deleteAt(x: real, y: real) {
        mouseClick(root, x, y, Qt.RightButton)
        tryVerify(() => hasButton("Delete"))
        press("Delete")
        tryVerify(() => !hasButton("Delete"))
    }
}
