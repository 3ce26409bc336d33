// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// One member's details and points history. The texts belong to the members page and are translated
// with it.
ModalFrame {
    id: root

    property int memberId: -1
    property var member: ({})

    width: 700
    height: 500
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    onAboutToShow: {
        member = MemberService.getMemberDetails(memberId)
        MemberService.loadTransactions(memberId)
    }

    component HeaderCell: TableHeaderLabel {
        Layout.preferredWidth: 120
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 8

        PlainLabel {
            text: qsTranslate("AdminMembersManagement", "Member Phone: %1").arg(root.member.phoneNumber ?? "")
        }

        PlainLabel {
            text: qsTranslate("AdminMembersManagement", "Points: %1").arg(root.member.totalPoints ?? 0)
        }

        PlainLabel {
            text: qsTranslate("AdminMembersManagement", "Status: %1").arg(root.member.status ?? "")
        }

        PlainLabel {
            text: qsTranslate("AdminMembersManagement", "Transactions")
            font.bold: true
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            color: Theme.background
            border.width: 1
            border.color: Theme.border

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: 1
                spacing: 0

                RowLayout {
                    Layout.fillWidth: true
                    Layout.preferredHeight: 36
                    Layout.leftMargin: 12
                    Layout.rightMargin: 12
                    spacing: 8

                    HeaderCell {
                        text: qsTranslate("AdminMembersManagement", "Type")
                    }

                    HeaderCell {
                        Layout.preferredWidth: 80
                        text: qsTranslate("AdminMembersManagement", "Points")
                    }

                    HeaderCell {
                        text: qsTranslate("AdminMembersManagement", "Source")
                    }

                    HeaderCell {
                        Layout.fillWidth: true
                        text: qsTranslate("AdminMembersManagement", "Date")
                    }
                }

                ScrollList {
                    id: transactions

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    reuseItems: true
                    model: MemberService.transactionModel

                    Accessible.role: Accessible.List
                    Accessible.name: qsTranslate("AdminMembersManagement", "Transactions")

                    ScrollBar.vertical: RestingScrollBar {}

                    delegate: MemberTransactionRow {
                        required property var model
                        required property int index

                        width: ListView.view.width
                        color: index % 2 === 0 ? Theme.background : Theme.surface
                        kind: model.type === "earn" ? qsTranslate("AdminMembersManagement", "Earn") : qsTranslate("AdminMembersManagement", "Redeem")
                        points: (model.type === "redeem" ? "-" : "+") + model.points
                        source: model.orderDisplayNumber > 0 ? "#" + model.orderDisplayNumber : qsTranslate("AdminMembersManagement", "Manual")
                        createdAt: model.createdAt
                    }

                    EmptyHint {
                        parent: transactions
                        visible: transactions.count === 0
                        text: qsTranslate("Hints", "No points earned or redeemed yet.")
                    }
                }
            }
        }

    }
}
