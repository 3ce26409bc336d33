// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// The entries of the menu of a field to type in, made when somebody asks for it and gone when it closes.
ThemedMenu {
    id: root

    required property TextFieldMenu field

    ThemedMenuItem {
        enabled: root.field.hasSelection && !root.field.editor.readOnly
        height: visible ? implicitHeight : 0
        text: qsTr("Cut")
        visible: !root.field.isSecret
        onTriggered: root.field.perform(root.field.editor.cut)
    }
    ThemedMenuItem {
        enabled: root.field.hasSelection
        height: visible ? implicitHeight : 0
        text: qsTr("Copy")
        visible: !root.field.isSecret
        onTriggered: root.field.perform(root.field.editor.copy)
    }
    ThemedMenuItem {
        enabled: root.field.editor.canPaste && !root.field.editor.readOnly
        text: qsTr("Paste")
        onTriggered: root.field.perform(root.field.editor.paste)
    }
    ThemedMenuItem {
        enabled: root.field.editor.length > 0
        text: qsTr("Select All")
        onTriggered: root.field.perform(root.field.editor.selectAll)
    }

    onClosed: {
        root.field.close()
        destroy()
    }
}
