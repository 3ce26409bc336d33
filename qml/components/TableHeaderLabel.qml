// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// The title of one column over a list.
PlainLabel {
    color: Theme.secondaryText
    elide: Text.ElideRight
    font.bold: true
    font.pixelSize: Theme.fontSmall
}
