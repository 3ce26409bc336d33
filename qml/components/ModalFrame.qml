// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import "Fields.js" as Fields

// The frame of a modal dialog in the middle of the window. It takes the keys, which would otherwise
// go to the page behind it: Escape closes it, Return leads through its fields to its main button.
Popup {
    id: root

    property Item mainButton: null
    readonly property FocusReturn focusReturn: FocusReturn { owner: root }

    anchors.centerIn: Overlay.overlay
    closePolicy: Popup.CloseOnEscape
    focus: true
    modal: true
    padding: 20
    parent: Overlay.overlay

    contentItem: FocusScope {
        focus: true
        implicitHeight: children[0]?.implicitHeight ?? 0 // qmllint disable type
        implicitWidth: children[0]?.implicitWidth ?? 0 // qmllint disable type

        Keys.onPressed: event => Fields.goOn(event, root.contentItem, root.mainButton)
    }
    background: DialogSurface {}

    onAboutToShow: focusReturn.remember()
    onClosed: focusReturn.giveBack()
}
