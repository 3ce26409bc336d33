// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// Asks for the name of a new floor. The field keeps its text to the next opening; an empty name is
// accepted.
ModalFrame {
    id: root

    required property string title
    required property string label
    required property string placeholder
    required property string confirmText
    required property string cancelText

    signal confirmed(string name)

    function confirm() {
        root.confirmed(nameField.text)
        root.close()
    }

    mainButton: buttons.acceptButton
    width: 360
    height: 260

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        PageHeading {
            text: root.title
        }

        LabelledField {
            id: nameField

            Layout.fillWidth: true
            label: root.label
            placeholderText: root.placeholder
        }

        Item {
            Layout.fillHeight: true
        }

        DialogButtons {
            id: buttons

            Layout.fillWidth: true
            acceptText: root.confirmText
            cancelText: root.cancelText
            onAccepted: root.confirm()
            onCancelled: root.close()
        }
    }

    onAboutToShow: nameField.input.forceActiveFocus()
}
