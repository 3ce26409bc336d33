// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import "../../components/Fields.js" as Fields

// The block that adds an item to the selected category. The texts belong to the page of the menu.
ColumnLayout {
    id: root

    readonly property Item startItem: nameField
    property bool narrow: false

    function add(): void {
        const name = nameField.text.trim()
        const portion = portionField.text.trim()
        if (name === "" || priceField.text === "" || MenuService.currentCategoryId === -1)
            return
        const price = parseFloat(priceField.text)
        MenuService.addMenuItem(name, MenuService.currentCategoryId, isNaN(price) || price < 0 ? 0 : price,
                                availableBox.checked, taxableBox.checked, portion)
        // Whatever the answer.
        nameField.clear()
        priceField.clear()
        portionField.clear()
        availableBox.checked = true
        taxableBox.checked = true
        nameField.forceActiveFocus()
    }

    spacing: 8

    Keys.onPressed: event => Fields.goOn(event, root, addButton)

    // On a small screen the boxes stand under the fields.
    GridLayout {
        Layout.fillWidth: true
        columnSpacing: 8
        columns: root.narrow ? 3 : 5
        rowSpacing: 0

        ThemedField {
            id: nameField

            Layout.fillWidth: true
            Layout.minimumWidth: 80
            placeholderText: qsTranslate("AdminMenuManagement", "Item name")
        }

        PointField {
            id: priceField

            Layout.fillWidth: true
            Layout.maximumWidth: root.narrow ? 110 : 200
            Layout.minimumWidth: 80
            Layout.preferredWidth: 200
            placeholderText: qsTranslate("AdminMenuManagement", "Price")
        }

        ThemedField {
            id: portionField

            Layout.fillWidth: true
            Layout.maximumWidth: root.narrow ? 170 : 150
            Layout.minimumWidth: root.narrow ? 170 : 80
            Layout.preferredWidth: 150
            placeholderText: qsTranslate("AdminMenuManagement", "Portion (optional)")
        }

        ThemedCheckBox {
            id: availableBox

            checked: true
            text: qsTranslate("AdminMenuManagement", "Available")
        }

        ThemedCheckBox {
            id: taxableBox

            checked: true
            text: qsTranslate("AdminMenuManagement", "Taxable")
        }
    }

    PrimaryButton {
        id: addButton

        Layout.fillWidth: true
        Layout.topMargin: 15
        padding: 15
        text: qsTranslate("AdminMenuManagement", "Add Menu Item")

        onClicked: root.add()
    }
}
