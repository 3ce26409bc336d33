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
    property bool cleaning: false

    // A line takes no line breaks and no other control characters, typed or pasted: a break becomes a
    // blank, and all others go. Where they stand, so that the cursor and what can be undone stay.
    function keepOneLine(): void {
        const unfit = /[\u0000-\u001f\u007f-\u009f\u2028\u2029]+/
        if (cleaning)
            return
        cleaning = true
        for (let run = unfit.exec(text); run; run = unfit.exec(text)) {
            const start = run.index
            const breaksLine = /[\n-\r\u0085\u2028\u2029]/.test(run[0])
            control.remove(start, start + run[0].length)
            if (breaksLine)
                control.insert(start, " ")
        }
        cleaning = false
    }

    Accessible.name: label
    Accessible.editable: !readOnly
    Accessible.readOnly: readOnly
    color: Theme.text
    font.pixelSize: Theme.fontNormal
    implicitHeight: 40
    padding: 10
    placeholderTextColor: Theme.secondaryText
    selectByMouse: true
    // White on the highlight is too faint to read.
    selectedTextColor: "black"
    selectionColor: Theme.primary()

    onTextChanged: keepOneLine()

    background: FieldSurface {
        color: control.fillColor
        focused: control.activeFocus
    }

    TextFieldMenu {
        id: contextMenu
    }

    onActiveFocusChanged: if (!activeFocus) Typing.commit(control)
}
