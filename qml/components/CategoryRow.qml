// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One category to choose.
Rectangle {
    id: root

    required property string text
    required property bool selected

    signal clicked

    implicitHeight: Math.max(44, label.implicitHeight + 8)
    radius: 4
    color: selected ? Theme.primary() : "transparent"

    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: root.clicked()

    NameLabel {
        id: label

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: root.selected ? "white" : Theme.text
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.clicked()
    }
}
