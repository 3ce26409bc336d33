// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Which of the system's printers prints what.
ScrollPage {
    id: root

    property var printers: []
    property string errorMessage

    function loadPrinters(): void {
        root.printers = SettingService.getPrinters()
    }

    function roleLabel(role: string): string {
        switch (role) {
        case "receipt":
            return qsTr("Receipt Printer")
        case "kitchen":
            return qsTr("Kitchen Printer")
        case "both":
            return qsTr("Receipt + Kitchen Printer")
        default:
            return qsTr("Printer")
        }
    }

    function removePrinter(printerId: int): void {
        if (slideGuard.running)
            return
        slideGuard.restart()
        if (SettingService.removePrinter(printerId))
            root.loadPrinters()
        else
            root.errorMessage = qsTr("Failed to remove printer")
    }

    footer: ErrorLabel {
        Layout.fillWidth: true
        text: root.errorMessage
    }
    heading: qsTr("Printing")

    SettingsSection {
        Layout.fillWidth: true
        title: qsTr("Printers")

        ActionButton {
            fillColor: "#6c7ddd"
            text: qsTr("+ Add Printer")

            onClicked: printerDialog.openForNew()
        }

        EmptyHint {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignLeft
            visible: root.printers.length === 0
            text: qsTranslate("Hints", "No printers yet. Press + Add Printer to choose one.")
        }

        ListView {
            Layout.fillWidth: true
            Layout.preferredHeight: contentHeight
            interactive: false
            model: root.printers
            spacing: 12

            delegate: Rectangle {
                id: card

                required property var modelData

                width: ListView.view.width
                height: cardRow.implicitHeight + 24
                Accessible.name: modelData.system_name
                Accessible.description: root.roleLabel(modelData.role)
                Accessible.role: Accessible.ListItem
                color: Theme.surface
                radius: 4

                RowLayout {
                    id: cardRow

                    anchors.fill: parent
                    anchors.bottomMargin: 12
                    anchors.leftMargin: 16
                    anchors.rightMargin: 16
                    anchors.topMargin: 12
                    spacing: 8

                    ColumnLayout {
                        Layout.fillWidth: true
                        spacing: 4

                        PlainLabel {
                            Layout.fillWidth: true
                            elide: Text.ElideRight
                            font.bold: true
                            text: root.roleLabel(card.modelData.role)
                        }

                        PlainLabel {
                            Layout.fillWidth: true
                            color: Theme.secondaryText
                            elide: Text.ElideRight
                            text: card.modelData.system_name
                        }
                    }

                    RowButton {
                        minimumHeight: 40
                        fillColor: "#ebac00"
                        text: qsTr("Edit")

                        onClicked: printerDialog.loadPrinterForEdit(card.modelData)
                    }

                    RowButton {
                        minimumHeight: 40
                        fillColor: "#4faba1"
                        text: qsTr("Test")

                        // The result is not shown; the log has it.
                        onClicked: Work.start(() => WindowsPrinterService.testPrint(card.modelData))
                    }

                    RowButton {
                        minimumHeight: 40
                        fillColor: "#e53935"
                        text: qsTr("Remove")

                        onClicked: root.removePrinter(card.modelData.id)
                    }
                }
            }
        }
    }

    SlideGuard {
        id: slideGuard
    }

    PrinterDialog {
        id: printerDialog

        onSaved: root.loadPrinters()
    }

    Component.onCompleted: root.loadPrinters()
}
