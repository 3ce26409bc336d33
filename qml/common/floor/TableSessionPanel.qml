// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// The panel beside the floor plan: quick orders, or the selected table with its order and its
// reservation. The texts belong to the floor plan's order page and are translated with it.
Rectangle {
    id: root

    // The order page, which keeps the state.
    required property var page
    readonly property bool tableChosen: page.selectedTableId !== -1
    // Null while the table is not on the shown floor; read when the selection changes.
    readonly property var chosen: tableChosen ? page.selectedTable() : null

    signal reservationRequested

    radius: 6
    color: Theme.surface
    border.width: 1
    border.color: Theme.border

    component Rule: Rectangle {
        Layout.fillWidth: true
        Layout.preferredHeight: 1
        color: Theme.border
    }

    // Long notes scroll, so that the buttons under them stay in reach.
    Flickable {
        id: scroller

        anchors.fill: parent
        anchors.margins: 16
        anchors.rightMargin: 4
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: content.implicitHeight

        ScrollBar.vertical: RestingScrollBar {}

        FlickGuard {
            list: scroller
        }

        ColumnLayout {
            id: content

            width: parent.width - 12
            spacing: 12

            PageHeading {
                text: qsTranslate("OrderTakingFloorPlan", "Table Session")
            }

            Rule {}

            PlainLabel {
                visible: !root.tableChosen
                text: qsTranslate("OrderTakingFloorPlan", "Select a table for dine in")
            }

            Rule {
                visible: !root.tableChosen
            }

            PlainLabel {
                visible: !root.tableChosen
                text: qsTranslate("OrderTakingFloorPlan", "Quick Orders")
                font.bold: true
            }

            RowLayout {
                visible: !root.tableChosen
                spacing: 8

                FilledButton {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    text: qsTranslate("OrderTakingFloorPlan", "Takeaway")
                    fillColor: "#5bb8d6"
                    onClicked: root.page.startQuickOrder("takeaway")
                }

                FilledButton {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    text: qsTranslate("OrderTakingFloorPlan", "Delivery")
                    fillColor: "#e3a34f"
                    onClicked: root.page.startQuickOrder("delivery")
                }
            }

            PageHeading {
                Layout.fillWidth: true
                visible: root.tableChosen
                text: root.chosen ? root.chosen.canvasItem.label : qsTranslate("OrderTakingFloorPlan", "Unknown Table")
                elide: Text.ElideRight
            }

            PlainLabel {
                visible: root.tableChosen
                text: qsTranslate("OrderTakingFloorPlan", "Capacity: ") + (root.chosen?.canvasItem.capacity ?? 0)
            }

            Rule {
                visible: root.tableChosen
            }

            PrimaryButton {
                Layout.fillWidth: true
                visible: root.tableChosen
                text: qsTranslate("OrderTakingFloorPlan", "Create Dine-In Order")
                onClicked: root.page.startDineIn()
            }

            FilledButton {
                Layout.fillWidth: true
                visible: root.tableChosen && root.page.reservation === null
                text: qsTranslate("OrderTakingFloorPlan", "Create Reservation")
                fillColor: "#4faba1"
                onClicked: root.reservationRequested()
            }

            Loader {
                Layout.fillWidth: true
                active: root.tableChosen && root.page.reservation !== null
                visible: active
                sourceComponent: ReservationDetails {
                    reservation: root.page.reservation
                    onUpdateRequested: root.page.editReservation()
                    onCancelRequested: ReservationService.cancelReservation(reservation.id)
                }
            }
        }
    }
}
