// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

// What both layouts of a floor read from a row of the canvas model.

// The row's text as an object; one that does not parse counts as empty.
function metadata(text) {
    if (!text)
        return {}
    try {
        return JSON.parse(text)
    } catch (error) {
        return {}
    }
}

// The fill of a table by its status; anything else, a wall too, takes the neutral colour.
function fill(status, neutral) {
    switch (status) {
    case "occupied":
        return "#e74c3c"
    case "reserved":
        return "#f39c12"
    case "available":
        return "#66BB6A"
    default:
        return neutral
    }
}
