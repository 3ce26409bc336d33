// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// The order page of a store with a floor plan: tables are chosen on the drawn floor, and the panel
// beside it starts orders and keeps reservations.
Item {
    id: root

    property int selectedTableId: -1
    property int currentFloorId: -1
    // What selectedTable() gave for the order being keyed in.
    property var orderTable: null
    // Read anew when the selection changes, and only then: the panel goes on showing what stood
    // there when the table was chosen, which is meant.
    property var metadata: {
        const table = selectedTable()
        if (!table || !table.canvasItem.metadata)
            return ({})
        try {
            return JSON.parse(table.canvasItem.metadata)
        } catch (error) {
            console.warn("Failed to parse metadata:", error)
            return ({})
        }
    }
    property var reservation: metadata?.reservation ? metadata.reservation : null

    function selectedTable(): var {
        const canvas = FloorPlanService.canvasModel
        if (selectedTableId < 0 || canvas.rowCount() === 0)
            return null
        for (let i = 0; i < canvas.rowCount(); ++i) {
            const item = canvas.get(i)
            if (Number(item.table_id) === selectedTableId)
                return { canvasItem: item }
        }
        return null
    }

    function showFloor(floorId: int) {
        currentFloorId = floorId
        FloorPlanService.loadCanvas(floorId)
    }

    function showFirstFloor() {
        if (FloorPlanService.floorModel.rowCount() > 0)
            showFloor(FloorPlanService.floorModel.getFloor(0).id) // qmllint disable type
    }

    // The model has no `count`, so this never stops: the first floor is loaded a second time, and
    // with no floor the assignment fails with a line in the log. Both are meant.
    function showFirstFloorAgain() {
        if (FloorPlanService.floorModel.count === 0) // qmllint disable type
            return
        currentFloorId = FloorPlanService.floorModel.getFloor(0)["id"]
        FloorPlanService.loadCanvas(currentFloorId)
    }

    function startQuickOrder(orderType: string) {
        orderTable = null
        stack.push(orderEditor, { orderType: orderType })
    }

    // A table shown occupied or reserved can be given an order too.
    function startDineIn() {
        orderTable = selectedTable()
        stack.push(orderEditor, { orderType: "dine_in" })
    }

    function editReservation() {
        const active = ReservationService.getActiveReservationByTable(selectedTableId)
        if (active.id) // qmllint disable type
            reservationDialog.openEdit(active)
    }

    implicitWidth: 800
    implicitHeight: 600

    Connections {
        target: FloorPlanService.floorModel

        function onModelReset() {
            root.showFirstFloor()
        }
    }

    Component {
        id: orderEditor

        OrderEditor {
            tableId: root.orderTable?.canvasItem.table_id ?? -1
            tableLabel: root.orderTable?.canvasItem.label ?? ""
        }
    }

    ReservationDialog {
        id: reservationDialog
    }

    StackView {
        id: stack

        anchors.fill: parent
        // A page that slides in from the left would lie over the sidebar and take its clicks.
        clip: true
        initialItem: ColumnLayout {
            spacing: 8

            Flow {
                Layout.fillWidth: true
                spacing: 8

                Repeater {
                    id: floorTabs

                    model: FloorPlanService.floorModel

                    ChoiceButton {
                        required property var model
                        required property int index

                        width: Math.min(implicitWidth, 240)
                        leftPadding: 10
                        rightPadding: 10
                        topPadding: 8
                        bottomPadding: 8
                        checked: root.currentFloorId < 0 ? index === 0 : model.id === root.currentFloorId
                        text: model.name
                        onClicked: {
                            root.selectedTableId = -1
                            root.showFloor(model.id)
                        }
                    }
                }
            }

            RowLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: 8

                Rectangle {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    radius: 6
                    color: Theme.background
                    border.width: 1
                    border.color: Theme.border

                    Flickable {
                        id: sheet

                        anchors.fill: parent
                        anchors.margins: 1
                        clip: true
                        contentWidth: 1600
                        contentHeight: 1200
                        boundsBehavior: Flickable.StopAtBounds

                        ScrollBar.horizontal: RestingScrollBar {}
                        ScrollBar.vertical: RestingScrollBar {}

                        FlickGuard {
                            list: sheet
                        }

                        FloorPlanView {
                            width: 1600
                            height: 1200
                            model: FloorPlanService.canvasModel
                            selectedTableId: root.selectedTableId
                            onTableSelected: tableId => root.selectedTableId = tableId
                        }
                    }

                    EmptyHint {
                        visible: floorTabs.count === 0
                        text: qsTranslate("Hints", "No floors yet. An administrator draws them under Management › Floor Plan.")
                    }
                }

                TableSessionPanel {
                    Layout.preferredWidth: 320
                    Layout.fillHeight: true
                    page: root
                    onReservationRequested: reservationDialog.openCreate(root.selectedTableId)
                }
            }
        }
    }

    Component.onCompleted: {
        FloorPlanService.loadFloors()
        Qt.callLater(showFirstFloorAgain) // qmllint disable type
    }
}
