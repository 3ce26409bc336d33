// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// Language and currency. A new language speaks from the next start on.
SettingsPage {
    id: root

    property int settingsId: 1

    function load(): void {
        root.fill(SettingService.getRegionalSettings())
    }

    function fill(settings: var): void {
        if (settings.id === undefined)
            return
        root.settingsId = settings.id
        languageBox.selectValue(settings.locale || "en_US")
        currencyBox.selectValue(settings.currency_code || "USD")
    }

    function save(): void {
        const saved = SettingService.saveRegionalSettings({
            id: root.settingsId,
            locale: languageBox.chosenValue,
            currency_code: currencyBox.chosenValue
        })
        if (!saved)
            root.errorMessage = qsTr("Failed to save regional settings.")
    }

    heading: qsTr("Region & Format Settings")
    saveText: qsTr("Save")

    SettingsSection {
        title: qsTr("Region & Language")

        SettingsRow {
            label: qsTr("App Language")

            ThemedComboBox {
                id: languageBox

                Layout.preferredWidth: 220
                label: qsTr("App Language")
                // Each language under its own name, whatever language is on.
                model: [
                    { text: "English (United States)", value: "en_US" },
                    { text: "中文 (简体)", value: "zh_CN" }
                ]
            }
        }
    }

    SettingsSection {
        title: qsTr("Currency")

        SettingsRow {
            label: qsTr("Currency")

            ThemedComboBox {
                id: currencyBox

                Layout.preferredWidth: 220
                label: qsTr("Currency")
                model: [
                    { text: "$ (USD)", value: "USD" },
                    { text: "RM (MYR)", value: "MYR" },
                    { text: "€ (EUR)", value: "EUR" },
                    { text: "¥ (CNY)", value: "CNY" }
                ]
            }
        }
    }

    onSaveRequested: root.save()
    Component.onCompleted: root.load()
}
