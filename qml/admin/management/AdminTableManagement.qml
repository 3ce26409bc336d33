// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0
import "../../components/Fields.js" as Fields

// The tables of a store without a floor plan.
Rectangle {
    id: root

    readonly property Item startItem: newTableField

    function confirmDeletion(tableId: int, name: string): void {
        // Nothing looks at whether the table is occupied: its session lives on without a table.
        confirmationDialog.message = qsTr("Are you sure you want to delete table \"%1\"?").arg(name)
        confirmationDialog.confirmCallback = confirmed => {
            if (confirmed)
                TableService.removeTable(tableId)
        }
        confirmationDialog.open()
    }

    function add(): void {
        if (newTableField.text.trim() === "")
            return
        // Only 0, a failed write, keeps the form: the -1 of a refusal counts as done. That is meant.
        if (!TableService.addTable(newTableField.text, newCapacityBox.value))
            return
        newTableField.clear()
        newCapacityBox.value = 4
        newTableField.forceActiveFocus()
    }

    width: 800
    height: 600
    color: Theme.background

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        PageHeading {
            text: qsTr("Table Management")
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 36
            color: Theme.surface
            radius: 4

            RowLayout {
                anchors.fill: parent
                anchors.leftMargin: 8
                anchors.rightMargin: 8
                spacing: 10

                TableHeaderLabel {
                    Layout.fillWidth: true
                    text: qsTr("Table Name")
                }

                TableHeaderLabel {
                    Layout.preferredWidth: 80
                    text: qsTr("Capacity")
                }

                Item {
                    Layout.preferredWidth: 150
                }
            }
        }

        EditableList {
            id: tableList

            Layout.fillHeight: true
            Layout.fillWidth: true
            model: TableService.tableModel
            spacing: 4

            delegate: EditableTableRow {
                required property var model

                width: tableList.rowWidth
                capacity: model.capacity
                drafts: rowDrafts
                name: model.name
                tableId: model.id

                onDeleteRequested: (tableId, name) => root.confirmDeletion(tableId, name)
            }

            EmptyHint {
                parent: tableList
                visible: tableList.count === 0
                text: qsTranslate("Hints", "No tables yet. Type a name below, then press Add Table.")
            }
        }

        ColumnLayout {
            id: form

            spacing: 8

            Keys.onPressed: event => Fields.goOn(event, form, addButton)

            RowLayout {
                spacing: 8

                ThemedField {
                    id: newTableField

                    Layout.fillWidth: true
                    placeholderText: qsTr("Table name")
                }

                ThemedSpinBox {
                    id: newCapacityBox

                    Layout.preferredWidth: 80
                    label: qsTr("Capacity")
                    value: 6
                }
            }

            PrimaryButton {
                id: addButton

                Layout.fillWidth: true
                Layout.topMargin: 15
                padding: 15
                text: qsTr("Add Table")

                onClicked: root.add()
            }
        }
    }

    RowDrafts {
        id: rowDrafts
    }

    ConfirmationDialog {
        id: confirmationDialog

        anchors.centerIn: root
        parent: root
        // English in every language.
        title: "Delete Table"
    }
}
