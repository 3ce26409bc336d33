// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// The menu: the categories at the left, the items of the selected one at the right.
Rectangle {
    id: root

    property string currencySymbol: SettingService.currencySymbol()
    readonly property bool categorySelected: MenuService.currentCategoryId !== -1
    readonly property Item startItem: categorySelected ? itemForm.startItem : categoryPane.startItem

    // On a small screen first the categories give way, then the boxes, then the portions, and the
    // names of the dishes last; the other columns and the gaps are a little tighter there.
    readonly property bool narrow: width < 1050
    readonly property real categoriesWidth: Math.max(160, Math.min(220, width - 64 - 500))
    readonly property real columnRoom: width - 64 - categoriesWidth - 238
    readonly property real boxWidth: narrow ? Math.max(44, Math.min(100, (columnRoom - 320) / 2)) : 100
    readonly property real portionWidth: narrow ? Math.max(72, Math.min(120, columnRoom - 200 - 2 * boxWidth)) : 120

    function confirmDeletion(title: string, message: string, remove: var): void {
        confirmationDialog.title = title
        confirmationDialog.message = message
        confirmationDialog.confirmCallback = confirmed => {
            if (confirmed)
                remove()
        }
        confirmationDialog.open()
    }

    function confirmCategoryDeletion(categoryId: int, name: string): void {
        const message = qsTr("Are you sure you want to delete \"%1\"? All menu items within \"%1\" will be deleted.")
        root.confirmDeletion(qsTr("Delete Category"), message.arg(name), () => MenuService.removeCategory(categoryId))
    }

    function confirmItemDeletion(itemId: int, name: string): void {
        root.confirmDeletion(qsTr("Delete Item"), qsTr("Are you sure you want to delete \"%1\"?").arg(name),
                             () => MenuService.removeMenuItem(itemId))
    }

    width: 800
    height: 600
    color: Theme.background

    RowLayout {
        anchors.fill: parent
        spacing: 0

        MenuCategoryPane {
            id: categoryPane

            Layout.fillHeight: true
            Layout.margins: 16
            Layout.fillWidth: false
            Layout.preferredWidth: root.categoriesWidth

            onDeleteRequested: (categoryId, name) => root.confirmCategoryDeletion(categoryId, name)
        }

        ColumnLayout {
            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.margins: 16
            spacing: 12

            PageHeading {
                text: root.categorySelected ? qsTr("Menu Items") : qsTr("Select a category")
            }

            Rectangle {
                Layout.fillWidth: true
                Layout.preferredHeight: 40
                color: Theme.surface
                radius: 6
                visible: root.categorySelected

                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: root.narrow ? 8 : 12
                    anchors.rightMargin: root.narrow ? 8 : 12
                    spacing: root.narrow ? 6 : 12

                    TableHeaderLabel {
                        id: nameHead

                        Layout.fillWidth: true
                        Layout.minimumWidth: 80
                        Layout.preferredWidth: 200
                        text: qsTr("Item")
                    }

                    TableHeaderLabel {
                        Layout.preferredWidth: root.narrow ? 80 : 90
                        horizontalAlignment: Text.AlignRight
                        text: qsTr("Price")
                    }

                    TableHeaderLabel {
                        id: portionHead

                        Layout.fillWidth: !root.narrow
                        Layout.maximumWidth: 120
                        Layout.minimumWidth: 50
                        Layout.preferredWidth: root.portionWidth
                        text: qsTr("Portion")
                    }

                    TableHeaderLabel {
                        Layout.fillWidth: !root.narrow
                        Layout.maximumWidth: 100
                        Layout.minimumWidth: root.narrow ? 44 : 60
                        Layout.preferredWidth: root.boxWidth
                        fontSizeMode: Text.HorizontalFit
                        minimumPixelSize: 8
                        text: qsTr("Available")
                    }

                    TableHeaderLabel {
                        Layout.fillWidth: !root.narrow
                        Layout.maximumWidth: 100
                        Layout.minimumWidth: root.narrow ? 44 : 60
                        Layout.preferredWidth: root.boxWidth
                        fontSizeMode: Text.HorizontalFit
                        minimumPixelSize: 8
                        text: qsTr("Taxable")
                    }

                    Item {
                        Layout.preferredWidth: root.narrow ? 112 : 160
                    }
                }
            }

            EditableList {
                id: itemList

                Layout.fillHeight: true
                Layout.fillWidth: true
                model: MenuService.menuItemModel
                spacing: 4
                visible: root.categorySelected

                delegate: EditableMenuItemRow {
                    required property var model

                    width: itemList.rowWidth
                    available: model.available
                    boxWidth: root.boxWidth
                    currencySymbol: root.currencySymbol
                    drafts: rowDrafts
                    item: model.item
                    itemId: model.id
                    nameRoom: nameHead.width
                    narrow: root.narrow
                    portion: model.portion
                    portionRoom: portionHead.width
                    portionWidth: root.portionWidth
                    price: model.price
                    taxable: model.taxable

                    onDeleteRequested: (itemId, name) => root.confirmItemDeletion(itemId, name)
                }

                EmptyHint {
                    parent: itemList
                    visible: itemList.count === 0
                    text: qsTranslate("Hints", "No dishes in this category yet. Type a name and a price below, then press Add Menu Item.")
                }
            }

            MenuItemForm {
                id: itemForm

                Layout.fillWidth: true
                narrow: root.width < 924
                visible: root.categorySelected
            }

            Item {
                Layout.fillHeight: true
                visible: !root.categorySelected
            }
        }
    }

    RowDrafts {
        id: rowDrafts
    }

    ConfirmationDialog {
        id: confirmationDialog

        anchors.centerIn: root
        parent: root
    }

    Connections {
        function onCurrentCategoryIdChanged(): void {
            rowDrafts.clear()
            itemList.positionViewAtBeginning()
        }

        target: MenuService
    }
}
