// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0
import "../../components/Fields.js" as Fields

// One item of the menu, edited in place.
Rectangle {
    id: root

    property int itemId: -1
    property string item
    property real price
    property string portion
    property bool available
    property bool taxable
    property string currencySymbol
    property RowDrafts drafts
    property bool isEditing: false
    property string editedName
    property string editedPrice
    property string editedPortion
    property bool editedAvailable
    property bool editedTaxable

    signal deleteRequested(int itemId, string name)

    function startEditing(): void {
        root.editedName = root.item
        root.editedPrice = root.price.toFixed(2)
        root.editedPortion = root.portion
        root.editedAvailable = root.available
        root.editedTaxable = root.taxable
        root.isEditing = true
        nameField.forceActiveFocus()
    }

    function cancel(): void {
        root.isEditing = false
    }

    function save(): void {
        const name = root.editedName.trim()
        if (name === "")
            return
        // A price that is none becomes zero without a word; that is meant.
        let price = parseFloat(root.editedPrice)
        if (isNaN(price) || price < 0) {
            price = 0
            root.editedPrice = "0.00"
        }
        // First, since the saving rebuilds the rows.
        root.isEditing = false
        const saved = MenuService.editMenuItem(root.itemId, name, MenuService.currentCategoryId, price,
                                               root.editedAvailable, root.editedTaxable,
                                               root.editedPortion.trim())
        if (!saved)
            root.isEditing = true
    }

    function act(): void {
        root.startEditing()
    }

    function askToDelete(): void {
        root.deleteRequested(root.itemId, root.item)
    }

    function pool(): void {
        if (root.isEditing)
            root.drafts.put(root.itemId, [root.editedName, root.editedPrice, root.editedPortion,
                                            root.editedAvailable, root.editedTaxable])
        root.isEditing = false
    }

    function reuse(): void {
        const draft = root.drafts?.take(root.itemId)
        if (draft === undefined)
            return;
        [root.editedName, root.editedPrice, root.editedPortion, root.editedAvailable, root.editedTaxable] = draft
        root.isEditing = true
    }

    height: 44
    Accessible.name: root.item
    Accessible.description: root.currencySymbol + root.price.toFixed(2) + ", " + (root.portion || "-")
    Accessible.role: Accessible.ListItem
    border.color: Theme.surface
    color: Theme.background
    radius: 4

    Keys.onEscapePressed: event => {
        event.accepted = root.isEditing
        root.cancel()
    }
    Keys.onPressed: event => {
        if (root.isEditing)
            Fields.goOn(event, root, saveButton)
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        spacing: 12

        PlainLabel {
            Layout.fillWidth: true
            Layout.minimumWidth: 80
            Layout.preferredWidth: 200
            elide: Text.ElideRight
            text: root.item
            visible: !root.isEditing
        }

        ThemedField {
            id: nameField

            Layout.fillWidth: true
            Layout.preferredHeight: 40
            Layout.minimumWidth: 80
            Layout.preferredWidth: 200
            padding: 6
            placeholderText: qsTranslate("AdminMenuManagement", "Item Name")
            text: root.editedName
            visible: root.isEditing

            onTextEdited: root.editedName = text
        }

        PriceLabel {
            Layout.preferredWidth: 90
            horizontalAlignment: Text.AlignRight
            text: root.currencySymbol + root.price.toFixed(2)
            visible: !root.isEditing
        }

        PointField {
            Layout.preferredHeight: 40
            Layout.preferredWidth: 90
            horizontalAlignment: TextInput.AlignRight
            padding: 6
            placeholderText: qsTranslate("AdminMenuManagement", "Price")
            text: root.editedPrice
            visible: root.isEditing

            onTextEdited: root.editedPrice = text
        }

        PlainLabel {
            Layout.fillWidth: true
            Layout.maximumWidth: 120
            Layout.minimumWidth: 50
            Layout.preferredWidth: 120
            elide: Text.ElideRight
            text: root.portion === "" ? "-" : root.portion
            visible: !root.isEditing
        }

        ThemedField {
            Layout.preferredHeight: 40
            Layout.fillWidth: true
            Layout.maximumWidth: 120
            Layout.minimumWidth: 50
            Layout.preferredWidth: 120
            padding: 6
            placeholderText: qsTranslate("AdminMenuManagement", "Portion")
            text: root.editedPortion
            visible: root.isEditing

            onTextEdited: root.editedPortion = text
        }

        ThemedCheckBox {
            Layout.fillWidth: true
            Layout.maximumWidth: 100
            Layout.minimumWidth: 60
            Layout.preferredWidth: 100
            Accessible.name: qsTranslate("AdminMenuManagement", "Available")
            checked: root.isEditing ? root.editedAvailable : root.available
            enabled: root.isEditing

            onToggled: root.editedAvailable = checked
        }

        ThemedCheckBox {
            Layout.fillWidth: true
            Layout.maximumWidth: 100
            Layout.minimumWidth: 60
            Layout.preferredWidth: 100
            Accessible.name: qsTranslate("AdminMenuManagement", "Taxable")
            checked: root.isEditing ? root.editedTaxable : root.taxable
            enabled: root.isEditing

            onToggled: root.editedTaxable = checked
        }

        RowLayout {
            Layout.maximumWidth: 160
            Layout.minimumWidth: 160
            spacing: 6

            Item {
                Layout.fillWidth: true
            }

            RowButton {
                id: saveButton

                Accessible.description: root.item
                focusPolicy: Qt.NoFocus
                fillColor: Theme.primary()
                text: root.isEditing ? qsTranslate("AdminMenuManagement", "Save")
                                     : qsTranslate("AdminMenuManagement", "Edit")

                onClicked: root.isEditing ? root.save() : root.startEditing()
            }

            RowButton {
                Accessible.description: root.item
                focusPolicy: Qt.NoFocus
                fillColor: "red"
                text: qsTranslate("AdminMenuManagement", "Delete")

                onClicked: root.deleteRequested(root.itemId, root.item)
            }
        }
    }

    ListView.onPooled: root.pool()
    ListView.onReused: root.reuse()
    Component.onCompleted: root.reuse()
}
