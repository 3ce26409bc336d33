// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

// Whether a key asks for the menu that a right click opens: the menu key, and Shift+F10 for keyboards
// without one.
function isMeant(event) {
    return event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier) !== 0
}
