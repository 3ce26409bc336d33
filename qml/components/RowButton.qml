// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan
import zelvan.Theme 1.0

// A small action in a row of a list.
FilledButton {
    bottomPadding: 5
    font.bold: false
    font.pixelSize: Theme.fontSmall
    leftPadding: 15
    minimumHeight: 0
    rightPadding: 15
    topPadding: 5
}
