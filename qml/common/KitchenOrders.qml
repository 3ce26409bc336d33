// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// The kitchen's board: new, prepared and ready orders, each card with the one step it can take.
Rectangle {
    id: root

    property var pendingOrders: []
    property var preparingOrders: []
    property var readyOrders: []

    function loadOrders() {
        pendingOrders = root.fresh("pending", root.pendingOrders)
        preparingOrders = root.fresh("in_progress", root.preparingOrders)
        readyOrders = root.fresh("ready", root.readyOrders)
    }

    // A column that did not change is not touched by the poll.
    function fresh(status: string, shown: var): var {
        const orders = KitchenOrderService.getOrdersByStatus(status)
        return JSON.stringify(orders) === JSON.stringify(shown) ? shown : orders
    }

    implicitWidth: 1200
    implicitHeight: 600
    color: Theme.background

    component KitchenColumn: ColumnLayout {
        id: column

        property string title
        property var model: []
        property string actionText
        property string nextState
        property string emptyText
        // The orders on show, by id.
        property var orders: ({})

        // Orders that stay keep their cards, so that a change takes no button from under a finger and
        // no list jumps back to its top.
        function showOrders() {
            const shown = {}
            for (const order of model)
                shown[order.id] = order
            orders = shown
            for (let row = ids.count - 1; row >= 0; --row) {
                if (!(ids.get(row).orderId in shown)) {
                    ids.remove(row)
                    slideGuard.restart()
                }
            }
            model.forEach((order, row) => {
                if (row === ids.count || ids.get(row).orderId !== order.id)
                    ids.insert(row, { orderId: order.id })
            })
            // Orders that stand in another order than before were put in a second time.
            if (ids.count > model.length)
                ids.remove(model.length, ids.count - model.length)
        }

        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredWidth: 1
        spacing: 12

        PlainLabel {
            text: column.title
            font.bold: true
            font.pixelSize: Theme.fontLarge
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 2
            color: Theme.primary()
        }

        ListModel {
            id: ids
        }

        SlideGuard {
            id: slideGuard
        }

        ScrollingList {
            id: cards

            Layout.fillWidth: true
            Layout.fillHeight: true
            reuseItems: false
            spacing: 12
            model: ids

            Accessible.role: Accessible.List
            Accessible.name: column.title

            delegate: KitchenCard {
                required property int orderId

                width: cards.rowWidth
                // A card that is about to go has no order any more.
                order: column.orders[orderId] ?? { items: [] }
                noteTitle: qsTr("NOTE: ")
                actionText: column.actionText
                resting: slideGuard.running
                onActed: KitchenOrderService.markState(orderId, column.nextState)
            }

            EmptyHint {
                parent: cards
                visible: text !== "" && cards.count === 0
                text: column.emptyText
            }
        }

        onModelChanged: showOrders()
    }

    RowLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 16

        KitchenColumn {
            title: qsTr("NEW")
            model: root.pendingOrders
            actionText: qsTr("START")
            nextState: "in_progress"
            emptyText: qsTranslate("Hints", "New orders appear here.")
        }

        KitchenColumn {
            title: qsTr("PREPARING")
            model: root.preparingOrders
            actionText: qsTr("MARK READY")
            nextState: "ready"
        }

        KitchenColumn {
            title: qsTr("READY")
            model: root.readyOrders
            actionText: qsTr("SERVE")
            nextState: "served"
        }
    }

    // Brings in what no signal tells of: an edited order, a payment.
    Timer {
        interval: 1000
        repeat: true
        running: true
        onTriggered: root.loadOrders()
    }

    Connections {
        target: KitchenOrderService

        function onOrdersChanged() {
            root.loadOrders()
        }
    }

    Component.onCompleted: loadOrders()
}
