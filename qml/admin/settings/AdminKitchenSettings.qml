// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// How orders reach the kitchen. What a hidden control holds is saved all the same.
SettingsPage {
    id: root

    property int settingsId: 1
    readonly property string mode: modeBox.currentValue ?? ""

    function load(): void {
        root.fill(SettingService.getKitchenSettings())
    }

    function fill(settings: var): void {
        if (settings.id === undefined)
            return
        root.settingsId = settings.id
        modeBox.selectValue(settings.mode || "none")
        timingBox.selectValue(settings.ticket_print_timing || "order_created")
        readySwitch.checked = settings.require_ready_for_checkout
        editSwitch.checked = settings.allow_edit_after_send
    }

    function save(): void {
        const saved = SettingService.saveKitchenSettings({
            id: root.settingsId,
            mode: modeBox.chosenValue,
            ticket_print_timing: timingBox.chosenValue,
            require_ready_for_checkout: readySwitch.checked ? 1 : 0,
            allow_edit_after_send: editSwitch.checked ? 1 : 0
        })
        if (!saved)
            root.errorMessage = qsTr("Failed to save kitchen settings.")
    }

    heading: qsTr("Kitchen Settings")
    saveText: qsTr("Save")

    SettingsSection {
        title: qsTr("Kitchen Workflow")

        SettingsRow {
            label: qsTr("Kitchen Mode")

            ThemedComboBox {
                id: modeBox

                Layout.preferredWidth: 240
                label: qsTr("Kitchen Mode")
                model: [
                    { text: qsTr("No kitchen system"), value: "none" },
                    { text: qsTr("Kitchen Display System (KDS)"), value: "kds" },
                    { text: qsTr("Kitchen ticket printing"), value: "tickets" },
                    { text: qsTr("KDS + ticket printing"), value: "hybrid" }
                ]
            }
        }
    }

    SettingsSection {
        title: qsTr("Kitchen Ticket Printing")
        visible: root.mode === "tickets" || root.mode === "hybrid"

        SettingsRow {
            label: qsTr("Print Ticket When")

            ThemedComboBox {
                id: timingBox

                Layout.preferredWidth: 240
                label: qsTr("Print Ticket When")
                model: [
                    { text: qsTr("Order is created"), value: "order_created" },
                    { text: qsTr("Manual only"), value: "manual" }
                ]
            }
        }
    }

    SettingsSection {
        title: qsTr("Checkout Rules")
        visible: root.mode === "kds" || root.mode === "hybrid"

        SettingsSwitch {
            id: readySwitch

            label: qsTr("Require kitchen ready before checkout")
        }
    }

    SettingsSection {
        title: qsTr("Order Modification")

        SettingsSwitch {
            id: editSwitch

            label: qsTr("Allow edits after order creation")
        }
    }

    onSaveRequested: root.save()
    Component.onCompleted: root.load()
}
