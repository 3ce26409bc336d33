// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// The first screen of a program that is set up. The role decides the home screen.
FocusScope {
    id: root

    readonly property var homes: new Map([
        ["admin", "../admin/AdminHome.qml"],
        ["service_staff", "../serviceStaff/ServiceStaffHome.qml"],
        ["kitchen_staff", "../kitchenStaff/KitchenStaffHome.qml"]
    ])

    function logIn(): void {
        if (!AuthService.login(usernameField.text, passwordField.text)) {
            errorLabel.text = qsTr("Invalid username or password.")
            passwordField.input.forceActiveFocus(Qt.OtherFocusReason)
            passwordField.input.selectAll()
            return
        }
        errorLabel.text = ""
        // A role without a home is meant to stay here, in a maximised window and without a message.
        const home = root.homes.get(AuthService.currentUserRole)
        if (home !== undefined)
            stackView.push(home) // qmllint disable unqualified
        root.Window.window.showMaximized()
    }

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

                LabelledField {
                    id: usernameField

                    input.focus: true
                    label: qsTr("Username")
                    placeholderText: qsTr("Enter username")
                    spacing: 12
                }

                LabelledField {
                    id: passwordField

                    echoMode: TextInput.Password
                    label: qsTr("Password")
                    placeholderText: qsTr("Enter password")
                    spacing: 12
                }

                PrimaryButton {
                    id: loginButton

                    Layout.fillWidth: true
                    Layout.topMargin: 15
                    focusPolicy: Qt.NoFocus
                    padding: 15
                    text: qsTr("Login")

                    onClicked: Work.start(root.logIn)
                }

                PlainLabel {
                    id: errorLabel

                    Layout.fillWidth: true
                    Layout.topMargin: 10
                    color: Theme.error()
                    wrapMode: Text.WordWrap
                }
            }
        }
    }

    // Return alone does nothing here.
    PressKeys {
        button: loginButton
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
    }
}
