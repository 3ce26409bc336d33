// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0
import "../components/Fields.js" as Fields

// The end of the setup: offers news by mail, and goes on to the program either way.
SetupFrame {
    id: root

    property bool submitting: false

    function submit(): void {
        const name = nameField.text.trim()
        const email = emailField.text.trim()
        if (email === "") {
            root.goOn()
            return
        }
        root.submitting = true
        BetaService.submitBetaInfo(name, email)
    }

    function goOn(): void {
        // qmllint disable unqualified
        stackView.push("../admin/AdminHome.qml")
        appWindow.showMaximized()
        // qmllint enable unqualified
    }

    column.spacing: 18
    column.width: 420
    startItem: nameField.input

    Keys.onPressed: event => Fields.goOn(event, root, continueButton)

    PlainLabel {
        Layout.fillWidth: true
        font.bold: true
        font.pixelSize: Theme.fontXL
        text: qsTr("Thanks for setting up Zelvan")
        wrapMode: Text.WordWrap
    }

    PlainLabel {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: qsTr("This is an early beta. If you'd like updates, leave your email below.")
        wrapMode: Text.WordWrap
    }

    LabelledField {
        id: nameField

        label: qsTr("Name / Business (optional)")
        placeholderText: qsTr("e.g. Alice’s Cafe")
    }

    LabelledField {
        id: emailField

        label: qsTr("Email (optional)")
        placeholderText: qsTr("you@example.com")
    }

    PrimaryButton {
        id: continueButton

        Layout.fillWidth: true
        enabled: !root.submitting
        padding: 12
        text: root.submitting ? qsTr("Sending...") : qsTr("Continue")

        onClicked: Work.start(root.submit)
    }

    QuietButton {
        Layout.alignment: Qt.AlignHCenter
        enabled: !root.submitting
        font.pixelSize: Theme.fontSmall
        font.underline: true
        text: qsTr("Skip for now")

        onClicked: Work.start(root.goOn)
    }

    Connections {
        // A sign-up that failed is meant to pass in silence.
        function onSubmitFinished(): void {
            root.submitting = false
            root.goOn()
        }

        target: BetaService
    }
}
