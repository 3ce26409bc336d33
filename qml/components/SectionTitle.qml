// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan
import zelvan.Theme 1.0

// The bold, quieter line over a group of rows.
PlainLabel {
    color: Theme.secondaryText
    font.bold: true
}
