// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The reservation copied into the selected table's item. The texts belong to the floor plan's
// order page and are translated with it.
ColumnLayout {
    id: root

    required property var reservation

    signal updateRequested
    signal cancelRequested

    spacing: 8

    component Detail: PlainLabel {
        Layout.fillWidth: true
        color: Theme.secondaryText
        elide: Text.ElideRight
    }

    PlainLabel {
        text: qsTranslate("OrderTakingFloorPlan", "Reservation Details")
        font.bold: true
    }

    Detail {
        text: qsTranslate("OrderTakingFloorPlan", "Customer: ") + root.reservation.customer_name
    }

    Detail {
        text: qsTranslate("OrderTakingFloorPlan", "Phone: ") + root.reservation.customer_phone
    }

    Detail {
        text: qsTranslate("OrderTakingFloorPlan", "Guests: ") + root.reservation.pax
    }

    Detail {
        text: qsTranslate("OrderTakingFloorPlan", "Time: ") + root.reservation.datetime_label
    }

    Detail {
        text: qsTranslate("OrderTakingFloorPlan", "Duration: ") + root.reservation.duration_minutes + qsTranslate("OrderTakingFloorPlan", " mins")
    }

    Detail {
        text: qsTranslate("OrderTakingFloorPlan", "Status: ") + root.reservation.status
    }

    Detail {
        text: qsTranslate("OrderTakingFloorPlan", "Notes: ") + root.reservation.notes
        elide: Text.ElideNone
        wrapMode: Text.Wrap
    }

    FilledButton {
        Layout.fillWidth: true
        text: qsTranslate("OrderTakingFloorPlan", "Update Reservation")
        fillColor: "#4faba1"
        onClicked: root.updateRequested()
    }

    // At once, with no question asked.
    FilledButton {
        Layout.fillWidth: true
        text: qsTranslate("OrderTakingFloorPlan", "Cancel Reservation")
        fillColor: "#5a5a5a"
        onClicked: Work.start(root.cancelRequested)
    }
}
