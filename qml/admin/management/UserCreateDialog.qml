// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// Creates a user. The texts belong to the page of the users.
ModalFrame {
    id: root

    property bool running: false

    function create(): void {
        if (root.running)
            return
        root.running = true
        // The visible text of the role is stored, not its value. That is meant: see the role's readers.
        UserService.createUser(usernameField.text, passwordField.text, confirmationField.text,
                               roleField.comboBox.currentText)
        root.clearFields()
    }

    function clearFields(): void {
        usernameField.text = ""
        passwordField.text = ""
        confirmationField.text = ""
    }

    mainButton: buttons.acceptButton
    width: 460
    height: 450

    ColumnLayout {
        anchors.fill: parent
        spacing: 10

        PageHeading {
            text: qsTranslate("AdminUserManagement", "Create User")
        }

        LabelledField {
            id: usernameField

            label: qsTranslate("AdminUserManagement", "Username")
            placeholderText: label
        }

        LabelledField {
            id: passwordField

            echoMode: TextInput.Password
            label: qsTranslate("AdminUserManagement", "Password")
            placeholderText: label
        }

        LabelledField {
            id: confirmationField

            echoMode: TextInput.Password
            label: qsTranslate("AdminUserManagement", "Confirm Password")
            placeholderText: label
        }

        LabelledComboBox {
            id: roleField

            comboBox.model: [
                { text: qsTranslate("AdminUserManagement", "Admin"), value: "admin" },
                { text: qsTranslate("AdminUserManagement", "Service Staff"), value: "service_staff" },
                { text: qsTranslate("AdminUserManagement", "Kitchen Staff"), value: "kitchen_staff" }
            ]
            label: qsTranslate("AdminUserManagement", "Role")
        }

        DialogButtons {
            id: buttons

            acceptText: qsTranslate("AdminUserManagement", "Create")
            cancelText: qsTranslate("AdminUserManagement", "Cancel")

            onAccepted: root.create()
            onCancelled: root.close()
        }
    }

    Connections {
        // After a refusal the dialog stays, empty and without a message.
        function onCreateUserFinished(success: bool): void {
            root.running = false
            if (success && root.visible)
                root.close()
        }

        target: UserService
    }

    // Escape counts as "Cancel".
    onAboutToHide: root.clearFields()
    onAboutToShow: usernameField.input.forceActiveFocus()
}
