// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// One table, edited in place.
Rectangle {
    id: root

    property int tableId: -1
    property string name
    property int capacity
    readonly property string originalName: root.name
    readonly property int originalCapacity: root.capacity
    property RowDrafts drafts
    property bool isEditing: false
    property string editedName
    property int editedCapacity

    signal deleteRequested(int tableId, string name)

    function startEditing(): void {
        root.editedName = root.originalName
        // A capacity above 20 does not survive the editing; that is meant.
        root.editedCapacity = Math.max(capacityBox.from, Math.min(root.originalCapacity, capacityBox.to))
        root.isEditing = true
        nameField.forceActiveFocus()
    }

    function commitEdit(): void {
        // First, since the editing rebuilds the rows. Whatever the answer, the editing is over.
        root.isEditing = false
        const changed = root.editedName !== root.originalName || root.editedCapacity !== root.originalCapacity
        if (root.editedName.trim() !== "" && changed)
            TableService.editTable(root.tableId, root.editedName, root.editedCapacity)
    }

    function cancelEdit(): void {
        root.editedName = root.originalName
        root.editedCapacity = root.originalCapacity
        root.isEditing = false
    }

    function hearKey(event: var, act: var): void {
        event.accepted = root.isEditing
        if (root.isEditing)
            act()
    }

    function act(): void {
        root.startEditing()
    }

    function askToDelete(): void {
        root.deleteRequested(root.tableId, root.name)
    }

    function pool(): void {
        if (root.isEditing)
            root.drafts.put(root.tableId, [root.editedName, root.editedCapacity])
        root.isEditing = false
    }

    function reuse(): void {
        const draft = root.drafts?.take(root.tableId)
        if (draft === undefined)
            return;
        [root.editedName, root.editedCapacity] = draft
        root.isEditing = true
    }

    height: Math.max(44, nameLabel.implicitHeight + 8)
    Accessible.name: root.name
    Accessible.description: root.capacity
    Accessible.role: Accessible.ListItem
    border.color: Theme.surface
    color: Theme.background
    radius: 4

    // In the name as in the capacity: Return saves, Escape leaves the row as it was.
    Keys.onEnterPressed: event => root.hearKey(event, root.commitEdit)
    Keys.onEscapePressed: event => root.hearKey(event, root.cancelEdit)
    Keys.onReturnPressed: event => root.hearKey(event, root.commitEdit)

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        spacing: 10

        NameLabel {
            id: nameLabel

            Layout.fillWidth: true
            Layout.preferredWidth: 0
            text: root.name
            visible: !root.isEditing
        }

        ThemedField {
            id: nameField

            Layout.fillWidth: true
            Layout.preferredWidth: 0
            fillColor: activeFocus ? Theme.surface : Theme.background
            label: qsTranslate("AdminTableManagement", "Table Name")
            padding: 6
            text: root.editedName
            visible: root.isEditing

            onTextEdited: root.editedName = text
        }

        PlainLabel {
            Layout.preferredWidth: 80
            color: Theme.secondaryText
            text: root.capacity
            visible: !root.isEditing
        }

        ThemedSpinBox {
            id: capacityBox

            Layout.preferredWidth: 80
            label: qsTranslate("AdminTableManagement", "Capacity")
            from: 1
            to: 20
            value: root.editedCapacity
            visible: root.isEditing

            onValueModified: root.editedCapacity = value
        }

        RowLayout {
            Layout.maximumWidth: 150
            Layout.minimumWidth: 150
            spacing: 6

            Item {
                Layout.fillWidth: true
            }

            RowButton {
                Accessible.description: root.name
                fillColor: Theme.primary()
                text: root.isEditing ? qsTranslate("AdminTableManagement", "Save")
                                     : qsTranslate("AdminTableManagement", "Edit")

                onClicked: root.isEditing ? root.commitEdit() : root.startEditing()
            }

            RowButton {
                Accessible.description: root.name
                fillColor: "red"
                text: qsTranslate("AdminTableManagement", "Delete")

                onClicked: root.deleteRequested(root.tableId, root.name)
            }
        }
    }

    ListView.onPooled: root.pool()
    ListView.onReused: root.reuse()
    Component.onCompleted: root.reuse()
}
