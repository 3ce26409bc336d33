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

    // Placed by hand, since a layout that is given less room than before does not always follow.
    Item {
        id: dish

        readonly property real gap: 6
        readonly property bool noted: !!root.line.notes
        readonly property real room: root.width - 244 - gap
        // A remark stands beside its dish where both show their beginnings, else under it.
        readonly property bool beside: noted && room >= nameLabel.leastWidth + remarkLabel.leastWidth
        readonly property real share: room * nameText.advanceWidth / (nameText.advanceWidth + remarkText.advanceWidth)
        readonly property real nameWidth: beside ? Math.min(Math.ceil(nameText.advanceWidth) + 2, Math.max(nameLabel.leastWidth, Math.min(share, room - remarkLabel.leastWidth), room - remarkText.advanceWidth)) : width

        Layout.fillWidth: true
        implicitHeight: beside ? Math.max(nameLabel.implicitHeight, remarkLabel.implicitHeight) : nameLabel.implicitHeight + (noted ? remarkLabel.implicitHeight : 0)

        TextMetrics {
            id: nameText

            font: nameLabel.font
            text: nameLabel.text
        }

        TextMetrics {
            id: remarkText

            font: remarkLabel.font
            text: remarkLabel.text
        }

        NameLabel {
            id: nameLabel

            y: dish.beside ? (dish.height - height) / 2 : 0
            width: dish.nameWidth
            text: root.line.item_name + (root.line.portion_size ? " (" + root.line.portion_size + ")" : "")
        }

        NameLabel {
            id: remarkLabel

            x: dish.beside ? nameLabel.width + dish.gap : 0
            y: dish.beside ? (dish.height - height) / 2 : nameLabel.height
            width: dish.width - x
            visible: dish.noted
            lead: 1
            text: "(" + root.line.notes + ")"
            color: Theme.orange
            font.pixelSize: Theme.fontSmall
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
