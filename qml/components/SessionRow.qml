// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One order session in a list of the checkout: its number over a second line.
Rectangle {
    id: root

    required property string title
    required property string subtitle
    required property bool selected
    property color subtitleColor: Theme.secondaryText
    property color selectedBorder: Theme.primary()

    signal clicked

    implicitHeight: Math.max(72, lines.implicitHeight + 24)
    radius: 6
    color: selected ? Theme.surface : Theme.background
    border.width: 2
    border.color: selected ? selectedBorder : "transparent"

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: subtitle
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: root.clicked()

    Column {
        id: lines

        anchors.fill: parent
        anchors.margins: 12
        spacing: 4

        PlainLabel {
            text: root.title
            font.bold: true
        }

        NameLabel {
            width: parent.width
            lead: 6
            text: root.subtitle
            color: root.subtitleColor
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.clicked()
    }
}
