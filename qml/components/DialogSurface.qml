// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan.Theme 1.0

// What a dialog lies on. The line around its border is what can be seen of its edge on a dark screen.
Rectangle {
    id: root

    border.color: Theme.border
    border.width: 1
    color: Theme.background
    radius: 8

    Rectangle {
        anchors.fill: parent
        anchors.margins: -1
        border.color: Theme.secondaryText
        border.width: 1
        color: "transparent"
        radius: root.radius + 1
    }
}
