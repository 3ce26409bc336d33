// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// The first screen without a usable database: what is there, and what can be done about it.
SetupFrame {
    id: root

    /// "none", "exists", "missing" or "unusable".
    property string mode: "none"
    property string currentPath

    readonly property var titles: ({
        none: qsTr("Set up Zelvan"),
        exists: qsTr("Database Already Exists"),
        missing: qsTr("Database Not Found"),
        unusable: qsTr("Database Cannot Be Opened or Is Not a Valid Zelvan Database")
    })
    readonly property var descriptions: ({
        none: qsTr("Choose how you would like to set up your database."),
        exists: qsTr("A Zelvan database already exists at this location."),
        missing: qsTr("Zelvan couldn't find the database at the location saved on this computer."),
        unusable: qsTr("A database was found at the location saved on this computer, but Zelvan could not use it.")
    })

    function createHere(): void {
        switch (SetupService.initializeApp(root.currentPath)) {
        case SetupService.Success:
            Qt.callLater(SetupService.restartApp) // qmllint disable type
            break
        case SetupService.DatabaseExists:
            // qmllint disable unqualified
            stackView.push("SetupDBChoice.qml", { mode: "exists", currentPath: root.currentPath })
            break
        // This screen has no place for a reason, and is meant to stay as it is: the name below is not
        // declared, so that the text ends in a line of the log.
        case SetupService.InvalidPath:
            errorText = qsTr("Invalid path")
            break
        case SetupService.InitializationFailed:
            errorText = qsTr("Setup failed. Please try again.")
            break
            // qmllint enable unqualified
        }
    }

    function useExisting(): void {
        // Restarts whatever the answer: the next start finds the old path where opening failed.
        DatabaseService.openDatabase(root.currentPath)
        Qt.callLater(SetupService.restartApp) // qmllint disable type
    }

    PlainLabel {
        Layout.fillWidth: true
        font.bold: true
        font.pixelSize: Theme.fontLarge
        text: root.titles[root.mode]
        wrapMode: Text.WordWrap
    }

    PlainLabel {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: root.descriptions[root.mode]
        wrapMode: Text.WordWrap
    }

    PlainLabel {
        Layout.fillWidth: true
        color: Theme.secondaryText
        elide: Text.ElideMiddle
        font.pixelSize: Theme.fontSmall
        text: root.currentPath
        visible: root.mode !== "none"
    }

    Item {
        Layout.preferredHeight: 8
    }

    SetupChoiceButton {
        Layout.fillWidth: true
        subtitle: qsTr("Start with a new, empty database.")
        text: qsTr("Create New Database")
        visible: root.mode === "none" || root.mode === "unusable"

        onClicked: stackView.push("SetupDBCreation.qml") // qmllint disable unqualified
    }

    SetupChoiceButton {
        Layout.fillWidth: true
        subtitle: qsTr("Use a Zelvan database that already exists.")
        text: qsTr("Open Existing Database")
        visible: root.mode === "none" || root.mode === "missing"

        onClicked: stackView.push("SetupDBOpen.qml") // qmllint disable unqualified
    }

    SetupChoiceButton {
        Layout.fillWidth: true
        subtitle: qsTr("Create a new database at the saved location.")
        text: qsTr("Create New Database Here")
        visible: root.mode === "missing"

        onClicked: Work.start(root.createHere)
    }

    SetupChoiceButton {
        Layout.fillWidth: true
        subtitle: qsTr("Open a different Zelvan database.")
        text: qsTr("Choose Another Database")
        visible: root.mode === "unusable"

        onClicked: stackView.push("SetupDBOpen.qml") // qmllint disable unqualified
    }

    SetupChoiceButton {
        Layout.fillWidth: true
        subtitle: qsTr("Open the database already at this location.")
        text: qsTr("Use Existing Database")
        visible: root.mode === "exists"

        onClicked: Work.start(root.useExisting)
    }

    SetupChoiceButton {
        Layout.fillWidth: true
        subtitle: qsTr("Choose a different location for your database.")
        text: qsTr("Choose Another Location")
        visible: root.mode === "exists"

        onClicked: stackView.pop() // qmllint disable unqualified
    }

    FilledButton {
        Layout.fillWidth: true
        Layout.preferredHeight: 70
        borderColor: Theme.error()
        fillColor: "transparent"
        font.pixelSize: Theme.fontSmall
        pressedColor: "red"
        radius: 6
        text: qsTr("Replace Existing Database")
        textColor: down ? "white" : Theme.error()
        visible: root.mode === "exists" || root.mode === "unusable"

        onClicked: replaceDialog.open()
    }

    ReplaceDatabaseDialog {
        id: replaceDialog

        anchors.centerIn: root.column
        currentPath: root.currentPath
        parent: root.column
    }

    Component.onCompleted: {
        if (root.mode === "missing" || root.mode === "unusable")
            root.currentPath = AppService.databasePath()
    }
}
