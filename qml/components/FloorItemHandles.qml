// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan.Theme 1.0

// The handles of a wall: one that turns it and one that lengthens it. Tables have none.
Item {
    id: root

    // The floor item that is edited.
    required property var target

    // Degrees from the item's centre to a point of the handle, in the coordinates of the floor.
    function angleTo(handle: Item, x: real, y: real): real {
        const floor = root.target.parent
        const centre = root.target.mapToItem(floor, root.target.width / 2, root.target.height / 2)
        const pointer = handle.mapToItem(floor, x, y)
        return Math.atan2(pointer.y - centre.y, pointer.x - centre.x) * 180 / Math.PI
    }

    Rectangle {
        objectName: "rotationHandle"
        visible: root.target.type === "wall" || root.target.type === "divider"
        anchors.horizontalCenter: parent.horizontalCenter
        y: -25
        width: 18
        height: 18
        z: 9999
        radius: 9
        color: Theme.primary()
        border.width: 2
        border.color: "white"

        MouseArea {
            id: turner

            property real startAngle: 0
            property real startRotation: 0

            anchors.fill: parent
            cursorShape: Qt.CrossCursor
            onPressed: mouse => {
                startAngle = root.angleTo(turner, mouse.x, mouse.y)
                startRotation = root.target.rotation
            }
            onPositionChanged: mouse => {
                root.target.rotation = startRotation + root.angleTo(turner, mouse.x, mouse.y) - startAngle
                root.target.report()
            }
        }
    }

    Rectangle {
        objectName: "resizeHandle"
        visible: root.target.type === "wall"
        anchors.horizontalCenter: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        z: 9999
        radius: 3
        color: "white"
        border.width: 2
        border.color: Theme.primary()

        MouseArea {
            property real startX: 0
            property real startWidth: 0

            anchors.fill: parent
            cursorShape: Qt.SizeHorCursor
            // The pointer is followed in the handle's own coordinates, which move with the edge.
            onPressed: mouse => {
                startX = mouse.x
                startWidth = root.target.width
            }
            onPositionChanged: mouse => {
                root.target.width = Math.max(40, startWidth + mouse.x - startX)
                root.target.report()
            }
        }
    }
}
