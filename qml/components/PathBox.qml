// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// A path in a box, cut in the middle where it is too long.
Rectangle {
    property alias path: label.text

    border.color: Theme.border
    border.width: 1
    color: Theme.surface
    implicitHeight: 40
    radius: 4

    PlainLabel {
        id: label

        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        elide: Text.ElideMiddle
        verticalAlignment: Text.AlignVCenter
    }
}
