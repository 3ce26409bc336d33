// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Adds or changes a printer. The texts belong to the page of the printers; those of the status line
// are English in every language.
ModalFrame {
    id: printerRoot

    property string selectedPrinter
    property string testStatus
    property string role: "receipt"
    property int paperWidth: 58
    property string cutMode: "none"
    property bool isEditMode: false
    property int editingPrinterId: -1
    /// The system's printers, asked for once.
    readonly property var portsModel: WindowsPrinterService.getAvailablePrinters()

    signal saved()

    function openForNew(): void {
        printerRoot.fill({ id: -1, system_name: "", role: "receipt", paper_width: 58, cut_mode: "none" }, false)
    }

    function loadPrinterForEdit(printer: var): void {
        printerRoot.fill(printer, true)
    }

    function fill(printer: var, editMode: bool): void {
        printerRoot.editingPrinterId = printer.id
        printerRoot.selectedPrinter = printer.system_name
        printerRoot.role = printer.role
        printerRoot.paperWidth = printer.paper_width
        printerRoot.cutMode = printer.cut_mode
        printerRoot.isEditMode = editMode
        printerRoot.testStatus = ""
        roleBox.selectValue(printer.role)
        paperBox.selectValue(printer.paper_width)
        cutBox.selectValue(printer.cut_mode)
        printerRoot.open()
    }

    function testPrinter(): void {
        printerRoot.testStatus = "Testing..."
        const printed = WindowsPrinterService.testPrint({
            system_name: printerRoot.selectedPrinter,
            role: printerRoot.role,
            paper_width: printerRoot.paperWidth,
            cut_mode: printerRoot.cutMode
        })
        printerRoot.testStatus = printed ? "Success" : "Failed"
    }

    function save(): void {
        if (printerRoot.selectedPrinter === "") {
            printerRoot.testStatus = "No printer selected"
            return
        }
        const saved = SettingService.savePrinter({
            id: printerRoot.isEditMode ? printerRoot.editingPrinterId : 0,
            name: printerRoot.selectedPrinter,
            system_name: printerRoot.selectedPrinter,
            role: printerRoot.role,
            paper_width: printerRoot.paperWidth,
            cut_mode: printerRoot.cutMode
        })
        if (!saved) {
            printerRoot.testStatus = printerRoot.isEditMode ? "Failed to update printer" : "Failed to add printer"
            return
        }
        printerRoot.close()
        printerRoot.saved()
    }

    mainButton: saveButton
    width: 400
    height: 500

    ColumnLayout {
        anchors.fill: parent
        spacing: 8

        PageHeading {
            text: qsTranslate("AdminPrinterSettings", "Printers")
        }

        PlainLabel {
            color: Theme.secondaryText
            text: printerRoot.portsModel.length === 0
                  ? qsTranslate("AdminPrinterSettings", "No printers found")
                  : qsTranslate("AdminPrinterSettings", "Select a printer")
        }

        ScrollingList {
            id: printerList

            Layout.fillWidth: true
            Layout.preferredHeight: 140
            model: printerRoot.portsModel

            delegate: ThemedRadioButton {
                required property var modelData

                width: printerList.rowWidth
                checked: printerRoot.selectedPrinter === modelData.system_name
                text: modelData.system_name

                onToggled: printerRoot.selectedPrinter = modelData.system_name
            }
        }

        SettingsRow {
            label: qsTranslate("AdminPrinterSettings", "Role")
            labelWidth: 110

            ThemedComboBox {
                id: roleBox

                Layout.fillWidth: true
                label: qsTranslate("AdminPrinterSettings", "Role")
                model: [
                    { text: qsTranslate("AdminPrinterSettings", "Receipt"), value: "receipt" },
                    { text: qsTranslate("AdminPrinterSettings", "Kitchen Ticket"), value: "kitchen" },
                    { text: qsTranslate("AdminPrinterSettings", "Receipt + Kitchen Ticket"), value: "both" }
                ]

                onActivated: printerRoot.role = currentValue
            }
        }

        SettingsRow {
            label: qsTranslate("AdminPrinterSettings", "Paper Width")
            labelWidth: 110

            ThemedComboBox {
                id: paperBox

                Layout.fillWidth: true
                label: qsTranslate("AdminPrinterSettings", "Paper Width")
                model: [
                    { text: qsTranslate("AdminPrinterSettings", "58 mm"), value: 58 },
                    { text: qsTranslate("AdminPrinterSettings", "80 mm"), value: 80 }
                ]

                onActivated: printerRoot.paperWidth = currentValue
            }
        }

        SettingsRow {
            label: qsTranslate("AdminPrinterSettings", "Cut Mode")
            labelWidth: 110

            ThemedComboBox {
                id: cutBox

                Layout.fillWidth: true
                label: qsTranslate("AdminPrinterSettings", "Cut Mode")
                model: [
                    { text: qsTranslate("AdminPrinterSettings", "Full Cut"), value: "full" },
                    { text: qsTranslate("AdminPrinterSettings", "Partial Cut"), value: "partial" },
                    { text: qsTranslate("AdminPrinterSettings", "None"), value: "none" }
                ]

                onActivated: printerRoot.cutMode = currentValue
            }
        }

        Item {
            Layout.fillHeight: true
        }

        RowLayout {
            spacing: 8

            FilledButton {
                Layout.fillWidth: true
                borderColor: Theme.primary()
                fillColor: "transparent"
                text: qsTranslate("AdminPrinterSettings", "Cancel")
                textColor: Theme.text

                onClicked: printerRoot.close()
            }

            FilledButton {
                Layout.fillWidth: true
                fillColor: "#5F7DDC"
                text: qsTranslate("AdminPrinterSettings", "Test Printer")

                onClicked: Work.start(printerRoot.testPrinter)
            }

            PrimaryButton {
                id: saveButton

                Layout.fillWidth: true
                text: printerRoot.isEditMode ? qsTranslate("AdminPrinterSettings", "Save Changes")
                                             : qsTranslate("AdminPrinterSettings", "Add Printer")

                onClicked: Work.start(printerRoot.save)
            }
        }

        PlainLabel {
            Layout.fillWidth: true
            color: printerRoot.testStatus.includes("Success") ? "lightgreen"
                 : printerRoot.testStatus === "Testing..." ? "orange" : "red"
            text: printerRoot.testStatus
            wrapMode: Text.WordWrap
        }
    }
}
