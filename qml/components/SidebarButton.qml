// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One row of a sidebar.
PlainButton {
    id: control

    property bool selected: false
    property color restColor: Theme.background

    Accessible.selectable: true
    Accessible.selected: selected
    font.bold: selected
    minimumHeight: 50
    radius: 0
    // Narrow, so that the longest page name stands whole in its bold.
    leftPadding: 4
    rightPadding: 4

    contentItem: Text {
        color: control.selected ? "white" : control.enabled ? Theme.text : Theme.secondaryText
        elide: Text.ElideRight
        font: control.font
        horizontalAlignment: Text.AlignHCenter
        text: control.text
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        color: control.selected ? Theme.primary() : control.restColor
        radius: control.radius
    }
}
