// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// One turning column of the time picker: numbers of two digits that fade away from the middle.
Tumbler {
    id: root

    property int first: 0
    property int step: 1

    wrap: false
    visibleItemCount: 5

    background: Rectangle {
        color: Theme.surface
        radius: 6
        border.width: 1
        border.color: Theme.border
    }

    delegate: PlainLabel {
        required property int index

        height: 48
        text: String(root.first + index * root.step).padStart(2, "0")
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: Theme.fontLarge
        opacity: 1 - Math.abs(Tumbler.displacement) * 0.6
        scale: 1 - Math.abs(Tumbler.displacement) * 0.12
    }
}
