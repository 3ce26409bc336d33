// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// The lines of the order being keyed in. The texts are the screen's, so that they are translated
// with it; without a placeholder for remarks the lines have no field for one.
ScrollingList {
    id: root

    required property ListModel lines
    required property string title
    required property string currencySymbol
    required property int rowHeight
    required property string removeText
    property string remarkPlaceholder
    // Qt.NoFocus where the buttons of the screen leave the focus where it is.
    property int buttonPolicy: Qt.StrongFocus

    // A line that was just added or counted up comes into view.
    function showLine(row: int): void {
        forceLayout()
        positionViewAtIndex(row, ListView.Contain)
    }

    reuseItems: false
    // Far rows stay made, so that a remark typed into one is still shown there.
    cacheBuffer: 4000
    model: lines

    Accessible.role: Accessible.List
    Accessible.name: title

    SlideGuard {
        id: slideGuard
    }

    EmptyHint {
        parent: root
        visible: root.count === 0
        text: qsTranslate("Hints", "Choose a category, then press Add beside a dish.")
    }

    delegate: OrderLineRow {
        required property var model

        width: root.rowWidth
        height: Math.max(root.rowHeight, implicitHeight)
        name: model.name
        price: root.currencySymbol + model.price.toFixed(2)
        quantity: model.qty
        removeText: root.removeText
        buttonPolicy: root.buttonPolicy
        remarkPlaceholder: root.remarkPlaceholder
        onStepped: quantity => root.lines.setProperty(model.index, "qty", quantity)
        onRemarkEdited: remark => root.lines.setProperty(model.index, "notes", remark)
        onRemoveRequested: {
            if (slideGuard.running)
                return
            slideGuard.restart()
            root.lines.remove(model.index)
        }
    }
}
