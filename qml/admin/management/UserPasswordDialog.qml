// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// Changes a user's password, whose old one has to be known. The texts belong to the page of the users.
ModalFrame {
    id: root

    property int userId: -1

    function change(): void {
        // A refusal is told nowhere; the dialog stays.
        if (!UserService.changePassword(root.userId, oldField.text, newField.text, confirmationField.text))
            return
        root.close()
        oldField.text = ""
        newField.text = ""
        confirmationField.text = ""
    }

    mainButton: buttons.acceptButton
    width: 360
    height: 380

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        PageHeading {
            text: qsTranslate("AdminUserManagement", "Change Password")
        }

        LabelledField {
            id: oldField

            echoMode: TextInput.Password
            label: qsTranslate("AdminUserManagement", "Old Password")
        }

        LabelledField {
            id: newField

            echoMode: TextInput.Password
            label: qsTranslate("AdminUserManagement", "New Password")
        }

        LabelledField {
            id: confirmationField

            echoMode: TextInput.Password
            label: qsTranslate("AdminUserManagement", "Confirm New Password")
        }

        DialogButtons {
            id: buttons

            acceptText: qsTranslate("AdminUserManagement", "Change Password")
            cancelText: qsTranslate("AdminUserManagement", "Cancel")

            onAccepted: root.change()
            onCancelled: root.close()
        }
    }

    onAboutToShow: oldField.input.forceActiveFocus()
}
