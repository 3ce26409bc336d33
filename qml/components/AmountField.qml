// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan

// A field for an amount that the store cuts to whole cents: a typed 19.99 becomes 19.98, which is
// meant. One that was shown and not touched is handed back in the middle of its cent, so that the
// cutting leaves it alone.
DecimalField {
    id: root

    property real shownAmount: 0
    property string shownText
    property bool touched: false

    function show(amount: real): void {
        root.shownAmount = amount
        root.shownText = amount.toFixed(2)
        root.text = root.shownText
        root.touched = false
    }

    function amount(): real {
        if (root.touched || root.text !== root.shownText)
            return parseFloat(root.text) || 0
        const cents = Math.round(root.shownAmount * 100)
        return (cents + 0.5 * Math.sign(cents)) / 100
    }

    onTextEdited: root.touched = true
}
