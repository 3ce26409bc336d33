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
    // As the page's column heads.
    property bool narrow: false
    property real boxWidth: 100
    property real portionWidth: 120
    // What the heads are given, from which the row knows its height before it is laid out.
    property real nameRoom: 200
    property real portionRoom: 120
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
        root.isEditing = true;
        (root.narrow ? nameAbove : nameField).forceActiveFocus()
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

    component BoxCell: ThemedCheckBox {
        Layout.fillWidth: !root.narrow
        Layout.maximumWidth: 100
        Layout.minimumWidth: root.narrow ? 44 : 60
        Layout.preferredWidth: root.boxWidth
        enabled: root.isEditing
    }

    component NameField: ThemedField {
        Layout.fillWidth: true
        Layout.minimumWidth: 80
        Layout.preferredHeight: 40
        Layout.preferredWidth: 200
        padding: 6
        placeholderText: qsTranslate("AdminMenuManagement", "Item Name")
        text: root.editedName

        onTextEdited: root.editedName = text
    }

    height: isEditing ? narrow ? 92 : 44 : Math.max(44, 8 + Math.max(nameSample.implicitHeight, portionSample.implicitHeight))
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

    NameLabel {
        id: nameSample

        text: root.item
        visible: false
        width: root.nameRoom
    }

    NameLabel {
        id: portionSample

        text: root.portion
        visible: false
        width: root.portionRoom
    }

    // While it is edited, a narrow row has the name over the rest.
    NameField {
        id: nameAbove

        anchors.left: parent.left
        anchors.margins: 8
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 4
        height: 40
        visible: root.isEditing && root.narrow
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: root.narrow ? 8 : 12
        anchors.rightMargin: root.narrow ? 8 : 12
        anchors.topMargin: root.isEditing && root.narrow ? 46 : 0
        spacing: root.narrow ? 6 : 12

        NameLabel {
            Layout.fillWidth: true
            Layout.minimumWidth: 80
            Layout.preferredWidth: 200
            text: root.item
            visible: !root.isEditing
        }

        NameField {
            id: nameField

            visible: root.isEditing && !root.narrow
        }

        PriceLabel {
            Layout.preferredWidth: root.narrow ? 80 : 90
            horizontalAlignment: Text.AlignRight
            text: root.currencySymbol + root.price.toFixed(2)
            visible: !root.isEditing
        }

        PointField {
            Layout.preferredHeight: 40
            Layout.preferredWidth: root.narrow ? 80 : 90
            horizontalAlignment: TextInput.AlignRight
            padding: 6
            placeholderText: qsTranslate("AdminMenuManagement", "Price")
            text: root.editedPrice
            visible: root.isEditing

            onTextEdited: root.editedPrice = text
        }

        NameLabel {
            Layout.fillWidth: !root.narrow
            Layout.maximumWidth: 120
            Layout.minimumWidth: 50
            Layout.preferredWidth: root.portionWidth
            text: root.portion === "" ? "-" : root.portion
            visible: !root.isEditing
        }

        ThemedField {
            Layout.preferredHeight: 40
            Layout.fillWidth: true
            Layout.maximumWidth: root.narrow ? 1000 : 120
            Layout.minimumWidth: 110
            Layout.preferredWidth: root.portionWidth
            padding: 6
            placeholderText: qsTranslate("AdminMenuManagement", "Portion")
            text: root.editedPortion
            visible: root.isEditing

            onTextEdited: root.editedPortion = text
        }

        BoxCell {
            Accessible.name: qsTranslate("AdminMenuManagement", "Available")
            checked: root.isEditing ? root.editedAvailable : root.available

            onToggled: root.editedAvailable = checked
        }

        BoxCell {
            Accessible.name: qsTranslate("AdminMenuManagement", "Taxable")
            checked: root.isEditing ? root.editedTaxable : root.taxable

            onToggled: root.editedTaxable = checked
        }

        Item {
            Layout.maximumWidth: root.narrow ? 112 : 160
            Layout.minimumWidth: root.narrow ? 112 : 160
            implicitHeight: buttons.implicitHeight

            RowLayout {
                id: buttons

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: 6

                RowButton {
                    id: saveButton

                    Accessible.description: root.item
                    focusPolicy: Qt.NoFocus
                    fillColor: Theme.primary()
                    leftPadding: root.narrow ? 8 : 15
                    rightPadding: leftPadding
                    text: root.isEditing ? qsTranslate("AdminMenuManagement", "Save")
                                         : qsTranslate("AdminMenuManagement", "Edit")

                    onClicked: root.isEditing ? root.save() : root.startEditing()
                }

                RowButton {
                    Accessible.description: root.item
                    focusPolicy: Qt.NoFocus
                    fillColor: "red"
                    leftPadding: root.narrow ? 8 : 15
                    rightPadding: leftPadding
                    text: qsTranslate("AdminMenuManagement", "Delete")

                    onClicked: root.deleteRequested(root.itemId, root.item)
                }
            }
        }
    }

    ListView.onPooled: root.pool()
    ListView.onReused: root.reuse()
    Component.onCompleted: root.reuse()
}
