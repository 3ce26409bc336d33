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
    // What was typed, kept while the field changes its place.
    property string remark
    // In a narrow row the remark stands under its dish.
    readonly property bool wide: width >= 400

    signal stepped(int quantity)
    signal remarkEdited(string remark)
    signal removeRequested

    implicitHeight: lines.implicitHeight + 12
    radius: 4
    color: Theme.surface

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: quantity + " × " + price

    Component {
        id: remarkField

        ThemedField {
            font.pixelSize: Theme.fontSmall - 1
            padding: 4
            placeholderText: root.remarkPlaceholder
            text: root.remark
            onTextChanged: {
                root.remark = text
                root.remarkEdited(text)
            }
        }
    }

    ColumnLayout {
        id: lines

        anchors.fill: parent
        anchors.margins: 6
        spacing: 4

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 6

            ColumnLayout {
                Layout.fillWidth: true
                Layout.minimumWidth: 40
                spacing: 0

                NameLabel {
                    Layout.fillWidth: true
                    text: root.name
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

            Loader {
                Layout.preferredHeight: 40
                Layout.preferredWidth: 100
                active: root.remarkPlaceholder !== "" && root.wide
                sourceComponent: remarkField
                visible: active
            }

            FilledButton {
                focusPolicy: root.buttonPolicy
                text: root.removeText
                fillColor: "#ff4d4d"
                Accessible.description: root.name
                onClicked: root.removeRequested()
            }
        }

        Loader {
            Layout.fillWidth: true
            Layout.preferredHeight: 40
            active: root.remarkPlaceholder !== "" && !root.wide
            sourceComponent: remarkField
            visible: active
        }
    }
}
