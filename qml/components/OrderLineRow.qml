// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// One line of the order being keyed in. With a placeholder it has a field for a remark, which
// belongs to the row and starts empty, even on a line that brought a remark along.
Rectangle {
    id: root

    required property string name
    required property string price
    required property int quantity
    required property string removeText
    property string remarkPlaceholder
    property int buttonPolicy: Qt.StrongFocus

    signal stepped(int quantity)
    signal remarkEdited(string remark)
    signal removeRequested

    radius: 4
    color: Theme.surface

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: quantity + " × " + price

    RowLayout {
        anchors.fill: parent
        anchors.margins: 6
        spacing: 6

        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: 40
            spacing: 0

            PlainLabel {
                Layout.fillWidth: true
                text: root.name
                elide: Text.ElideRight
            }

            PlainLabel {
                text: root.price
                color: Theme.secondaryText
                font.pixelSize: Theme.fontSmall
            }
        }

        QuantityStepper {
            buttonPolicy: root.buttonPolicy
            quantity: root.quantity
            label: root.name
            onStepped: quantity => root.stepped(quantity)
        }

        ThemedField {
            Layout.preferredWidth: 100
            Layout.preferredHeight: 36
            visible: root.remarkPlaceholder !== ""
            padding: 6
            placeholderText: root.remarkPlaceholder
            onTextChanged: root.remarkEdited(text)
        }

        FilledButton {
            focusPolicy: root.buttonPolicy
            text: root.removeText
            fillColor: "#ff4d4d"
            Accessible.description: root.name
            onClicked: root.removeRequested()
        }
    }
}
