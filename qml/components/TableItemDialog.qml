// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// Asks for the label, the seats and the shape of a new table. The values stay for the next opening.
ModalFrame {
    id: root

    required property string title
    required property string labelTitle
    required property string labelPlaceholder
    required property string startLabel
    required property string seatsTitle
    required property string typeTitle
    // Entries `{ text, value }`.
    required property var types
    required property string confirmText
    required property string cancelText

    signal confirmed(string label, int seats, string tableType)

    mainButton: buttons.acceptButton
    padding: 16
    width: 360
    height: 320

    ColumnLayout {
        anchors.fill: parent
        spacing: 3

        PageHeading {
            text: root.title
        }

        PlainLabel {
            text: root.labelTitle
        }

        ThemedField {
            id: labelField

            Layout.fillWidth: true
            label: root.labelTitle
            placeholderText: root.labelPlaceholder
            text: root.startLabel
        }

        PlainLabel {
            text: root.seatsTitle
        }

        ThemedSpinBox {
            id: seatsBox

            Layout.fillWidth: true
            from: 1
            to: 20
            value: 4
            label: root.seatsTitle
        }

        PlainLabel {
            text: root.typeTitle
        }

        ThemedComboBox {
            id: typeBox

            Layout.fillWidth: true
            label: root.typeTitle
            model: root.types
        }

        DialogButtons {
            id: buttons

            Layout.fillWidth: true
            acceptText: root.confirmText
            cancelText: root.cancelText
            onAccepted: {
                root.confirmed(labelField.text, seatsBox.value, root.types[typeBox.currentIndex].value)
                root.close()
            }
            onCancelled: root.close()
        }
    }

    onAboutToShow: labelField.forceActiveFocus()
}
