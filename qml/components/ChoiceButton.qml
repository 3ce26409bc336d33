// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// One of a row of buttons of which one is chosen: an order type, a floor.
FilledButton {
    checkable: true
    autoExclusive: true
    radius: 6
    fillColor: checked ? Theme.primary() : Theme.surface
    textColor: checked ? "white" : Theme.text
    font.bold: checked
}
