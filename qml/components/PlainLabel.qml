// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan.Theme 1.0

// Any text on a screen. Never reads markup, so that what people typed is shown as they typed it.
Label {
    color: Theme.text
    font.pixelSize: Theme.fontNormal
    textFormat: Text.PlainText
}
