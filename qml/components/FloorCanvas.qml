// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0
import "FloorRows.js" as FloorRows
import "FloorShapes.js" as FloorShapes
import "MenuKey.js" as MenuKey

// The floor in the administrator's editor. What is moved here stays in the model until it is saved. Tab leads
// from item to item, and keys do what the pointer does: arrows move an item, with Ctrl they turn and lengthen
// a wall, and the menu key and Delete open its menu.
Rectangle {
    id: root

    property var model
    // The row whose menu was opened last.
    property int selectedIndex: -1

    function openMenu(x: real, y: real) {
        const item = FloorShapes.seenAt(sheet, x, y)
        if (item === null)
            return
        openMenuOf(item.index, x, y)
    }

    function openMenuOf(row: int, x: real, y: real) {
        selectedIndex = row
        rowMenu.popup(x, y)
    }

    // The entry has the keys, and the item has them again afterwards.
    function openMenuByKey(item: var) {
        const place = item.mapToItem(root, item.width / 2, item.height / 2)
        rowMenu.isByKey = true
        openMenuOf(item.index, place.x, place.y)
        rowMenu.currentIndex = 0
    }

    // The item after a deleted one has the keys next.
    function focusRow(row: int) {
        itemRepeater.itemAt(Math.min(row, itemRepeater.count - 1))?.forceActiveFocus(Qt.TabFocusReason)
    }

    // Within the edges that a drag keeps to.
    function moveBy(item: var, dx: real, dy: real) {
        item.model.x = Math.max(0, item.x + dx)
        item.model.y = Math.max(0, item.y + dy)
    }

    // Only what has the handle for it, and within its limit.
    function shape(item: var, degrees: real, dx: real) {
        if (item.handles[0].visible)
            item.model.rotation = item.rotation + degrees
        if (item.handles[1].visible)
            item.model.width = Math.max(40, item.width + dx)
    }

    function editByKey(event: var, item: var) {
        const steps = {
            [Qt.Key_Left]: [-1, 0], [Qt.Key_Right]: [1, 0], [Qt.Key_Up]: [0, -1], [Qt.Key_Down]: [0, 1]
        }
        const step = steps[event.key]
        const isFine = event.modifiers & Qt.ShiftModifier
        event.accepted = true
        if (step && event.modifiers & Qt.ControlModifier)
            shape(item, step[1] * (isFine ? 1 : 15), step[0] * (isFine ? 1 : 10))
        else if (step)
            moveBy(item, step[0] * (isFine ? 1 : 10), step[1] * (isFine ? 1 : 10))
        else if (event.key === Qt.Key_Delete || MenuKey.isMeant(event))
            openMenuByKey(item)
        else
            event.accepted = false
    }

    color: Theme.background

    ThemedMenu {
        id: rowMenu

        property bool isByKey: false

        onClosed: {
            if (isByKey)
                Qt.callLater(root.focusRow, root.selectedIndex) // qmllint disable type
            isByKey = false
        }

        ThemedMenuItem {
            text: qsTr("Delete")
            onTriggered: FloorPlanService.deleteItem(root.selectedIndex)
        }
    }

    Item {
        id: sheet

        anchors.fill: parent
        enabled: !hold.lettingGo

        Repeater {
            id: itemRepeater

            model: root.model

            FloorItem {
                id: item

                required property var model
                required property int index

                metadata: FloorRows.metadata(model.metadata)
                x: model.x || 0
                y: model.y || 0
                type: model.type || "table"
                width: model.width || 80
                height: model.height || 80
                rotation: model.rotation || 0
                opacity: model.opacity || 1.0
                z: model.z_order || 0
                capacity: model.capacity || 4
                label: model.label || ""
                color: FloorRows.fill(model.status, Theme.surface)
                borderColor: index === root.selectedIndex ? Theme.primary() : "#555555"
                activeFocusOnTab: true

                Accessible.role: Accessible.Graphic
                Accessible.name: label || type
                onChanged: (x, y, width, rotation) => {
                    model.x = x
                    model.y = y
                    model.width = width
                    model.rotation = rotation
                }
                Keys.onPressed: event => root.editByKey(event, item)

                FocusRing {
                    anchors.fill: parent
                    anchors.margins: -4
                    radius: 6
                    visible: item.activeFocus
                }

                MouseArea {
                    anchors.fill: parent
                    containmentMask: item.seenMask
                    preventStealing: true
                    drag.target: item
                    drag.minimumX: 0
                    drag.minimumY: 0
                    onReleased: {
                        item.model.x = item.x
                        item.model.y = item.y
                    }
                }
            }
        }
    }

    // Over all items, since only one of those that lie on a spot is meant.
    HoldArea {
        id: hold

        anchors.fill: parent
        onHeld: (x, y) => root.openMenu(x, y)

        TapHandler {
            acceptedButtons: Qt.RightButton
            // A finger has no buttons and would count as any.
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad | PointerDevice.Stylus
            onTapped: eventPoint => root.openMenu(eventPoint.position.x, eventPoint.position.y)
        }
    }
}
