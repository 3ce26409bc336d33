// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// A time within the opening hours, in steps of a quarter of an hour.
Item {
    id: root

    property int startHour: 9
    property int endHour: 22
    property int minuteStep: 15
    property int hour: startHour + hourColumn.currentIndex
    property int minute: minuteColumn.currentIndex * minuteStep
    // Kept for screens that set it; nothing reads it.
    property bool restrictPastTimeToday: false
    readonly property int totalHours: endHour - startHour + 1
    readonly property int stepsAnHour: Math.floor(60 / minuteStep)

    signal timeChanged(int hour, int minute)

    // From the columns themselves: the properties follow them only after their handlers.
    function report() {
        root.timeChanged(root.startHour + hourColumn.currentIndex, minuteColumn.currentIndex * root.minuteStep)
    }

    // Rounds up to the next step; past the hour's last one, to the next hour. Clamping the hour leaves
    // the minute as it is, which is meant: 23:40 shows as 22:45.
    function showTime(presentHour: int, presentMinute: int) {
        let shownHour = presentHour
        let step = Math.ceil(presentMinute / root.minuteStep)
        if (step >= root.stepsAnHour) {
            step = 0
            shownHour += 1
        }
        shownHour = Math.max(root.startHour, Math.min(root.endHour, shownHour))
        hourColumn.currentIndex = shownHour - root.startHour
        minuteColumn.currentIndex = step
    }

    width: 260
    height: 160

    Row {
        anchors.fill: parent
        spacing: 12

        TimeColumn {
            id: hourColumn

            objectName: "hourColumn"
            width: (root.width - colon.width - 24) / 2
            height: root.height
            model: root.totalHours
            first: root.startHour
            label: "Hour"
            onCurrentIndexChanged: root.report()
        }

        PlainLabel {
            id: colon

            anchors.verticalCenter: parent.verticalCenter
            text: ":"
            font.pixelSize: 32
            opacity: 0.9
        }

        TimeColumn {
            id: minuteColumn

            objectName: "minuteColumn"
            width: hourColumn.width
            height: root.height
            model: root.stepsAnHour
            step: root.minuteStep
            label: "Minute"
            onCurrentIndexChanged: root.report()
        }
    }

    Component.onCompleted: {
        const now = new Date()
        root.showTime(now.getHours(), now.getMinutes())
    }
}
