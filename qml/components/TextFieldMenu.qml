// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import "MenuKey.js" as MenuKey

// What a right click, a held finger or the menu key offers in a field to type in: the same on every Qt,
// whose own menu is not there on older ones and speaks but its own language on newer ones. A child of the
// field.
MouseArea {
    id: root

    // A TextField, a TextArea or a TextInput, which have no type in common that could cut and paste.
    property var editor: parent

    readonly property bool isSecret: editor.echoMode !== undefined && editor.echoMode !== TextInput.Normal
    readonly property bool hasSelection: editor.selectedText !== ""

    // While it is, the keys are the menu's and go back to the field afterwards: nobody has left the field.
    property bool isOpen: false

    function open(x: real, y: real): void {
        editor.forceActiveFocus(Qt.MouseFocusReason)
        isOpen = true
        // Not before somebody asks for it: every page with a field would wait for it.
        const menu = Qt.createComponent("FieldMenu.qml").createObject(root, { field: root }) as Menu
        menu.popup(root, x, y)
    }

    function close(): void {
        isOpen = false
        if (!root.Window.activeFocusItem || root.Window.activeFocusItem === root.Window.contentItem)
            editor.forceActiveFocus(Qt.PopupFocusReason)
    }

    // Older Qt leaves the focus nowhere, here and when it closes.
    function perform(action: var): void {
        editor.forceActiveFocus(Qt.PopupFocusReason)
        action()
    }

    acceptedButtons: Qt.RightButton
    anchors.fill: parent

    HoldArea {
        anchors.fill: parent
        onHeld: (x, y) => root.open(x, y)
    }

    Connections {
        target: root.editor.Keys

        function onPressed(event: var): void {
            if (!MenuKey.isMeant(event))
                return
            const place = root.editor.cursorRectangle
            root.open(place.x, place.y + place.height)
            event.accepted = true
        }
    }

    Component.onCompleted: {
        // Newer Qt's own menu.
        if (root.editor.ContextMenu !== undefined)
            root.editor.ContextMenu.menu = null
    }
    onPressed: mouse => root.open(mouse.x, mouse.y)
}
