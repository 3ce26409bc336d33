// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// The members with a search by phone. Nothing here changes a member.
Rectangle {
    id: root

    implicitWidth: 900
    implicitHeight: 600
    color: Theme.background

    MemberDialog {
        id: memberDialog
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        PageHeading {
            text: qsTr("Member Management")
        }

        ThemedField {
            id: searchField

            Layout.fillWidth: true
            placeholderText: qsTr("Search phone number")
            onTextChanged: MemberService.searchMembers(text)
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: 40
            Layout.leftMargin: 12
            Layout.rightMargin: 12
            spacing: 8

            TableHeaderLabel {
                Layout.fillWidth: true
                text: qsTr("Phone Number")
            }

            TableHeaderLabel {
                Layout.preferredWidth: 120
                text: qsTr("Points")
            }

            TableHeaderLabel {
                Layout.preferredWidth: 120
                text: qsTr("Status")
            }
        }

        KeyList {
            id: memberList

            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 4
            model: MemberService.membersModel

            Accessible.role: Accessible.List
            Accessible.name: qsTr("Member Management")

            delegate: MemberRow {
                required property var model

                width: memberList.rowWidth
                phoneNumber: model.phoneNumber
                totalPoints: model.totalPoints
                status: model.status
                onClicked: {
                    memberDialog.memberId = model.id
                    memberDialog.open()
                }
            }

            EmptyHint {
                parent: memberList
                visible: memberList.count === 0
                text: searchField.text === ""
                      ? qsTranslate("Hints", "No members yet. A phone number typed under Checkout becomes a member with the payment.")
                      : qsTranslate("Hints", "No member has this number.")
            }
        }
    }

    Component.onCompleted: MemberService.loadMembers()
}
