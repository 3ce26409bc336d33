// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// The one tax. Its rate is typed in per cent and kept in hundredths of one.
SettingsPage {
    id: root

    function load(): void {
        root.fill(SettingService.getTaxSettings())
    }

    function fill(settings: var): void {
        if (settings.id === undefined)
            return
        enabledSwitch.checked = settings.enabled
        nameField.text = settings.name
        rateField.text = (settings.rate / 100).toFixed(2)
        numberField.text = settings.registration_number
    }

    // The rate scaled by 100, rounded to the nearest. The service takes no number for 0, and one that
    // is too large for the highest there is.
    function scaledRate(): real {
        return Math.round(parseFloat(rateField.text) * 100)
    }

    function save(): void {
        // A switched-on tax without a rate is left alone, without a word. That is meant.
        if (enabledSwitch.checked && rateField.text.trim() === "")
            return
        // Switching the tax off forgets the rate and keeps name and number. That is meant.
        const saved = SettingService.saveTaxSettings({
            enabled: enabledSwitch.checked,
            name: nameField.text,
            rate: enabledSwitch.checked ? root.scaledRate() : 0,
            registration_number: numberField.text
        })
        if (!saved)
            root.errorMessage = qsTr("Failed to save tax settings.")
    }

    heading: qsTr("Tax Settings")
    saveText: qsTr("Save")

    SettingsSection {
        title: qsTr("General")

        SettingsSwitch {
            id: enabledSwitch

            label: qsTr("Enable Tax")
        }

        SettingsRow {
            label: qsTr("Tax Name")
            visible: enabledSwitch.checked

            ThemedField {
                id: nameField

                Layout.preferredWidth: 240
                label: qsTr("Tax Name")
                placeholderText: qsTr("e.g. Sales Tax")
            }
        }

        SettingsRow {
            label: qsTr("Tax Rate (%)")
            visible: enabledSwitch.checked

            PointField {
                id: rateField

                Layout.preferredWidth: 150
                label: qsTr("Tax Rate (%)")
            }
        }

        SettingsRow {
            label: qsTr("Registration Number")
            visible: enabledSwitch.checked

            ThemedField {
                id: numberField

                Layout.preferredWidth: 240
                label: qsTr("Registration Number")
                placeholderText: qsTr("Registration Number")
            }
        }
    }

    onSaveRequested: root.save()
    Component.onCompleted: root.load()
}
