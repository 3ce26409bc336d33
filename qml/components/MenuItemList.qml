// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import Zelvan.Services 1.0

// The items of the chosen category in the middle of an order screen. The texts are the screen's,
// so that they are translated with it.
Item {
    id: root

    required property string title
    required property string noCategoryTitle
    required property string itemTitle
    required property string priceTitle
    required property string portionTitle
    required property string unavailableText
    required property string addText
    required property string currencySymbol
    property int rowHeight: 50
    property int addSidePadding: 8
    property int addEndPadding: 6
    readonly property bool chosen: MenuService.currentCategoryId !== -1
    property real portionWidth: 100
    readonly property real addWidth: Math.max(60, Math.ceil(addSample.implicitWidth))

    signal addRequested(int menuItemId, string name, real price)

    Layout.fillWidth: true
    Layout.fillHeight: true

    // How wide the buttons of the rows are, for the heads of their columns.
    FilledButton {
        id: addSample

        leftPadding: root.addSidePadding
        rightPadding: root.addSidePadding
        text: root.addText
        visible: false
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        PlainLabel {
            text: root.chosen ? root.title : root.noCategoryTitle
            font.bold: true
        }

        // Placed by hand, since a layout does not always follow when a width of its columns changes.
        Row {
            id: heads

            Layout.fillWidth: true
            Layout.preferredHeight: 36
            visible: root.chosen
            spacing: 8

            TableHeaderLabel {
                anchors.verticalCenter: parent.verticalCenter
                width: heads.width - 70 - root.portionWidth - root.addWidth - 24
                text: root.itemTitle
            }

            TableHeaderLabel {
                anchors.verticalCenter: parent.verticalCenter
                width: 70
                text: root.priceTitle
            }

            TableHeaderLabel {
                anchors.verticalCenter: parent.verticalCenter
                width: root.portionWidth
                text: root.portionTitle
            }
        }

        KeyList {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: root.chosen
            spacing: 4
            model: MenuService.menuItemModel
            act: "add"

            Accessible.role: Accessible.List
            Accessible.name: root.title

            delegate: MenuItemRow {
                required property var model

                width: list.rowWidth
                height: Math.max(root.rowHeight, implicitHeight + 8)
                name: model.item
                price: root.currencySymbol + model.price.toFixed(2)
                portion: model.portion
                available: model.available
                unavailableText: root.unavailableText
                addText: root.addText
                addSidePadding: root.addSidePadding
                addEndPadding: root.addEndPadding
                addWidth: root.addWidth
                portionWidth: root.portionWidth
                onAddRequested: root.addRequested(model.id, model.item, model.price)
            }

            EmptyHint {
                parent: list
                visible: list.count === 0
                text: qsTranslate("Hints", "No dishes in this category yet. An administrator adds them under Management › Menu.")
            }
        }

        Item {
            Layout.fillHeight: true
            visible: !root.chosen
        }
    }
}
