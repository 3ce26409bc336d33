// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One figure of a report under its caption, with room for a quiet line beneath.
Rectangle {
    id: root

    required property string caption
    required property string figure
    property string note
    property color figureColor: Theme.text

    radius: 6
    color: Theme.background
    border.width: 1
    border.color: Theme.border

    Accessible.role: Accessible.StaticText
    Accessible.name: [caption, figure, note].filter(text => text !== "").join(" ") // qmllint disable type

    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        PlainLabel {
            width: parent.width
            text: root.caption
            font.pixelSize: Theme.fontLarge
            opacity: 0.7
            elide: Text.ElideRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
        }

        PlainLabel {
            width: parent.width
            text: root.figure
            color: root.figureColor
            font.bold: true
            font.pixelSize: Theme.fontXL
            elide: Text.ElideRight
            // A large figure gets smaller before it is cut off.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
        }

        PlainLabel {
            visible: root.note !== ""
            text: root.note
            opacity: 0.6
        }
    }
}
