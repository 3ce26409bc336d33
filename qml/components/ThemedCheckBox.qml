// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// A box to check, whose frame can be seen in light and dark mode.
CheckBox {
    id: control

    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked

    font.pixelSize: Theme.fontNormal
    // A finger's.
    implicitHeight: 40

    indicator: Rectangle {
        x: control.leftPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        border.color: Theme.secondaryText
        border.width: 1
        color: control.checked ? Theme.primary() : Theme.background
        implicitHeight: 18
        implicitWidth: 18
        opacity: control.enabled ? 1 : 0.6
        radius: 3

        Text {
            anchors.centerIn: parent
            color: "white"
            font.bold: true
            font.pixelSize: 14
            text: "✓"
            textFormat: Text.PlainText
            visible: control.checked
        }
    }

    FocusRing {
        anchors.fill: parent
        radius: 3
        visible: control.visualFocus
    }
}
