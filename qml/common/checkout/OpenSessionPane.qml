// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The open session being cashed up. The texts belong to the checkout screen and are translated
// with it.
ColumnLayout {
    id: root

    // The checkout page, which keeps the state.
    required property var page
    readonly property var session: page.selectedSession

    spacing: 8

    PageHeading {
        text: root.session ? qsTranslate("Checkout", "Order #") + root.session.display_number : ""
    }

    ScrollingList {
        id: bill

        Layout.fillWidth: true
        Layout.fillHeight: true
        spacing: 16
        model: root.page.checkoutDetails

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Checkout", "Order ")

        delegate: BilledOrder {
            required property var modelData

            width: bill.rowWidth
            order: modelData
            showsMark: root.page.requireReadyForCheckout
        }
    }

    MemberBlock {
        Layout.fillWidth: true
        visible: root.page.membershipEnabled
        page: root.page
    }

    PlainLabel {
        text: root.session ? qsTranslate("Checkout", "Subtotal: ") + root.page.money(root.session.subtotal) : ""
    }

    PlainLabel {
        text: root.session ? qsTranslate("Checkout", "Tax: ") + root.page.money(root.session.tax) : ""
    }

    PlainLabel {
        visible: root.page.redeemDiscountPreview > 0
        text: qsTranslate("Checkout", "Discount: -") + root.page.money(root.page.redeemDiscountPreview)
        color: Theme.orange
        font.bold: true
    }

    PlainLabel {
        text: qsTranslate("Checkout", "Total: ") + root.page.money(root.page.finalTotalPreview)
        font.bold: true
    }

    FilledButton {
        Layout.fillWidth: true
        Layout.topMargin: 15
        padding: 10
        radius: 6
        enabled: root.page.canCheckout
        dimmed: false
        text: qsTranslate("Checkout", "Checkout")
        fillColor: root.page.canCheckout ? Theme.primary() : Theme.surface
        textColor: root.page.canCheckout ? "white" : Theme.secondaryText
        onClicked: Work.start(root.page.checkout)
    }
}
