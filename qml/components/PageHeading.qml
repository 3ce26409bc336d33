// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan
import zelvan.Theme 1.0

// The bold line at the top of a page.
PlainLabel {
    font.bold: true
    font.pixelSize: Theme.fontLarge
}
