// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Whether tables are a list or a drawn plan.
SettingsPage {
    id: root

    property int settingsId: 1

    function load(): void {
        root.fill(SettingService.getTableSettings())
    }

    function fill(settings: var): void {
        if (settings.id === undefined)
            return
        root.settingsId = settings.id
        layoutBox.selectValue(settings.layout_mode || "simple")
    }

    function save(): void {
        root.errorMessage = ""
        if (!SettingService.saveTableSettings({ id: root.settingsId, layout_mode: layoutBox.chosenValue }))
            root.errorMessage = qsTr("Failed to save table settings.")
    }

    heading: qsTr("Table Settings")
    saveText: qsTr("Save")

    SettingsSection {
        title: qsTr("Table Layout")

        SettingsRow {
            label: qsTr("Layout Mode")

            ThemedComboBox {
                id: layoutBox

                Layout.preferredWidth: 240
                label: qsTr("Layout Mode")
                model: [
                    { text: qsTr("Simple Layout"), value: "simple" },
                    { text: qsTr("Visual Floor Plan"), value: "floor_plan" }
                ]
            }
        }

        PlainLabel {
            Layout.maximumWidth: 500
            Layout.preferredWidth: 500
            color: Theme.secondaryText
            text: qsTr("Visual floor plans allow tables to be positioned freely and support advanced restaurant layouts.")
            visible: layoutBox.currentValue === "floor_plan"
            wrapMode: Text.WordWrap
        }
    }

    onSaveRequested: root.save()
    Component.onCompleted: root.load()
}
