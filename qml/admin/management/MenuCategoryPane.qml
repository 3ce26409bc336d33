// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0
import "../../components/Fields.js" as Fields

// The categories and the field for a new one. The texts belong to the page of the menu.
ColumnLayout {
    id: root

    readonly property Item startItem: newCategoryField

    signal deleteRequested(int categoryId, string name)

    function add(): void {
        if (newCategoryField.text === "")
            return
        // The text goes in as it stands, blanks and all; a refused one stays in the field.
        if (MenuService.addCategory(newCategoryField.text))
            newCategoryField.clear()
        newCategoryField.forceActiveFocus()
    }

    function startRenaming(row: int): void {
        list.positionViewAtIndex(row, ListView.Contain)
        list.itemAtIndex(row)?.startEditing()
    }

    spacing: 12

    PageHeading {
        text: qsTranslate("AdminMenuManagement", "Categories")
    }

    EditableList {
        id: list

        Layout.fillHeight: true
        Layout.fillWidth: true
        model: MenuService.categoryModel

        delegate: EditableCategoryRow {
            id: row

            required property var model

            width: list.rowWidth
            categoryId: model.id
            name: model.name

            onDeleteRequested: (categoryId, name) => root.deleteRequested(categoryId, name)
            onMenuRequested: (x, y) => {
                contextMenu.aimAt(model.index, model.id, model.name)
                contextMenu.popup(row.mapToItem(root, x, y))
            }
        }

        EmptyHint {
            parent: list
            visible: list.count === 0
            text: qsTranslate("Hints", "No categories yet. Type a name below, then press Add Category.")
        }
    }

    ColumnLayout {
        id: form

        spacing: 8

        Keys.onPressed: event => Fields.goOn(event, form, addButton)

        ThemedField {
            id: newCategoryField

            Layout.fillWidth: true
            font.pixelSize: root.width < 200 ? Theme.fontSmall : Theme.fontNormal
            padding: root.width < 200 ? 6 : 10
            placeholderText: qsTranslate("AdminMenuManagement", "New category name")
        }

        PrimaryButton {
            id: addButton

            Layout.fillWidth: true
            Layout.topMargin: 15
            padding: 15
            text: qsTranslate("AdminMenuManagement", "Add Category")

            onClicked: root.add()
        }
    }

    // Not the row's own: opening it commits a name that is typed in another row, which rebuilds all.
    ThemedMenu {
        id: contextMenu

        property int row: -1
        property int categoryId: -1
        property string name

        function aimAt(row: int, categoryId: int, name: string): void {
            contextMenu.row = row
            contextMenu.categoryId = categoryId
            contextMenu.name = name
        }

        ThemedMenuItem {
            text: qsTranslate("AdminMenuManagement", "Rename")

            onTriggered: root.startRenaming(contextMenu.row)
        }

        ThemedMenuItem {
            text: qsTranslate("AdminMenuManagement", "Delete")

            onTriggered: root.deleteRequested(contextMenu.categoryId, contextMenu.name)
        }
    }
}
