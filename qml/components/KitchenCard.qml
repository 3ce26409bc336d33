// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// One order on the kitchen board, as high as its lines need.
Rectangle {
    id: root

    required property var order
    required property string noteTitle
    required property string actionText
    // The button takes no press for a moment, and looks as ever.
    property bool resting: false

    signal acted

    // All that the card shows below its number.
    function spoken(): string {
        const lines = root.order.items.map(line => [line.item_name, line.portion_size, "x" + line.quantity, line.notes])
        const head = [(root.order.order_type ?? "").toUpperCase(), root.order.table_name]
        return head.concat(...lines, [root.order.notes]).filter(text => !!text).join(", ")
    }

    implicitHeight: content.implicitHeight + 24
    radius: 6
    color: Theme.surface

    Accessible.role: Accessible.ListItem
    Accessible.name: "#" + order.display_number
    Accessible.description: spoken()

    ColumnLayout {
        id: content

        anchors.fill: parent
        anchors.margins: 12
        spacing: 8

        RowLayout {
            Layout.fillWidth: true
            spacing: 8

            PlainLabel {
                text: "#" + root.order.display_number
                font.bold: true
                font.pixelSize: Theme.fontLarge
            }

            PlainLabel {
                text: (root.order.order_type ?? "").toUpperCase()
            }

            Item {
                Layout.fillWidth: true
            }

            // The word before the name is English in every language.
            NameLabel {
                Layout.fillWidth: true
                Layout.maximumWidth: root.width / 2
                horizontalAlignment: Text.AlignRight
                lead: 6
                visible: (root.order.table_name ?? null) !== null
                text: "Table " + root.order.table_name
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 4

            Repeater {
                model: root.order.items

                KitchenCardLine {
                    required property var modelData

                    Layout.fillWidth: true
                    line: modelData
                }
            }
        }

        PlainLabel {
            Layout.fillWidth: true
            visible: !!root.order.notes
            text: root.noteTitle + root.order.notes
            color: Theme.orange
            wrapMode: Text.Wrap
        }

        PrimaryButton {
            Layout.fillWidth: true
            Layout.preferredHeight: 38
            dimmed: false
            enabled: !root.resting
            text: root.actionText
            Accessible.description: "#" + root.order.display_number
            onClicked: root.acted()
        }
    }
}
