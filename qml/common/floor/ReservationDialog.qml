// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// Books a table or changes a booking. A refused one leaves the dialog open and says nothing. The
// texts belong to the floor plan's order page and are translated with it.
ModalFrame {
    id: root

    property bool editMode: false
    property int selectedTableId: -1
    // The record being changed, as the service gave it.
    property var record: ({})
    readonly property string confirmText: editMode ? qsTranslate("OrderTakingFloorPlan", "Update Reservation") : qsTranslate("OrderTakingFloorPlan", "Create Reservation")

    function openCreate(tableId: int) {
        editMode = false
        nameField.text = ""
        phoneField.text = ""
        notesArea.text = ""
        guestsBox.value = 2
        durationBox.value = 90
        selectedTableId = tableId
        open()
    }

    // The date and the time keep what they showed, which is meant: a change that is not dated anew
    // moves the reservation to the date and time on display.
    function openEdit(reservation: var) {
        editMode = true
        record = reservation
        nameField.text = reservation.customerName
        phoneField.text = reservation.customerPhone
        guestsBox.value = reservation.pax
        durationBox.value = reservation.durationMinutes
        notesArea.text = reservation.notes || ""
        selectedTableId = reservation.tableId
        open()
    }

    function confirm() {
        const day = datePicker.selectedDate
        const data = {
            customerName: nameField.text,
            customerPhone: phoneField.text,
            pax: guestsBox.value,
            tableId: selectedTableId,
            reservationDateTime: new Date(day.getFullYear(), day.getMonth(), day.getDate(), timePicker.hour, timePicker.minute, 0),
            durationMinutes: durationBox.value,
            status: editMode ? record.status : "booked",
            notes: notesArea.text
        }
        if (editMode)
            data.id = record.id
        if (editMode ? ReservationService.updateReservation(data) : ReservationService.createReservation(data))
            close()
    }

    mainButton: confirmButton
    width: 580
    height: 520

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        PageHeading {
            text: root.confirmText
        }

        FlickGuard {
            list: scroller.contentItem as Flickable
        }

        ScrollView {
            id: scroller

            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth
            clip: true

            ScrollBar.vertical: RestingScrollBar {
                anchors.bottom: parent.bottom
                anchors.right: parent.right
                anchors.top: parent.top
            }

            ColumnLayout {
                width: scroller.availableWidth - 12
                spacing: 8

                PlainLabel {
                    text: qsTranslate("OrderTakingFloorPlan", "Customer Name")
                }

                ThemedField {
                    id: nameField

                    Layout.fillWidth: true
                    label: qsTranslate("OrderTakingFloorPlan", "Customer Name")
                }

                PlainLabel {
                    text: qsTranslate("OrderTakingFloorPlan", "Customer Phone")
                }

                ThemedField {
                    id: phoneField

                    Layout.fillWidth: true
                    label: qsTranslate("OrderTakingFloorPlan", "Customer Phone")
                }

                PlainLabel {
                    text: qsTranslate("OrderTakingFloorPlan", "Number Of Guests")
                }

                ThemedSpinBox {
                    id: guestsBox

                    Layout.fillWidth: true
                    from: 1
                    to: 100
                    value: 2
                    label: qsTranslate("OrderTakingFloorPlan", "Number Of Guests")
                }

                PlainLabel {
                    text: qsTranslate("OrderTakingFloorPlan", "Reservation Date")
                }

                DatePicker {
                    id: datePicker

                    Layout.fillWidth: true
                    label: qsTranslate("OrderTakingFloorPlan", "Reservation Date")
                }

                PlainLabel {
                    text: qsTranslate("OrderTakingFloorPlan", "Reservation Time")
                }

                TimePicker {
                    id: timePicker

                    Layout.preferredWidth: 260
                    Layout.preferredHeight: 160
                }

                PlainLabel {
                    text: qsTranslate("OrderTakingFloorPlan", "Duration (minutes)")
                }

                ThemedSpinBox {
                    id: durationBox

                    Layout.fillWidth: true
                    from: 30
                    to: 300
                    stepSize: 30
                    value: 90
                    label: qsTranslate("OrderTakingFloorPlan", "Duration (minutes)")
                }

                PlainLabel {
                    text: qsTranslate("OrderTakingFloorPlan", "Notes")
                }

                NotesArea {
                    id: notesArea

                    Layout.fillWidth: true
                    Layout.preferredHeight: 80
                    label: qsTranslate("OrderTakingFloorPlan", "Notes")
                    placeholderText: qsTranslate("OrderTakingFloorPlan", "Enter notes")
                }
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: 12

            FilledButton {
                text: qsTranslate("OrderTakingFloorPlan", "Cancel")
                fillColor: Theme.surface
                textColor: Theme.text
                onClicked: root.close()
            }

            PrimaryButton {
                id: confirmButton

                text: root.confirmText
                onClicked: Work.start(root.confirm)
            }
        }
    }

    onAboutToShow: nameField.forceActiveFocus()
}
