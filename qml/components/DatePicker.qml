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

    signal opened(int reason)

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

    // The keys go to the grid, which shows where they are unless a pointer has opened it.
    function open(reason: int) {
        root.now = new Date()
        popup.open()
        root.opened(reason)
    }

    component CalendarButton: FilledButton {
        borderColor: Theme.secondaryText
        fillColor: Theme.surface
        textColor: Theme.text
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
            background: FieldSurface {
                focused: field.activeFocus
            }
            color: Theme.text
            font.pointSize: 14
            leftPadding: 10
            text: Qt.formatDate(root.selectedDate, "dd MMM yyyy")

            Accessible.name: root.label
            // Taken at a press, the focus would be kept from the calendar.
            activeFocusOnPress: false
            onReleased: root.open(Qt.MouseFocusReason)
            Keys.onEnterPressed: root.open(Qt.TabFocusReason)
            Keys.onReturnPressed: root.open(Qt.TabFocusReason)
            Keys.onSpacePressed: root.open(Qt.TabFocusReason)

            TextFieldMenu {}
        }

        CalendarButton {
            id: opener

            width: 50
            height: parent.height
            text: "📅"
            font.pixelSize: 18

            Accessible.name: root.label + " 📅"
            onClicked: root.open(visualFocus ? Qt.TabFocusReason : Qt.MouseFocusReason)
        }
    }

    Popup {
        id: popup

        readonly property FocusReturn focusReturn: FocusReturn { owner: popup }

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
        topPadding: 12
        bottomPadding: 12
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

                CalendarButton {
                    width: 40
                    text: "<"
                    onClicked: root.moveMonth(-1)
                }

                PlainLabel {
                    anchors.centerIn: parent
                    text: Qt.formatDate(root.currentDate, "MMMM yyyy")
                    font.bold: true
                    font.pixelSize: 18
                }

                CalendarButton {
                    anchors.right: parent.right
                    width: 40
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

            CalendarGrid {
                picker: root
            }

            Row {
                anchors.right: parent.right
                spacing: 8

                CalendarButton {
                    text: "Today"
                    onClicked: root.pickToday()
                }

                CalendarButton {
                    text: "Cancel"
                    onClicked: popup.close()
                }
            }
        }

        onAboutToShow: focusReturn.remember()
        onClosed: focusReturn.giveBack()
    }
}
