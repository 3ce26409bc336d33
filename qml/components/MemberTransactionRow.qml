// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// One line of a member's points history.
Rectangle {
    id: root

    required property string kind
    required property string points
    required property string source
    // "yyyy-MM-dd HH:mm:ss", local.
    required property string createdAt

    implicitHeight: 40

    Accessible.role: Accessible.ListItem
    Accessible.name: kind + " " + points
    Accessible.description: source + ", " + createdAt

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        spacing: 8

        PlainLabel {
            Layout.preferredWidth: 120
            text: root.kind
        }

        PlainLabel {
            Layout.preferredWidth: 80
            text: root.points
        }

        PlainLabel {
            Layout.preferredWidth: 120
            text: root.source
        }

        // Given as a date, since not every Qt reads a text here.
        PlainLabel {
            Layout.fillWidth: true
            text: Qt.formatDateTime(new Date(root.createdAt.replace(" ", "T")), "dd/MM/yyyy hh:mm")
        }
    }
}
