// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One line of an order on a kitchen card, with its remark beneath.
Column {
    id: root

    required property var line

    PlainLabel {
        width: root.width
        text: root.line.item_name + (root.line.portion_size ? " (" + root.line.portion_size + ")" : "") + " x" + root.line.quantity
        wrapMode: Text.Wrap
    }

    PlainLabel {
        width: root.width
        visible: !!root.line.notes
        text: "- " + root.line.notes
        color: Theme.orange
        wrapMode: Text.Wrap
    }
}
