// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0
import "../components/OrderLines.js" as OrderLines

// The order page of a store without a floor plan: one screen to take orders and, where the
// settings allow it, to edit those of the day.
Item {
    id: root

    // "dine_in", "takeaway", "delivery", or empty while none is chosen.
    property string currentOrderType: ""
    property int selectedTableId: -1
    // The order loaded for editing.
    property int currentOrderId: -1
    // A preview in currency units without tax; the stored totals are the checkout's.
    property real subtotal: 0
    property real total: 0
    property real discount: 0
    property int totalItems: 0
    property bool showEditOrdersList: false
    property var editOrdersList: []
    // The kitchen's settings are read once: a change takes effect with the next page.
    property var kitchenSettings: ({})
    property bool allowEditAfterSend: false
    property string currencySymbol: ""

    // What the margins and gaps leave. Dishes and order share it; on a small screen first the
    // categories give way, then the order, then the portions, and the names of the dishes last.
    readonly property real room: width - 32
    readonly property real dishesWidth: 372
    readonly property real categoriesWidth: Math.max(160, Math.min(220, room - 2 * dishesWidth))
    readonly property real orderWidth: Math.min((room - categoriesWidth) / 2, Math.max(310, room - categoriesWidth - dishesWidth))
    readonly property real portionWidth: room - categoriesWidth - orderWidth < 400 ? 72 : 100

    function changeOrderType(orderType: string) {
        currentOrderType = orderType
    }

    function recomputeMeta() {
        const sums = OrderLines.sums(orderModel)
        subtotal = sums.subtotal
        totalItems = sums.quantity
        discount = 0
        total = subtotal - discount
    }

    function newOrder() {
        orderModel.clear()
        currentOrderId = -1
        currentOrderType = ""
        selectedTableId = -1
        showEditOrdersList = false
    }

    // Lines keyed in so far stay until an order is picked.
    function showOpenOrders() {
        editOrdersList = OrderService.getOpenOrders()
        showEditOrdersList = true
    }

    function editOrder(order: var) {
        showEditOrdersList = false
        currentOrderId = order.id
        currentOrderType = order.type
        selectedTableId = order.table_id ?? -1
        reloadOrder()
    }

    function reloadOrder() {
        orderModel.clear()
        for (const line of OrderService.getOrderItems(currentOrderId))
            orderModel.append({
                orderItemId: line.id,
                menuItemId: line.item_id,
                name: line.item_name,
                qty: line.quantity,
                price: line.price,
                notes: line.notes || ""
            })
    }

    // The answer is not looked at: the page resets after a refused order as after a good one,
    // which is meant. The null table is what frees a table when an order leaves dine-in.
    function sendOrder() {
        if (orderModel.count === 0)
            return
        const items = OrderLines.collect(orderModel)
        const options = { tableId: currentOrderType === "dine_in" ? selectedTableId : null, notes: "" }
        if (currentOrderId >= 0)
            OrderService.updateOrder(currentOrderId, currentOrderType, items, options)
        else
            OrderService.createOrder(currentOrderType, items, options)
        orderModel.clear()
        currentOrderType = ""
        selectedTableId = -1
        currentOrderId = -1
    }

    implicitWidth: 800
    implicitHeight: 600

    component TopButton: FilledButton {
        padding: 12
        topPadding: 10
        bottomPadding: 10
    }

    component TypeButton: ChoiceButton {
        required property string value

        Layout.fillWidth: true
        Layout.preferredWidth: 1
        padding: 15
        checked: root.currentOrderType === value
        onClicked: root.changeOrderType(value)
    }

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

        RowLayout {
            Layout.fillWidth: true
            spacing: 0

            TypeButton {
                value: "dine_in"
                text: qsTr("Dine In")
            }

            TypeButton {
                value: "takeaway"
                text: qsTr("Takeaway")
            }

            TypeButton {
                value: "delivery"
                text: qsTr("Delivery")
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 8

            CategoryList {
                Layout.preferredWidth: root.categoriesWidth
                title: qsTr("Categories")
                rowSpacing: 0
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
                rowHeight: 44
                addSidePadding: 15
                addEndPadding: 5
                onAddRequested: (menuItemId, name, price) => lineList.showLine(OrderLines.add(orderModel, menuItemId, name, price))
            }

            Rectangle {
                Layout.fillHeight: true
                Layout.preferredWidth: root.orderWidth
                radius: 6
                color: Theme.background

                ColumnLayout {
                    anchors.fill: parent
                    anchors.rightMargin: 6
                    spacing: 2

                    Flow {
                        Layout.fillWidth: true
                        spacing: 8

                        TopButton {
                            text: qsTr("New Order")
                            fillColor: "#4faba1"
                            onClicked: root.newOrder()
                        }

                        TopButton {
                            visible: root.allowEditAfterSend
                            text: qsTr("Edit Order")
                            fillColor: "#5F7DDC"
                            onClicked: root.showOpenOrders()
                        }

                        TopButton {
                            visible: root.currentOrderId >= 0 && root.kitchenSettings.ticket_print_timing === "manual"
                            text: qsTr("Print Ticket")
                            fillColor: Theme.primary()
                            onClicked: Work.start(() => OrderService.printKitchenTicket(root.currentOrderId), Work.pauseOfPaper)
                        }
                    }

                    PageHeading {
                        visible: !root.showEditOrdersList
                        text: qsTr("Current Order")
                    }

                    TableGrid {
                        Layout.fillWidth: true
                        visible: root.currentOrderType === "dine_in" && !root.showEditOrdersList
                        title: qsTr("Table")
                        selectedTableId: root.selectedTableId
                        onTableClicked: tableId => {
                            if (root.currentOrderType === "dine_in")
                                root.selectedTableId = tableId
                        }
                    }

                    OrderLineList {
                        id: lineList

                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        visible: !root.showEditOrdersList
                        spacing: 2
                        lines: orderModel
                        title: qsTr("Current Order")
                        currencySymbol: root.currencySymbol
                        rowHeight: 56
                        removeText: qsTr("Remove")
                        remarkPlaceholder: qsTr("Add a remark")
                    }

                    KeyList {
                        id: openOrders

                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        visible: root.showEditOrdersList
                        spacing: 2
                        model: root.editOrdersList

                        Accessible.role: Accessible.List
                        Accessible.name: qsTr("Edit Order")

                        delegate: OpenOrderRow {
                            required property var modelData

                            width: openOrders.rowWidth
                            order: modelData
                            onClicked: root.editOrder(order)
                        }

                        EmptyHint {
                            parent: openOrders
                            visible: openOrders.count === 0
                            text: qsTranslate("Hints", "No order can be edited. Press New Order to take one.")
                        }
                    }

                    OrderFigures {
                        Layout.leftMargin: 8
                        Layout.rightMargin: 8
                        visible: !root.showEditOrdersList
                        spacing: 4
                        itemsCaption: qsTr("Total Items:")
                        subtotalCaption: qsTr("Subtotal:")
                        totalCaption: qsTr("Total:")
                        totalItems: root.totalItems
                        subtotal: root.subtotal
                        total: root.total
                        currencySymbol: root.currencySymbol
                    }

                    // An order without a type passes, which is meant: it is stored with none and no
                    // table.
                    PrimaryButton {
                        id: sendButton

                        Layout.fillWidth: true
                        Layout.topMargin: 15
                        visible: !root.showEditOrdersList
                        padding: 15
                        enabled: orderModel.count > 0 && (root.currentOrderType !== "dine_in" || root.selectedTableId !== -1)
                        text: root.currentOrderId >= 0 ? qsTr("Edit Order") : qsTr("Place Order")
                        onClicked: Work.start(root.sendOrder)
                    }
                }
            }
        }
    }

    Component.onCompleted: {
        currencySymbol = SettingService.currencySymbol()
        recomputeMeta()
        kitchenSettings = SettingService.getKitchenSettings()
        if (kitchenSettings.allow_edit_after_send !== undefined)
            allowEditAfterSend = kitchenSettings.allow_edit_after_send
    }
}
