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
    // Its name for a screen reader.
    property string label

    // Heard and reached through what lies over it: the column has no role of its own to be given.
    Accessible.ignored: true
    activeFocusOnTab: false
    wrap: false
    visibleItemCount: 5

    background: Rectangle {
        color: Theme.surface
        radius: 6
        border.width: 1
        border.color: Theme.border
    }

    Item {
        id: speaker

        readonly property int value: root.first + root.currentIndex * root.step

        function turn(steps: int): void {
            root.currentIndex = Math.max(0, Math.min(root.count - 1, root.currentIndex + steps))
        }

        anchors.fill: parent
        z: 1
        activeFocusOnTab: true

        Accessible.role: Accessible.SpinBox
        Accessible.name: root.label
        Accessible.description: String(value).padStart(2, "0")
        Accessible.focusable: true
        Accessible.onDecreaseAction: turn(-1)
        Accessible.onIncreaseAction: turn(1)
        Keys.onDownPressed: turn(1)
        Keys.onUpPressed: turn(-1)

        FocusRing {
            anchors.fill: parent
            radius: 6
            visible: speaker.activeFocus
        }

        // Turns to the number that is tapped. A tap on a column that runs on only stops it.
        TapHandler {
            enabled: !root.moving
            onTapped: eventPoint => {
                const beside = eventPoint.position.y - speaker.height / 2
                speaker.turn(Math.round(beside * root.visibleItemCount / speaker.height))
            }
        }
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
