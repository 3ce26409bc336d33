// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan.Theme 1.0

// What menus and lists of choices lie on: told apart from the page in light and dark mode.
Rectangle {
    border.color: Theme.secondaryText
    border.width: 1
    color: Theme.surface
    radius: 4
}
