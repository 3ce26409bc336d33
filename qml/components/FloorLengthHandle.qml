// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan.Theme 1.0

// The handle that lengthens a wall at its right end.
Rectangle {
    id: root

    // The floor item that is edited.
    required property var target

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
        preventStealing: true
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
