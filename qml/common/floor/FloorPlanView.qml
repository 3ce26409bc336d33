// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0
import "../../components/FloorNeighbours.js" as FloorNeighbours
import "../../components/FloorRows.js" as FloorRows

// The floor for taking orders: a click chooses a table, one on the empty floor none. Tab and the arrows lead
// from table to table.
Rectangle {
    id: root

    property var model
    property int selectedTableId: -1

    signal tableSelected(int tableId)

    function goOn(item: Item, dx: int, dy: int): void {
        FloorNeighbours.towards(item, dx, dy)?.forceActiveFocus(Qt.TabFocusReason)
    }

    color: Theme.background

    MouseArea {
        anchors.fill: parent
        z: -1
        onClicked: root.tableSelected(-1)
    }

    Repeater {
        model: root.model

        FloorItem {
            id: item

            required property var model
            readonly property bool isTable: model.type === "table"

            editable: false
            metadata: FloorRows.metadata(model.metadata)
            x: model.x || 0
            y: model.y || 0
            width: model.width || 80
            height: model.height || 80
            rotation: model.rotation || 0
            opacity: 1.0
            z: model.z_order || 0
            // The type stays "table" for every row, so a wall says here that it has no chairs.
            capacity: isTable ? model.capacity || 4 : 0
            label: model.label || ""
            color: isTable ? FloorRows.fill(model.status, Theme.surface) : Theme.surface
            borderColor: isTable && model.table_id === root.selectedTableId ? Theme.primary() : "#555555"

            activeFocusOnTab: isTable

            Accessible.role: Accessible.Button
            Accessible.name: label
            Accessible.ignored: !isTable
            Accessible.onPressAction: root.tableSelected(model.table_id)

            Keys.onDownPressed: root.goOn(item, 0, 1)
            Keys.onEnterPressed: root.tableSelected(model.table_id)
            Keys.onLeftPressed: root.goOn(item, -1, 0)
            Keys.onReturnPressed: root.tableSelected(model.table_id)
            Keys.onRightPressed: root.goOn(item, 1, 0)
            Keys.onSpacePressed: root.tableSelected(model.table_id)
            Keys.onUpPressed: root.goOn(item, 0, -1)

            FocusRing {
                anchors.fill: parent
                anchors.margins: -4
                radius: 6
                visible: item.activeFocus
            }

            MouseArea {
                anchors.fill: parent
                containmentMask: item.seenMask
                enabled: item.isTable
                cursorShape: Qt.PointingHandCursor
                onClicked: root.tableSelected(item.model.table_id)
            }
        }
    }
}
