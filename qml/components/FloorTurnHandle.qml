// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan.Theme 1.0

// The handle that turns a wall about its centre.
Rectangle {
    id: root

    // The floor item that is edited.
    required property var target

    // Degrees from the item's centre to a point of the handle, in the coordinates of the floor.
    function angleTo(x: real, y: real): real {
        const floor = root.target.parent
        const centre = root.target.mapToItem(floor, root.target.width / 2, root.target.height / 2)
        const pointer = root.mapToItem(floor, x, y)
        return Math.atan2(pointer.y - centre.y, pointer.x - centre.x) * 180 / Math.PI
    }

    width: 18
    height: 18
    z: 9999
    radius: 9
    color: Theme.primary()
    border.width: 2
    border.color: "white"

    MouseArea {
        property real startAngle: 0
        property real startRotation: 0

        anchors.fill: parent
        cursorShape: Qt.CrossCursor
        preventStealing: true
        onPressed: mouse => {
            startAngle = root.angleTo(mouse.x, mouse.y)
            startRotation = root.target.rotation
        }
        onPositionChanged: mouse => {
            root.target.rotation = startRotation + root.angleTo(mouse.x, mouse.y) - startAngle
            root.target.report()
        }
    }
}
