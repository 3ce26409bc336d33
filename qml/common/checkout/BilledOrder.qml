// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// One order of a bill: its number, with a mark whether it is served, and the table of its lines.
// The texts belong to the checkout screen and are translated with it.
ColumnLayout {
    id: root

    required property var order
    property bool showsMark: false
    readonly property bool served: String(order.status).trim().toLowerCase() === "served"

    spacing: 6

    component HeaderCell: PlainLabel {
        Layout.preferredWidth: 80
        font.bold: true
        font.pixelSize: Theme.fontSmall
        horizontalAlignment: Text.AlignRight
    }

    RowLayout {
        Layout.fillWidth: true

        PlainLabel {
            Layout.fillWidth: true
            text: qsTranslate("Checkout", "Order ") + root.order.display_number
            color: "#9f9fff"
            font.bold: true
        }

        PlainLabel {
            visible: root.showsMark
            text: root.served ? qsTranslate("Checkout", "SERVED") : qsTranslate("Checkout", "PENDING")
            color: root.served ? Theme.green : Theme.orange
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: 8

        HeaderCell {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignLeft
            text: qsTranslate("Checkout", "Item")
            elide: Text.ElideRight
        }

        HeaderCell {
            Layout.preferredWidth: 60
            text: qsTranslate("Checkout", "Qty")
        }

        HeaderCell {
            text: qsTranslate("Checkout", "Unit")
        }

        HeaderCell {
            text: qsTranslate("Checkout", "Total")
        }
    }

    Repeater {
        model: root.order.items

        BilledLine {
            required property var modelData

            Layout.fillWidth: true
            Layout.preferredHeight: Math.max(32, implicitHeight)
            line: modelData
        }
    }
}
