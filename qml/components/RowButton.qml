// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan

// A small action in a row of a list.
FilledButton {
    bottomPadding: 5
    leftPadding: 15
    rightPadding: 15
    topPadding: 5
}
