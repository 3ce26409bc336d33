// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// What the order being keyed in comes to. The captions are the screen's, so that they are
// translated with it; the amounts are in currency units.
ColumnLayout {
    id: root

    required property string itemsCaption
    required property string subtotalCaption
    required property string totalCaption
    required property int totalItems
    required property real subtotal
    required property real total
    required property string currencySymbol

    Layout.fillWidth: true

    FigureRow {
        caption: root.itemsCaption
        figure: root.totalItems
    }

    FigureRow {
        caption: root.subtotalCaption
        figure: root.currencySymbol + root.subtotal.toFixed(2)
    }

    FigureRow {
        caption: root.totalCaption
        figure: root.currencySymbol + root.total.toFixed(2)
    }
}
