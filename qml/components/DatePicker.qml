// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0
import "Days.js" as Days

// A date to book for: today up to the end of the year after next, picked from a month's grid.
// The texts are English in every language.
Item {
    id: root

    property date selectedDate: new Date()
    property alias placeholderText: field.placeholderText
    // What a screen reader says of the field.
    property string label: "Date"
    // The month on display.
    property date currentDate: new Date()
    // Read anew at each opening, so that a picker kept over midnight knows its day.
    property date now: new Date()

    function sameDay(a: var, b: var): bool {
        return Days.number(a) === Days.number(b)
    }

    function cellDate(index: int): date {
        const first = Days.of(root.currentDate.getFullYear(), root.currentDate.getMonth(), 1)
        return Days.after(first, index - first.getDay())
    }

    function inCurrentMonth(day: date): bool {
        return day.getMonth() === root.currentDate.getMonth()
    }

    function isPast(day: date): bool {
        return Days.number(day) < Days.number(root.now)
    }

    function isAllowed(day: date): bool {
        return Days.number(day) <= Days.number(Days.of(root.now.getFullYear() + 2, 11, 31))
    }

    // Meant as it is: the script's own month arithmetic, so one month on from 31 January is March.
    function moveMonth(step: int) {
        const shown = root.currentDate
        root.currentDate = Days.of(shown.getFullYear(), shown.getMonth() + step, shown.getDate())
    }

    function pick(day: date) {
        root.selectedDate = day
        popup.close()
    }

    function pickToday() {
        root.currentDate = new Date()
        root.pick(new Date())
    }

    function open() {
        root.now = new Date()
        popup.open()
    }

    implicitWidth: 300
    implicitHeight: 50

    Row {
        anchors.fill: parent
        spacing: 8

        TextField {
            id: field

            width: parent.width - opener.width - parent.spacing
            height: parent.height
            readOnly: true
            font.pointSize: 14
            text: Qt.formatDate(root.selectedDate, "dd MMM yyyy")

            Accessible.name: root.label
            // Taken at a press, the focus would be kept from the calendar.
            activeFocusOnPress: false
            onReleased: root.open()
            Keys.onReturnPressed: root.open()
            Keys.onSpacePressed: root.open()

            TextFieldMenu {}
        }

        Button {
            id: opener

            width: 50
            height: parent.height
            text: "📅"
            font.pixelSize: 18

            Accessible.name: root.label + " 📅"
            onClicked: root.open()
        }
    }

    Popup {
        id: popup

        objectName: "calendar"
        x: (root.width - width) / 2
        y: root.height + 5
        width: 340
        height: 420
        // Kept inside a window that is too low for it.
        margins: 0
        // Seven cells and their gaps are as wide as what is left.
        leftPadding: 18
        rightPadding: 18
        modal: true
        focus: true
        closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

        background: DialogSurface {
            color: Theme.surface
            radius: 12
        }

        contentItem: Column {
            spacing: 12

            Item {
                width: parent.width
                height: 40

                Button {
                    width: 40
                    height: 40
                    text: "<"
                    onClicked: root.moveMonth(-1)
                }

                PlainLabel {
                    anchors.centerIn: parent
                    text: Qt.formatDate(root.currentDate, "MMMM yyyy")
                    font.bold: true
                    font.pixelSize: 18
                }

                Button {
                    anchors.right: parent.right
                    width: 40
                    height: 40
                    text: ">"
                    onClicked: root.moveMonth(1)
                }
            }

            Row {
                spacing: 4

                Repeater {
                    model: ["Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"]

                    PlainLabel {
                        required property string modelData

                        width: 40
                        horizontalAlignment: Text.AlignHCenter
                        text: modelData
                        font.pixelSize: Theme.fontSmall
                        color: Theme.secondaryText
                    }
                }
            }

            Grid {
                columns: 7
                spacing: 4

                Repeater {
                    model: 42

                    DateCell {
                        required property int index

                        day: root.cellDate(index)
                        inMonth: root.inCurrentMonth(day)
                        pickable: inMonth && !root.isPast(day) && root.isAllowed(day)
                        today: root.sameDay(day, root.now)
                        selected: root.sameDay(day, root.selectedDate)
                        onPicked: root.pick(day)
                    }
                }
            }

            Row {
                anchors.right: parent.right
                spacing: 8

                Button {
                    height: 36
                    text: "Today"
                    onClicked: root.pickToday()
                }

                Button {
                    height: 36
                    text: "Cancel"
                    onClicked: popup.close()
                }
            }
        }
    }
}
