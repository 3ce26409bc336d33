// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtCore
import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Chooses the folder of a new database and builds the database there.
SetupFrame {
    id: root

    property string selectedPath
    property bool running: false
    property string errorText

    function setUp(): void {
        root.errorText = ""
        root.running = true
        const path = root.selectedPath + "/Zelvan.db"
        switch (SetupService.initializeApp(path)) {
        case SetupService.Success:
            root.running = false
            Qt.callLater(SetupService.restartApp) // qmllint disable type
            break
        case SetupService.DatabaseExists:
            root.running = false
            // qmllint disable unqualified
            stackView.push("SetupDBChoice.qml", { mode: "exists", currentPath: path })
            // qmllint enable unqualified
            break
        // After a failure `running` stays set on purpose: this run ends here, and the program has to be
        // started again.
        case SetupService.InvalidPath:
            root.errorText = qsTr("Invalid path")
            break
        case SetupService.InitializationFailed:
            root.errorText = qsTr("Setup failed. Please try again.")
            break
        }
    }

    backEnabled: !running
    backText: qsTr("Back")
    startItem: doneButton

    PlainLabel {
        Layout.fillWidth: true
        font.bold: true
        font.pixelSize: Theme.fontLarge
        text: qsTr("Choose database location")
        wrapMode: Text.WordWrap
    }

    PlainLabel {
        id: instruction

        Layout.fillWidth: true
        color: Theme.secondaryText
        text: qsTr("Select where the database file will be stored.")
        wrapMode: Text.WordWrap
    }

    RowLayout {
        spacing: 8

        ThemedField {
            Layout.fillWidth: true
            label: instruction.text
            readOnly: true
            text: root.selectedPath
        }

        FilledButton {
            Layout.preferredHeight: 40
            fillColor: "#6c8cff"
            leftPadding: 15
            radius: 2
            rightPadding: 15
            text: qsTr("Browse")

            onClicked: {
                folderDialog.currentFolder = AppService.folderUrl(root.selectedPath)
                folderDialog.open()
            }
        }
    }

    PrimaryButton {
        id: doneButton

        Layout.fillWidth: true
        enabled: root.selectedPath !== "" && !root.running
        padding: 12
        text: qsTr("Done")

        onClicked: Work.start(root.setUp)
    }

    SetupStatus {
        errorText: root.errorText
        running: root.running
        runningText: qsTr("Setting up...")
    }

    FolderDialog {
        id: folderDialog

        objectName: "folderDialog"
        title: qsTr("Select Database Folder")

        // The built-in dialog may accept with nothing chosen.
        onAccepted: {
            const folder = AppService.localPath(selectedFolder)
            if (folder !== "")
                root.selectedPath = folder
        }
    }

    onBackRequested: stackView.pop() // qmllint disable unqualified
    Component.onCompleted: {
        const documents = StandardPaths.writableLocation(StandardPaths.DocumentsLocation)
        root.selectedPath = AppService.localPath(documents) + "/ZelvanPOS/data"
    }
}
