// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0
import "../components/Fields.js" as Fields

// Creates the first administrator and logs in as that user.
Item {
    id: root

    property bool running: false

    // The texts of this screen's errors are English in every language.
    function register(): void {
        if (root.running)
            return
        const username = usernameField.text.trim()
        const password = passwordField.text
        const confirmation = confirmationField.text
        if (username === "" || password === "") {
            errorLabel.text = "Please fill in all fields"
        } else if (password !== confirmation) {
            errorLabel.text = "Passwords do not match"
        } else {
            errorLabel.text = ""
            root.running = true
            UserService.createUser(username, password, confirmation, "admin")
        }
    }

    function finishRegistration(success: bool): void {
        root.running = false
        if (!success) {
            errorLabel.text = "Could not create account"
        } else if (!AuthService.login(usernameField.text, passwordField.text)) {
            // The name goes in as typed: one with blanks around it was stored without them.
            errorLabel.text = "Login failed after registration"
        } else {
            stackView.push("SetupBetaWelcome.qml") // qmllint disable unqualified
        }
    }

    Keys.onPressed: event => Fields.goOn(event, root, registerButton)
    onActiveFocusChanged: if (activeFocus) usernameField.input.forceActiveFocus()

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        BrandPanel {
            Layout.fillHeight: true
            Layout.preferredWidth: 300
        }

        Item {
            Layout.fillHeight: true
            Layout.fillWidth: true

            ColumnLayout {
                anchors.centerIn: parent
                spacing: 12
                width: 300

                PlainLabel {
                    Layout.fillWidth: true
                    font.bold: true
                    font.pixelSize: Theme.fontXL
                    text: qsTr("Create your admin account")
                    wrapMode: Text.WordWrap
                }

                LabelledField {
                    id: usernameField

                    label: qsTr("Username")
                    placeholderText: qsTr("Enter username")
                }

                LabelledField {
                    id: passwordField

                    echoMode: TextInput.Password
                    label: qsTr("Password")
                    placeholderText: qsTr("Enter password")
                }

                LabelledField {
                    id: confirmationField

                    echoMode: TextInput.Password
                    label: qsTr("Confirm password")
                    placeholderText: qsTr("Confirm password")
                }

                PrimaryButton {
                    id: registerButton

                    Layout.fillWidth: true
                    padding: 12
                    text: qsTr("Register")

                    onClicked: root.register()
                }

                PlainLabel {
                    id: errorLabel

                    Layout.fillWidth: true
                    color: "red"
                    wrapMode: Text.WordWrap
                }
            }
        }
    }

    Connections {
        function onCreateUserFinished(success: bool): void {
            root.finishRegistration(success)
        }

        // The form stays on the stack, below screens that create users too.
        enabled: root.visible
        target: UserService
    }
}
