// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

// What both order screens do with the list model of the lines being keyed in.

// One item never takes two lines. Answers the line's row.
function add(lines, menuItemId, name, price) {
    for (let i = 0; i < lines.count; ++i) {
        if (lines.get(i).menuItemId === menuItemId) {
            lines.setProperty(i, "qty", lines.get(i).qty + 1)
            return i
        }
    }
    lines.append({ menuItemId: menuItemId, name: name, qty: 1, price: price, notes: "" })
    return lines.count - 1
}

// The lines as the order service takes them.
function collect(lines) {
    const items = []
    for (let i = 0; i < lines.count; ++i) {
        const line = lines.get(i)
        items.push({ menuItemId: line.menuItemId, qty: line.qty, notes: line.notes })
    }
    return items
}

// A preview in currency units, in floating point and without tax.
function sums(lines) {
    const result = { subtotal: 0, quantity: 0 }
    for (let i = 0; i < lines.count; ++i) {
        const line = lines.get(i)
        result.subtotal += line.qty * line.price
        result.quantity += line.qty
    }
    return result
}
