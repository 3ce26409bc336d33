// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Backup, restore and move of the store's file. What went wrong in detail is in the log.
ScrollPage {
    id: root

    property string selectedFolder
    property string destinationPreview
    property string selectedRestoreFile
    property string errorMessage
    property string successMessage
    property bool moveInProgress: false
    readonly property string currentDatabasePath: AppService.databasePath()
    readonly property string databaseFolder: currentDatabasePath.replace(/[\/\\][^\/\\]*$/, "")

    function clearMessages(): void {
        root.errorMessage = ""
        root.successMessage = ""
    }

    function startBackup(): void {
        if (backupRest.running)
            return
        Work.start(root.backup)
        backupRest.restart()
    }

    function backup(): void {
        root.clearMessages()
        if (DatabaseService.backupDatabase())
            root.successMessage = qsTr("Database backup created successfully.")
        else
            root.errorMessage = qsTr("Failed to create database backup.")
    }

    function chooseRestoreFile(url: url): void {
        // The built-in dialog may accept with nothing chosen.
        root.selectedRestoreFile = AppService.localPath(url)
        if (root.selectedRestoreFile !== "")
            restoreDialog.open()
    }

    function restore(): void {
        if (DatabaseService.restoreDatabase(root.selectedRestoreFile)) {
            root.successMessage = qsTr("Database restored successfully.")
            Qt.callLater(SetupService.restartApp) // qmllint disable type
        } else {
            root.errorMessage = qsTr("Failed to restore database.")
        }
    }

    function chooseFolder(url: url): void {
        root.selectedFolder = AppService.localPath(url)
        if (root.selectedFolder === "")
            return
        const fileName = root.currentDatabasePath.split("/").pop()
        root.destinationPreview = root.selectedFolder + "/ZelvanPOS/data/" + fileName
        moveDialog.open()
    }

    function move(): void {
        root.moveInProgress = true
        const moved = DatabaseService.moveDatabase(root.selectedFolder)
        root.moveInProgress = false
        if (moved) {
            root.successMessage = qsTr("Database moved successfully.")
            Qt.callLater(SetupService.restartApp) // qmllint disable type
        } else {
            root.errorMessage = qsTr("Failed to move database.")
        }
    }

    footer: [
        ErrorLabel {
            Layout.fillWidth: true
            text: root.errorMessage
            visible: text !== ""
        },
        PlainLabel {
            Layout.fillWidth: true
            color: "green"
            font.bold: true
            text: root.successMessage
            visible: text !== ""
            wrapMode: Text.WordWrap
        }
    ]
    heading: qsTr("Database Settings")

    SettingsSection {
        Layout.fillWidth: true
        title: qsTr("Current Database")

        PathBox {
            Layout.fillWidth: true
            path: root.currentDatabasePath
        }

        PlainLabel {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: qsTr("This database contains restaurant information, orders, memberships, tables, reservations, application settings and other operational data.")
            wrapMode: Text.WordWrap
        }
    }

    SettingsSection {
        Layout.fillWidth: true
        title: qsTr("Database Management")

        PlainLabel {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: qsTr("Backups are stored in a 'backups' folder next to the database file.")
            wrapMode: Text.WordWrap
        }

        RowLayout {
            spacing: 12

            ActionButton {
                enabled: !root.moveInProgress
                fillColor: "#4faba1"
                text: qsTr("Backup Database")

                onClicked: root.startBackup()
            }

            ActionButton {
                enabled: !root.moveInProgress
                fillColor: "#ebac00"
                text: qsTr("Restore Database")

                onClicked: {
                    root.clearMessages()
                    fileDialog.currentFolder = AppService.folderUrl(root.databaseFolder + "/backups")
                    fileDialog.open()
                }
            }
        }

        ActionButton {
            enabled: !root.moveInProgress
            fillColor: "#5F7DDC"
            text: qsTr("Move Database")

            onClicked: {
                root.clearMessages()
                folderDialog.currentFolder = AppService.folderUrl(root.databaseFolder)
                folderDialog.open()
            }
        }
    }

    // A backup is named after its second, and a second one in it would fail.
    Timer {
        id: backupRest

        interval: 1000
    }

    FileDialog {
        id: fileDialog

        objectName: "fileDialog"
        nameFilters: ["Database Files (*.db *.sqlite *.sqlite3)", "All Files (*)"]
        title: qsTr("Select Restore Database File")

        onAccepted: root.chooseRestoreFile(selectedFile)
    }

    FolderDialog {
        id: folderDialog

        objectName: "folderDialog"
        title: qsTr("Select New Database Location")

        onAccepted: root.chooseFolder(selectedFolder)
    }

    RestoreDatabaseDialog {
        id: restoreDialog

        file: root.selectedRestoreFile

        onAccepted: root.restore()
    }

    MoveDatabaseDialog {
        id: moveDialog

        currentPath: root.currentDatabasePath
        newPath: root.destinationPreview

        onAccepted: root.move()
    }
}
