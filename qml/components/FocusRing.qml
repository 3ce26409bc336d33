// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan.Theme 1.0

// Where the keys go. Its two lines have the theme's opposite colours, so one of them stands out from
// whatever they are drawn on.
Rectangle {
    id: root

    border.color: Theme.text
    border.width: 2
    color: "transparent"
    z: 2

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        border.color: Theme.background
        border.width: 2
        color: "transparent"
        radius: Math.max(0, root.radius - 2)
    }
}
