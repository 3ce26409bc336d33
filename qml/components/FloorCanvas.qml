// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0
import "FloorRows.js" as FloorRows
import "FloorShapes.js" as FloorShapes

// The floor in the administrator's editor. What is moved here stays in the model until it is saved.
Rectangle {
    id: root

    property var model
    // The row whose menu was opened last.
    property int selectedIndex: -1

    function openMenu(x: real, y: real) {
        const item = FloorShapes.seenAt(sheet, x, y)
        if (item === null)
            return
        selectedIndex = item.index
        rowMenu.popup(x, y)
    }

    color: Theme.background

    ThemedMenu {
        id: rowMenu

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

                Accessible.role: Accessible.Graphic
                Accessible.name: label || type
                onChanged: (x, y, width, rotation) => {
                    model.x = x
                    model.y = y
                    model.width = width
                    model.rotation = rotation
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
