// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// The categories and the field for a new one. The texts belong to the page of the menu.
ColumnLayout {
    id: root

    signal deleteRequested(int categoryId, string name)

    function add(): void {
        if (newCategoryField.text === "")
            return
        // The text goes in as it stands, blanks and all; a refused one stays in the field.
        if (MenuService.addCategory(newCategoryField.text))
            newCategoryField.clear()
    }

    spacing: 12

    PageHeading {
        text: qsTranslate("AdminMenuManagement", "Categories")
    }

    ListView {
        Layout.fillHeight: true
        Layout.fillWidth: true
        clip: true
        model: MenuService.categoryModel
        reuseItems: true

        delegate: EditableCategoryRow {
            required property var model

            width: ListView.view.width
            categoryId: model.id
            name: model.name

            onDeleteRequested: (categoryId, name) => root.deleteRequested(categoryId, name)
        }
    }

    ColumnLayout {
        spacing: 8

        ThemedField {
            id: newCategoryField

            Layout.fillWidth: true
            placeholderText: qsTranslate("AdminMenuManagement", "New category name")
        }

        PrimaryButton {
            Layout.fillWidth: true
            Layout.topMargin: 15
            padding: 15
            text: qsTranslate("AdminMenuManagement", "Add Category")

            onClicked: root.add()
        }
    }
}
