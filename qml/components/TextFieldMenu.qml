// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import "MenuKey.js" as MenuKey

// What a right click or the menu key offers in a field to type in: the same on every Qt, whose own menu is
// not there on older ones and speaks but its own language on newer ones. A child of the field.
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
        const menu = menuOfField.createObject(root) as Menu
        menu.popup(root, x, y)
    }

    // Older Qt leaves the focus nowhere, here and when it closes.
    function perform(action: var): void {
        editor.forceActiveFocus(Qt.PopupFocusReason)
        action()
    }

    acceptedButtons: Qt.RightButton
    anchors.fill: parent

    Component {
        id: menuOfField

        ThemedMenu {
            ThemedMenuItem {
                enabled: root.hasSelection && !root.editor.readOnly
                height: visible ? implicitHeight : 0
                text: qsTr("Cut")
                visible: !root.isSecret
                onTriggered: root.perform(root.editor.cut)
            }
            ThemedMenuItem {
                enabled: root.hasSelection
                height: visible ? implicitHeight : 0
                text: qsTr("Copy")
                visible: !root.isSecret
                onTriggered: root.perform(root.editor.copy)
            }
            ThemedMenuItem {
                enabled: root.editor.canPaste && !root.editor.readOnly
                text: qsTr("Paste")
                onTriggered: root.perform(root.editor.paste)
            }
            ThemedMenuItem {
                enabled: root.editor.length > 0
                text: qsTr("Select All")
                onTriggered: root.perform(root.editor.selectAll)
            }

            onClosed: {
                root.isOpen = false
                if (!root.Window.activeFocusItem || root.Window.activeFocusItem === root.Window.contentItem)
                    root.editor.forceActiveFocus(Qt.PopupFocusReason)
                destroy()
            }
        }
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
