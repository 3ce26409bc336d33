// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// A whole number to step through or to type, with steps that a finger hits. `label` is its name for a
// screen reader.
SpinBox {
    id: control

    property string label
    // Of a narrow box the number keeps its part.
    readonly property real stepWidth: Math.min(40, (width - 28) / 2)

    Accessible.name: label
    editable: true
    font.pixelSize: Theme.fontNormal
    implicitHeight: 40
    // Not of its parts, as the style has it: the steps go by the width.
    implicitWidth: 120
    inputMethodHints: Qt.ImhDigitsOnly
    leftPadding: stepWidth
    rightPadding: stepWidth

    FocusRing {
        anchors.fill: parent
        radius: 4
        visible: control.activeFocus
    }

    component Step: Rectangle {
        id: step

        property alias sign: signLabel.text
        property bool pressed: false

        signal taken

        color: pressed || finger.pressed ? Theme.primary() : Theme.surface
        height: control.height - 2
        radius: 3
        width: control.stepWidth
        y: 1

        PlainLabel {
            id: signLabel

            anchors.centerIn: parent
            font.bold: true
            opacity: step.enabled ? 1 : 0.5
        }

        // The control itself misses every second one of quick taps: it takes them for double clicks.
        TapHandler {
            id: finger

            acceptedDevices: PointerDevice.TouchScreen
            gesturePolicy: TapHandler.ReleaseWithinBounds
            longPressThreshold: 0.4
            onLongPressed: repeater.start()
            onPressedChanged: if (!pressed) repeater.stop()
            onTapped: step.taken()
        }

        Timer {
            id: repeater

            interval: 120
            repeat: true
            triggeredOnStart: true
            onTriggered: step.taken()
        }
    }

    background: Rectangle {
        border.color: control.activeFocus ? Theme.primary() : Theme.secondaryText
        border.width: 1
        color: Theme.background
        implicitWidth: 120
        radius: 4
    }
    contentItem: TextInput {
        color: Theme.text
        font: control.font
        horizontalAlignment: Qt.AlignHCenter
        inputMethodHints: control.inputMethodHints
        readOnly: !control.editable
        selectedTextColor: "black"
        selectionColor: Theme.primary()
        text: control.displayText
        validator: control.validator
        verticalAlignment: Qt.AlignVCenter

        TextFieldMenu {}
    }
    down.indicator: Step {
        pressed: control.down.pressed
        sign: "-"
        x: 1

        onTaken: {
            control.decrease()
            control.valueModified()
        }
    }
    up.indicator: Step {
        pressed: control.up.pressed
        sign: "+"
        x: control.width - width - 1

        onTaken: {
            control.increase()
            control.valueModified()
        }
    }
}
