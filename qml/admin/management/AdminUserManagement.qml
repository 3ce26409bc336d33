// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// The users: created, edited, deactivated, never deleted.
Item {
    id: root

    function confirmDeactivation(userId: int, username: string): void {
        confirmationDialog.title = qsTr("Deactivate User")
        confirmationDialog.message = qsTr("Deactivate \"%1\"?").arg(username)
        confirmationDialog.confirmCallback = confirmed => {
            if (confirmed)
                UserService.deactivateUser(userId)
        }
        confirmationDialog.open()
    }

    width: 900
    height: 600

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        RowLayout {
            PageHeading {
                Layout.fillWidth: true
                text: qsTr("User Management")
            }

            PrimaryButton {
                leftPadding: 15
                padding: 8
                rightPadding: 15
                text: qsTr("Create User")

                onClicked: createDialog.open()
            }
        }

        RowLayout {
            Layout.leftMargin: 12
            Layout.preferredHeight: 40
            Layout.rightMargin: 12
            spacing: 12

            TableHeaderLabel {
                Layout.fillWidth: true
                text: qsTr("Username")
            }

            TableHeaderLabel {
                Layout.preferredWidth: 140
                text: qsTr("Role")
            }

            TableHeaderLabel {
                Layout.preferredWidth: 100
                text: qsTr("Active")
            }

            Item {
                Layout.preferredWidth: 260
            }
        }

        ScrollingList {
            id: userList

            Layout.fillHeight: true
            Layout.fillWidth: true
            model: UserService.userModel
            spacing: 4

            delegate: Rectangle {
                id: row

                required property var model
                required property string username
                required property string role
                required property bool active

                width: userList.rowWidth
                height: Math.max(44, nameLabel.implicitHeight + 8)
                Accessible.name: row.username
                Accessible.description: row.role + ", " + (row.active ? qsTr("Yes") : qsTr("No"))
                Accessible.role: Accessible.ListItem
                color: Theme.surface
                radius: 4

                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: 12
                    anchors.rightMargin: 12
                    spacing: 12

                    NameLabel {
                        id: nameLabel

                        Layout.fillWidth: true
                        text: row.username
                    }

                    PlainLabel {
                        Layout.preferredWidth: 140
                        color: Theme.secondaryText
                        elide: Text.ElideRight
                        text: row.role
                    }

                    PlainLabel {
                        Layout.preferredWidth: 100
                        color: row.active ? Theme.green : Theme.error()
                        text: row.active ? qsTr("Yes") : qsTr("No")
                    }

                    Item {
                        Layout.fillHeight: true
                        Layout.preferredWidth: 260

                        RowLayout {
                            anchors.right: parent.right
                            anchors.verticalCenter: parent.verticalCenter
                            spacing: 6
                            visible: row.active

                            RowButton {
                                minimumHeight: 40
                                leftPadding: 10
                                rightPadding: 10
                                fillColor: Theme.primary()
                                text: qsTr("Edit")

                                onClicked: editDialog.edit(row.model.id, row.username)
                            }

                            RowButton {
                                minimumHeight: 40
                                leftPadding: 10
                                rightPadding: 10
                                fillColor: Theme.surface
                                text: qsTr("Password")
                                textColor: Theme.text
                                borderColor: Theme.border

                                onClicked: {
                                    passwordDialog.userId = row.model.id
                                    passwordDialog.open()
                                }
                            }

                            RowButton {
                                minimumHeight: 40
                                leftPadding: 10
                                rightPadding: 10
                                fillColor: "red"
                                text: qsTr("Deactivate")

                                onClicked: root.confirmDeactivation(row.model.id, row.username)
                            }
                        }
                    }
                }
            }
        }
    }

    UserCreateDialog {
        id: createDialog
    }

    UserEditDialog {
        id: editDialog
    }

    UserPasswordDialog {
        id: passwordDialog
    }

    ConfirmationDialog {
        id: confirmationDialog
    }
}
