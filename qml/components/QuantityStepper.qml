// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// "-", the quantity and "+" of an order line. A quantity never falls below 1: removing a line is
// an act of its own.
RowLayout {
    id: root

    required property int quantity
    // The line's name, for a screen reader.
    required property string label
    property int buttonPolicy: Qt.StrongFocus

    signal stepped(int quantity)

    spacing: 4

    FilledButton {
        Layout.preferredWidth: 28
        Layout.preferredHeight: 28
        enabled: root.quantity > 1
        focusPolicy: root.buttonPolicy
        padding: 0
        text: "-"
        fillColor: Theme.background
        textColor: Theme.text
        borderColor: Theme.border
        Accessible.description: root.label
        onClicked: root.stepped(root.quantity - 1)
    }

    PlainLabel {
        Layout.preferredWidth: 24
        horizontalAlignment: Text.AlignHCenter
        text: root.quantity
    }

    FilledButton {
        Layout.preferredWidth: 28
        Layout.preferredHeight: 28
        focusPolicy: root.buttonPolicy
        padding: 0
        text: "+"
        fillColor: Theme.background
        textColor: Theme.text
        borderColor: Theme.border
        Accessible.description: root.label
        onClicked: root.stepped(root.quantity + 1)
    }
}
