// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan.Theme 1.0

// What a field to type in lies on. The line within its border is what can be seen of its edge while the field
// has no focus.
Rectangle {
    id: root

    property bool focused: false

    border.color: focused ? Theme.primary() : Theme.border
    border.width: focused ? 2 : 1
    color: Theme.background
    radius: 4

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        border.color: Theme.secondaryText
        border.width: 1
        color: "transparent"
        radius: 3
        visible: !root.focused
    }
}
