// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan.Theme 1.0

// The frame of a modal dialog in the middle of the window. It takes the keys, which would otherwise
// go to the page behind it.
Popup {
    anchors.centerIn: Overlay.overlay
    closePolicy: Popup.NoAutoClose
    focus: true
    modal: true
    padding: 20
    parent: Overlay.overlay

    background: Rectangle {
        border.color: Theme.border
        border.width: 1
        color: Theme.background
        radius: 8
    }
}
