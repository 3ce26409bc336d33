// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// A flat button of one colour: the look of nearly every action.
PlainButton {
    id: control

    property color fillColor: Theme.surface
    property color pressedColor: Qt.darker(fillColor, 1.1)
    property color textColor: "white"
    property color borderColor: "transparent"
    property int borderWidth: 1
    // A button that shows its being disabled by its colours is not dimmed on top.
    property bool dimmed: !enabled

    font.bold: true
    padding: 8

    contentItem: Text {
        color: control.textColor
        elide: Text.ElideRight
        font: control.font
        horizontalAlignment: Text.AlignHCenter
        opacity: control.dimmed ? 0.6 : 1
        text: control.text
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        border.color: control.borderColor
        border.width: control.borderWidth
        color: control.down ? control.pressedColor : control.fillColor
        opacity: control.dimmed ? 0.5 : 1
        radius: control.radius
    }
}
