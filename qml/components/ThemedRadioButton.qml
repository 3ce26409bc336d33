// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// One of several to choose from, whose ring can be seen in light and dark mode.
RadioButton {
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
        border.color: control.checked ? Theme.primary() : Theme.secondaryText
        border.width: 2
        color: Theme.background
        implicitHeight: 18
        implicitWidth: 18
        radius: 9

        Rectangle {
            anchors.centerIn: parent
            color: Theme.primary()
            height: 8
            radius: 4
            visible: control.checked
            width: 8
        }
    }

    FocusRing {
        anchors.fill: parent
        radius: 3
        visible: control.visualFocus
    }
}
