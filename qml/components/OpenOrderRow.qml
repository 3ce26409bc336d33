// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One open order to take up again. Its texts are English in every language.
Rectangle {
    id: root

    required property var order

    signal clicked

    implicitHeight: 75
    radius: 4
    color: Theme.surface

    Accessible.role: Accessible.ListItem
    Accessible.name: title.text
    Accessible.description: [status.text, table.visible ? table.text : ""].filter(text => text !== "").join(", ") // qmllint disable type
    Accessible.onPressAction: root.clicked()

    Column {
        anchors.fill: parent
        anchors.margins: 6

        PlainLabel {
            id: title

            text: "Order #" + root.order.display_number + " (" + root.order.type + ")"
            font.bold: true
        }

        PlainLabel {
            id: status

            text: "Status: " + root.order.status
            font.pixelSize: Theme.fontSmall
        }

        PlainLabel {
            id: table

            width: parent.width
            visible: !!root.order.table_name
            text: "Table: " + root.order.table_name
            font.pixelSize: Theme.fontSmall
            elide: Text.ElideRight
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.clicked()
    }
}
