// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import "Days.js" as Days

// The days of the date picker's month. One of them has the keys: arrows lead to another, into the months
// beside it too, Page Up and Down to the same day of those months, and Return takes it.
Control {
    id: root

    // The date picker that this belongs to.
    required property var picker
    // The day that has the keys, in the month on display.
    property date day: picker.selectedDate

    // The chosen day or else today where they are on display, or else the month's first.
    function start(reason: int): void {
        const choices = [root.picker.selectedDate, root.picker.now]
        root.day = choices.find(choice => isShown(choice)) ?? dayOfMonth(root.picker.currentDate, 1)
        root.forceActiveFocus(reason)
    }

    function isShown(date: date): bool {
        const shown = root.picker.currentDate
        return date.getFullYear() === shown.getFullYear() && date.getMonth() === shown.getMonth()
    }

    // The month's last day where it has not so many.
    function dayOfMonth(month: date, day: int): date {
        const last = Days.of(month.getFullYear(), month.getMonth() + 1, 0)
        return Days.of(month.getFullYear(), month.getMonth(), Math.min(day, last.getDate()))
    }

    function goTo(day: date): void {
        root.focusReason = Qt.TabFocusReason
        root.day = day
        if (!isShown(day))
            root.picker.currentDate = dayOfMonth(day, 1)
    }

    function goMonths(step: int): void {
        const month = Days.of(root.day.getFullYear(), root.day.getMonth() + step, 1)
        goTo(dayOfMonth(month, root.day.getDate()))
    }

    function take(): void {
        if (!root.picker.isPast(root.day) && root.picker.isAllowed(root.day))
            root.picker.pick(root.day)
    }

    focusPolicy: Qt.StrongFocus
    hoverEnabled: false
    padding: 0

    Accessible.role: Accessible.Table
    Accessible.name: root.picker.label
    Accessible.description: Qt.formatDate(day, "dd MMM yyyy")
    Accessible.focusable: true

    Keys.onDownPressed: goTo(Days.after(day, 7))
    Keys.onEnterPressed: take()
    Keys.onLeftPressed: goTo(Days.after(day, -1))
    Keys.onPressed: event => {
        const step = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0
        event.accepted = step !== 0
        if (event.accepted)
            goMonths(step)
    }
    Keys.onReturnPressed: take()
    Keys.onRightPressed: goTo(Days.after(day, 1))
    Keys.onSpacePressed: take()
    Keys.onUpPressed: goTo(Days.after(day, -7))

    Connections {
        target: root.picker

        // The buttons beside the month's name move it too.
        function onCurrentDateChanged(): void {
            if (!root.isShown(root.day))
                root.day = root.dayOfMonth(root.picker.currentDate, root.day.getDate())
        }

        function onOpened(reason: int): void {
            root.start(reason)
        }
    }

    contentItem: Grid {
        columns: 7
        spacing: 4

        Repeater {
            model: 42

            DateCell {
                required property int index

                day: root.picker.cellDate(index)
                inMonth: root.picker.inCurrentMonth(day)
                pickable: inMonth && !root.picker.isPast(day) && root.picker.isAllowed(day)
                today: root.picker.sameDay(day, root.picker.now)
                selected: root.picker.sameDay(day, root.picker.selectedDate)
                onPicked: root.picker.pick(day)

                FocusRing {
                    anchors.fill: parent
                    radius: 6
                    visible: root.visualFocus && root.picker.sameDay(root.day, parent.day)
                }
            }
        }
    }
}
