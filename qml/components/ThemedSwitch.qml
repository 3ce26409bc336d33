// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// An on-off switch that can be told apart in light and dark mode.
Switch {
    id: control

    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked

    focusPolicy: Qt.TabFocus
    hoverEnabled: false
    // A finger's.
    implicitHeight: 40

    indicator: Rectangle {
        x: control.leftPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        border.color: control.checked ? Theme.primary() : Theme.secondaryText
        border.width: 1
        color: control.checked ? Theme.primary() : Theme.surface
        implicitHeight: 22
        implicitWidth: 42
        radius: 11

        Rectangle {
            x: control.checked ? parent.width - width - 3 : 3
            anchors.verticalCenter: parent.verticalCenter
            color: control.checked ? "white" : Theme.secondaryText
            height: 16
            radius: 8
            width: 16
        }
    }

    FocusRing {
        anchors.fill: parent
        radius: 3
        visible: control.visualFocus
    }
}
