// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One day of the date picker's grid.
Rectangle {
    id: root

    required property date day
    required property bool inMonth
    required property bool pickable
    required property bool today
    required property bool selected

    signal picked

    implicitWidth: 40
    implicitHeight: 40
    radius: 6
    enabled: pickable
    color: {
        if (selected)
            return Theme.primary()
        return today || !inMonth ? Theme.surface : "transparent"
    }
    border.width: 2
    border.color: selected ? Theme.primary() : "transparent"

    Accessible.role: Accessible.Button
    Accessible.name: Qt.formatDate(day, "dd MMM yyyy")
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: if (root.pickable) root.picked()

    PlainLabel {
        anchors.centerIn: parent
        text: root.day.getDate()
        font.bold: root.today || root.selected
        color: {
            if (!root.pickable)
                return Theme.secondaryText
            return root.selected ? "white" : Theme.text
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.picked()
    }
}
