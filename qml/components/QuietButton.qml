// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// A flat way out of a setup screen.
PlainButton {
    id: control

    flat: true

    contentItem: Text {
        color: Theme.secondaryText
        font: control.font
        opacity: control.enabled ? 1 : 0.5
        text: control.text
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
    }
}
