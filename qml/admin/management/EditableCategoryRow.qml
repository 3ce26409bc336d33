// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// One category: a click selects it, a right click or a finger that is held asks for the menu of what
// can be done with it.
Rectangle {
    id: root

    property int categoryId: -1
    property string name
    property bool isEditing: false
    property string editedCategory
    property string originalCategory
    readonly property bool selected: root.categoryId === MenuService.currentCategoryId

    signal menuRequested(real x, real y)
    signal deleteRequested(int categoryId, string name)

    function startEditing(): void {
        root.originalCategory = root.name
        root.editedCategory = root.name
        root.isEditing = true
        renameField.forceActiveFocus()
        renameField.selectAll()
    }

    // Ends the editing. The new name, empty where nothing is to be renamed.
    function takeNewName(): string {
        if (!root.isEditing)
            return ""
        root.isEditing = false
        const newName = root.editedCategory.trim()
        return newName === root.originalCategory ? "" : newName
    }

    function commit(): void {
        const newName = root.takeNewName()
        if (newName !== "")
            MenuService.renameCategory(root.categoryId, newName)
    }

    // Not at once: the renaming fills the list anew, and would crash in the middle of its moving or
    // its being filled already.
    function pool(): void {
        const newName = root.takeNewName()
        if (newName !== "")
            Qt.callLater(MenuService.renameCategory, root.categoryId, newName) // qmllint disable type
    }

    function cancel(): void {
        root.editedCategory = root.originalCategory
        root.isEditing = false
    }

    function select(): void {
        MenuService.currentCategoryId = root.categoryId
    }

    function act(): void {
        root.select()
    }

    function askToDelete(): void {
        root.deleteRequested(root.categoryId, root.name)
    }

    function openMenu(): void {
        root.menuRequested(0, root.height)
    }

    height: Math.max(44, label.implicitHeight + 8)
    Accessible.name: root.name
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: root.selected
    color: root.selected ? Theme.primary() : Theme.background
    radius: 4

    NameLabel {
        id: label

        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 4
        Accessible.ignored: true
        color: root.selected ? "white" : Theme.text
        text: root.name
        verticalAlignment: Text.AlignVCenter
        visible: !root.isEditing
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        enabled: !root.isEditing
        visible: !hold.lettingGo

        onClicked: mouse => {
            if (mouse.button === Qt.RightButton)
                root.menuRequested(mouse.x, mouse.y)
            else
                root.select()
        }
    }

    HoldArea {
        id: hold

        anchors.fill: parent
        enabled: !root.isEditing

        onHeld: (x, y) => root.menuRequested(x, y)
    }

    ThemedField {
        id: renameField

        anchors.fill: parent
        label: qsTranslate("AdminMenuManagement", "Rename")
        text: root.editedCategory
        visible: root.isEditing

        Keys.onEscapePressed: root.cancel()
        onAccepted: root.commit()
        onActiveFocusChanged: {
            if (!activeFocus && !hasMenuOpen)
                root.commit()
        }
        onTextEdited: root.editedCategory = text
    }

    Accessible.onPressAction: root.select()
    ListView.onPooled: root.pool()
}
