// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan.Theme 1.0

// One row of a sidebar.
Button {
    id: control

    property bool selected: false
    property color restColor: Theme.background
    property int radius: 0

    // The text as it stands: newer Qt would take its "&" for a mark and leave it out.
    Accessible.name: text
    focusPolicy: Qt.NoFocus
    font.bold: selected
    font.pixelSize: Theme.fontNormal
    hoverEnabled: false
    implicitHeight: 50
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
