// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// An entry of a menu or of a list of choices, high enough for a finger.
MenuItem {
    id: control

    font.pixelSize: Theme.fontNormal
    implicitHeight: 40
    leftPadding: 12
    rightPadding: 12

    contentItem: PlainLabel {
        // White on the highlight is too faint to read.
        color: control.highlighted || control.down ? "black" : Theme.text
        elide: Text.ElideRight
        font: control.font
        opacity: control.enabled ? 1 : 0.6
        text: control.text
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        color: control.highlighted || control.down ? Theme.primary() : "transparent"
        implicitWidth: 200
    }
}
