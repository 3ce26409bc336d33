// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0
import "OrderLines.js" as OrderLines

// A page for keying in one order whose table or type is settled already. Made anew for each push
// it leaves the stack when the order is sent.
Rectangle {
    id: root

    property int tableId: -1
    property string tableLabel: ""
    // 0 or more: that order is replaced rather than a new one made.
    property int currentOrderId: -1
    property string orderType: "dine_in"
    // A preview in currency units without tax; the stored totals are the checkout's.
    property real subtotal: 0
    property real total: 0
    property real discount: 0
    property int totalItems: 0
    property var kitchenSettings: ({})
    property string currencySymbol: ""

    // What the margins and gaps leave. On a small screen first the order gives way, then the
    // categories, then the portions, and the names of the dishes last.
    readonly property real room: width - 32
    readonly property real dishesWidth: 372
    readonly property real orderWidth: Math.max(310, Math.min(420, room - 220 - dishesWidth))
    readonly property real categoriesWidth: Math.max(160, Math.min(220, room - orderWidth - dishesWidth))
    readonly property real portionWidth: room - categoriesWidth - orderWidth < 400 ? 72 : 100

    function recomputeMeta() {
        const sums = OrderLines.sums(orderModel)
        subtotal = sums.subtotal
        totalItems = sums.quantity
        discount = 0
        total = subtotal - discount
    }

    // The answer is not looked at: a refused order leaves the page like a good one, which is meant.
    function sendOrder() {
        if (orderModel.count === 0)
            return
        const options = { notes: "" }
        if (orderType === "dine_in")
            options.tableId = tableId
        const items = OrderLines.collect(orderModel)
        if (currentOrderId >= 0)
            OrderService.updateOrder(currentOrderId, orderType, items, options)
        else
            currentOrderId = OrderService.createOrder(orderType, items, options)
        orderModel.clear()
        leave()
    }

    function leave() {
        if (root.StackView.view) {
            root.StackView.view.pop()
            return
        }
        let item = root.parent
        while (item && !(item instanceof StackView))
            item = item.parent
        if (item)
            item.pop()
    }

    implicitWidth: 800
    implicitHeight: 600
    color: Theme.background

    PressKeys {
        button: sendButton
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
    }

    ListModel {
        id: orderModel

        onCountChanged: root.recomputeMeta()
        onDataChanged: root.recomputeMeta()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 8
        spacing: 8

        OrderEditorHeader {
            Layout.fillWidth: true
            Layout.preferredHeight: 64
            backText: qsTr("Back")
            title: {
                if (root.orderType === "takeaway")
                    return qsTr("Takeaway Order")
                return root.orderType === "delivery" ? qsTr("Delivery Order") : root.tableLabel
            }
            subtitle: {
                if (root.orderType === "takeaway")
                    return qsTr("Takeaway")
                return root.orderType === "delivery" ? qsTr("Delivery") : qsTr("Dine In")
            }
            onBackRequested: root.leave()
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 8

            CategoryList {
                Layout.preferredWidth: root.categoriesWidth
                title: qsTr("Categories")
            }

            MenuItemList {
                title: qsTr("Menu Items")
                noCategoryTitle: qsTr("Select a category")
                itemTitle: qsTr("Item")
                priceTitle: qsTr("Price")
                portionTitle: qsTr("Portion")
                unavailableText: qsTr("Unavailable")
                addText: qsTr("Add")
                currencySymbol: root.currencySymbol
                portionWidth: root.portionWidth
                onAddRequested: (menuItemId, name, price) => lineList.showLine(OrderLines.add(orderModel, menuItemId, name, price))
            }

            Item {
                Layout.preferredWidth: root.orderWidth
                Layout.fillHeight: true

                ColumnLayout {
                    anchors.fill: parent
                    anchors.margins: 16
                    spacing: 10

                    PageHeading {
                        text: qsTr("Current Order")
                    }

                    OrderLineList {
                        id: lineList

                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        spacing: 6
                        lines: orderModel
                        title: qsTr("Current Order")
                        currencySymbol: root.currencySymbol
                        rowHeight: 64
                        buttonPolicy: Qt.NoFocus
                        removeText: qsTr("Remove")
                    }

                    Rectangle {
                        Layout.fillWidth: true
                        Layout.preferredHeight: 1
                        color: Theme.border
                    }

                    OrderFigures {
                        spacing: 10
                        itemsCaption: qsTr("Items:")
                        subtotalCaption: qsTr("Subtotal:")
                        totalCaption: qsTr("Total:")
                        totalItems: root.totalItems
                        subtotal: root.subtotal
                        total: root.total
                        currencySymbol: root.currencySymbol
                    }

                    PrimaryButton {
                        id: sendButton

                        Layout.fillWidth: true
                        focusPolicy: Qt.NoFocus
                        padding: 15
                        enabled: orderModel.count > 0
                        text: root.currentOrderId >= 0 ? qsTr("Update Order") : qsTr("Place Order")
                        onClicked: Work.start(root.sendOrder)
                    }
                }
            }
        }
    }

    Component.onCompleted: {
        currencySymbol = SettingService.currencySymbol()
        kitchenSettings = SettingService.getKitchenSettings()
        recomputeMeta()
    }
}
