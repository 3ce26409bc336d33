// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// A paid session with its stored figures and the reprint. The texts belong to the checkout screen
// and are translated with it.
ColumnLayout {
    id: root

    // The checkout page, which keeps the state.
    required property var page
    readonly property var details: page.selectedRecentDetails ?? ({ display_number: "", orders: [], subtotal: 0, tax: 0, discount: 0, total: 0 })

    spacing: 8

    PageHeading {
        text: qsTranslate("Checkout", "Order #") + root.details.display_number
    }

    ScrollingList {
        id: bill

        Layout.fillWidth: true
        Layout.fillHeight: true
        spacing: 16
        model: root.details.orders

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Checkout", "Order ")

        delegate: BilledOrder {
            required property var modelData

            width: bill.rowWidth
            order: modelData
        }
    }

    Rectangle {
        Layout.fillWidth: true
        Layout.preferredHeight: 1
        color: Theme.border
    }

    PlainLabel {
        text: qsTranslate("Checkout", "Subtotal: ") + root.page.money(root.details.subtotal)
    }

    PlainLabel {
        text: qsTranslate("Checkout", "Tax: ") + root.page.money(root.details.tax)
    }

    PlainLabel {
        visible: root.details.discount > 0
        text: qsTranslate("Checkout", "Discount: -") + root.page.money(root.details.discount)
        color: Theme.orange
        font.bold: true
    }

    PlainLabel {
        text: qsTranslate("Checkout", "Total: ") + root.page.money(root.details.total)
        color: Theme.green
        font.bold: true
    }

    PrimaryButton {
        Layout.fillWidth: true
        text: qsTranslate("Checkout", "Reprint Receipt")
        onClicked: Work.start(root.page.reprint, Work.pauseOfPaper)
    }
}
