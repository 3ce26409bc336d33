// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan

// Renames a user and sets the role. The texts belong to the page of the users.
ModalFrame {
    id: root

    property int userId: -1

    function edit(id: int, username: string): void {
        root.userId = id
        usernameField.text = username
        root.open()
    }

    mainButton: buttons.acceptButton
    width: 320
    height: 300

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        PageHeading {
            text: qsTranslate("AdminUserManagement", "Edit User")
        }

        LabelledField {
            id: usernameField

            label: qsTranslate("AdminUserManagement", "Username")
        }

        LabelledComboBox {
            id: roleField

            // Starts on "admin" and does not follow the chosen user; both are meant.
            comboBox.model: ["admin", "service_staff", "kitchen_staff"]
            comboBox.textRole: ""
            comboBox.valueRole: ""
            label: qsTranslate("AdminUserManagement", "Role")
        }

        DialogButtons {
            id: buttons

            acceptText: qsTranslate("AdminUserManagement", "Save")
            cancelText: qsTranslate("AdminUserManagement", "Cancel")

            onAccepted: {
                if (UserService.updateUser(root.userId, usernameField.text, roleField.comboBox.currentText))
                    root.close()
            }
            onCancelled: root.close()
        }
    }

    onAboutToShow: usernameField.input.forceActiveFocus()
}
