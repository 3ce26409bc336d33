// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One table of the plain list. Only "occupied" is marked, so a reserved table reads as free, which
// is meant. An occupied one can be chosen: the order joins its open session.
Item {
    id: root

    required property string name
    required property string status
    required property bool selected

    signal clicked

    width: 80
    height: 48

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: status
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: root.clicked()

    Rectangle {
        anchors.centerIn: parent
        width: 72
        height: 40
        radius: 4
        color: root.status === "occupied" ? "#ff4d4d" : "#4caf50"
        border.width: 3
        border.color: root.selected ? Theme.primary() : Theme.background

        PlainLabel {
            anchors.fill: parent
            anchors.margins: 3
            text: root.name
            color: "white"
            font.bold: true
            elide: Text.ElideRight
            // A name gets smaller before it is cut off: "Table 10" and "Table 11" differ at their ends.
            // A long one takes further lines.
            fontSizeMode: smallest.advanceWidth > width ? Text.Fit : Text.HorizontalFit
            minimumPixelSize: 8
            wrapMode: smallest.advanceWidth > width ? Text.Wrap : Text.NoWrap
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter

            TextMetrics {
                id: smallest

                font.bold: true
                font.pixelSize: 8
                text: root.name.slice(0, 12) + "…"
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.clicked()
    }
}
