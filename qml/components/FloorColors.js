// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

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
