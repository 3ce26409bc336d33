// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The member's phone, what the look-up found, and the redemption: all points or none. The texts
// belong to the checkout screen and are translated with it.
ColumnLayout {
    id: root

    // The checkout page, which keeps the state.
    required property var page
    readonly property string phone: page.memberPhone

    spacing: 6

    // The page empties the phone without that counting as a change of the field.
    onPhoneChanged: {
        if (phoneField.text.trim() === phone)
            return
        phoneField.refilling = true
        phoneField.text = phone
        phoneField.refilling = false
    }

    PlainLabel {
        text: qsTranslate("Checkout", "Member Phone (optional)")
    }

    RowLayout {
        spacing: 8

        ThemedField {
            id: phoneField

            property bool refilling: false

            Layout.preferredWidth: 200
            label: qsTranslate("Checkout", "Member Phone (optional)")
            onTextChanged: if (!refilling) root.page.changePhone(text)
            onAccepted: root.page.updateMembershipPreview()
        }

        FilledButton {
            text: qsTranslate("Checkout", "Check")
            fillColor: "#4faba1"
            enabled: root.page.memberPhone !== ""
            onClicked: root.page.updateMembershipPreview()
        }
    }

    PlainLabel {
        visible: root.page.membershipChecked
        text: root.page.memberId > 0 ? qsTranslate("Checkout", "Current Points: ") + root.page.currentPoints : qsTranslate("Checkout", "New member will be created")
        color: root.page.memberId > 0 ? Theme.green : Theme.orange
        font.bold: true
    }

    PlainLabel {
        visible: root.page.membershipChecked
        text: qsTranslate("Checkout", "Points to Earn: +") + root.page.earnedPointsPreview
        color: Theme.primary()
    }

    RowLayout {
        visible: root.page.memberId > 0 && root.page.currentPoints > 0
        spacing: 8

        FilledButton {
            text: qsTranslate("Checkout", "Redeem All")
            fillColor: "#ffaa66"
            textColor: "black"
            onClicked: root.page.redeem(root.page.currentPoints)
        }

        FilledButton {
            text: qsTranslate("Checkout", "Clear")
            fillColor: "#5F7DDC"
            onClicked: root.page.redeem(0)
        }
    }
}
