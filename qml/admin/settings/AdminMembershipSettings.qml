// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// The rules of the points. Nothing is checked: a rule with a zero in it simply never applies.
SettingsPage {
    id: root

    property int settingsId: 1
    property string currencySymbol: SettingService.currencySymbol()

    function load(): void {
        root.fill(SettingService.getMembershipSettings())
    }

    function fill(settings: var): void {
        if (settings.id === undefined)
            return
        root.settingsId = settings.id
        enabledSwitch.checked = settings.enabled
        earnPointsField.text = settings.earn_points
        earnSpendField.show(settings.earn_spend)
        redeemPointsField.text = settings.redeem_points
        redeemValueField.show(settings.redeem_value)
        earnOnBox.selectValue(settings.earn_on || "total")
    }

    function save(): void {
        const saved = SettingService.saveMembershipSettings({
            id: root.settingsId,
            enabled: enabledSwitch.checked,
            earn_points: parseInt(earnPointsField.text) || 0,
            earn_spend: earnSpendField.amount(),
            redeem_points: parseInt(redeemPointsField.text) || 0,
            redeem_value: redeemValueField.amount(),
            earn_on: earnOnBox.chosenValue
        })
        if (!saved)
            root.errorMessage = qsTr("Failed to save membership settings.")
    }

    heading: qsTr("Membership Settings")
    saveText: qsTr("Save")

    SettingsSection {
        title: qsTr("General")

        SettingsSwitch {
            id: enabledSwitch

            label: qsTr("Enable Points Loyalty")
        }
    }

    SettingsSection {
        title: qsTr("Earning Rules")
        visible: enabledSwitch.checked

        SettingsRow {
            labelWidth: root.width < 760 ? 200 : 230
            label: qsTr("Earn")

            WholeNumberField {
                id: earnPointsField

                label: qsTr("Earn")
                placeholderText: "1"
            }

            PlainLabel {
                id: earnSpendLabel

                text: qsTr("point(s) for every %1").arg(root.currencySymbol)
            }

            AmountField {
                id: earnSpendField

                label: earnSpendLabel.text
                placeholderText: "1.00"
            }

            PlainLabel {
                text: qsTr("spent")
            }
        }

        SettingsRow {
            labelWidth: root.width < 760 ? 200 : 230
            label: qsTr("Earn Based On")

            ThemedComboBox {
                id: earnOnBox

                Layout.preferredWidth: 220
                label: qsTr("Earn Based On")
                model: [
                    { text: qsTr("Total"), value: "total" },
                    { text: qsTr("Subtotal"), value: "subtotal" }
                ]
            }
        }
    }

    SettingsSection {
        title: qsTr("Redemption Rules")
        visible: enabledSwitch.checked

        SettingsRow {
            labelWidth: root.width < 760 ? 200 : 230
            label: qsTr("Redemption")

            WholeNumberField {
                id: redeemPointsField

                label: qsTr("Redemption")
                placeholderText: "100"
            }

            PlainLabel {
                id: redeemValueLabel

                text: qsTr("points = %1").arg(root.currencySymbol)
            }

            AmountField {
                id: redeemValueField

                label: redeemValueLabel.text
                placeholderText: "1.00"
            }
        }
    }

    onSaveRequested: root.save()
    Component.onCompleted: root.load()
}
