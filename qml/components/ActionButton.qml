// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan

// A larger action in the body of a page.
FilledButton {
    bottomPadding: 10
    leftPadding: 20
    rightPadding: 20
    topPadding: 10
}
