// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan
import zelvan.Theme 1.0

// The program's version, as the setup and login screens show it.
PlainLabel {
    font.pixelSize: Theme.fontSmall
    text: "v0.3.0"
}
