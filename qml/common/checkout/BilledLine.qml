// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// One line of an order on a bill.
RowLayout {
    id: root

    required property var line

    spacing: 8

    component FigureCell: PlainLabel {
        Layout.preferredWidth: 80
        horizontalAlignment: Text.AlignRight
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: 6

        PlainLabel {
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth) + 1
            text: root.line.item_name + (root.line.portion_size ? " (" + root.line.portion_size + ")" : "")
            elide: Text.ElideRight
        }

        PlainLabel {
            Layout.fillWidth: true
            visible: !!root.line.notes
            text: "(" + root.line.notes + ")"
            color: Theme.orange
            font.pixelSize: Theme.fontSmall
            elide: Text.ElideRight
        }

        // Pushes the name to the left.
        Item {
            Layout.fillWidth: true
            Layout.maximumHeight: 1
            visible: !root.line.notes
        }
    }

    FigureCell {
        Layout.preferredWidth: 60
        text: "x" + root.line.quantity
    }

    FigureCell {
        text: root.line.unit_price.toFixed(2)
    }

    FigureCell {
        text: root.line.total_price.toFixed(2)
    }
}
