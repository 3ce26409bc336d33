// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtCore
import QtQuick.Dialogs
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Chooses an existing database for this computer.
SetupFrame {
    id: root

    property string selectedPath
    property bool running: false
    property string errorText
    // Where a store's file is or would have been: the saved path, or the place that a new one gets.
    readonly property string proposedPath: AppService.databasePath()
        || AppService.localPath(StandardPaths.writableLocation(StandardPaths.DocumentsLocation)) + "/ZelvanPOS/data"

    function openSelected(): void {
        root.errorText = ""
        root.running = true
        if (DatabaseService.openDatabase(root.selectedPath)) {
            Qt.callLater(SetupService.restartApp) // qmllint disable type
            return
        }
        root.running = false
        root.errorText = qsTr("The selected file could not be opened as a Zelvan database.")
    }

    backEnabled: !running
    backText: qsTr("Back")
    startItem: browseButton

    PlainLabel {
        Layout.fillWidth: true
        font.bold: true
        font.pixelSize: Theme.fontLarge
        text: qsTr("Open Existing Database")
        wrapMode: Text.WordWrap
    }

    PlainLabel {
        id: instruction

        Layout.fillWidth: true
        color: Theme.secondaryText
        text: qsTr("Select an existing Zelvan database to use.")
        wrapMode: Text.WordWrap
    }

    RowLayout {
        spacing: 8

        ThemedField {
            Layout.fillWidth: true
            label: instruction.text
            placeholderText: qsTr("No database selected")
            readOnly: true
            text: root.selectedPath
        }

        FilledButton {
            id: browseButton

            Layout.preferredHeight: 40
            fillColor: "#6c8cff"
            leftPadding: 15
            radius: 2
            rightPadding: 15
            text: qsTr("Browse")

            onClicked: {
                fileDialog.currentFolder = AppService.folderUrl(root.selectedPath || root.proposedPath)
                fileDialog.open()
            }
        }
    }

    PrimaryButton {
        Layout.fillWidth: true
        enabled: root.selectedPath !== "" && !root.running
        padding: 12
        text: qsTr("Open Database")

        onClicked: Work.start(root.openSelected)
    }

    SetupStatus {
        errorText: root.errorText
        running: root.running
        runningText: qsTr("Opening database...")
    }

    FileDialog {
        id: fileDialog

        objectName: "fileDialog"
        nameFilters: [qsTr("Zelvan Database (*.db)"), qsTr("All Files (*)")]
        title: qsTr("Select Zelvan Database")

        // The built-in dialog may accept with nothing chosen.
        onAccepted: {
            const path = AppService.localPath(selectedFile)
            if (path !== "")
                root.selectedPath = path
        }
    }

    onBackRequested: stackView.pop() // qmllint disable unqualified
}
