// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.System 1.0
import zelvan.Theme 1.0

// A line of text to type in, in the theme's colours. `label` is its name for a screen reader.
TextField {
    id: control

    property string label: placeholderText
    property color fillColor: Theme.background
    readonly property alias hasMenuOpen: contextMenu.isOpen

    Accessible.name: label
    Accessible.editable: !readOnly
    Accessible.readOnly: readOnly
    color: Theme.text
    font.pixelSize: Theme.fontNormal
    implicitHeight: 40
    padding: 10
    placeholderTextColor: Theme.secondaryText
    selectByMouse: true
    selectedTextColor: "white"
    selectionColor: Theme.primary()

    background: Rectangle {
        border.color: control.activeFocus ? Theme.primary() : Theme.border
        border.width: control.activeFocus ? 2 : 1
        color: control.fillColor
        radius: 4
    }

    TextFieldMenu {
        id: contextMenu
    }

    onActiveFocusChanged: if (!activeFocus) Typing.commit(control)
}
