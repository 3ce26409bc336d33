// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// One member of the list.
Rectangle {
    id: root

    required property string phoneNumber
    required property int totalPoints
    required property string status

    signal clicked

    implicitHeight: 44
    radius: 4
    color: Theme.surface

    Accessible.role: Accessible.ListItem
    Accessible.name: phoneNumber
    Accessible.description: totalPoints + ", " + status
    Accessible.onPressAction: root.clicked()

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        spacing: 8

        PlainLabel {
            Layout.fillWidth: true
            text: root.phoneNumber
            elide: Text.ElideRight
        }

        PlainLabel {
            Layout.preferredWidth: 120
            text: root.totalPoints
        }

        PlainLabel {
            Layout.preferredWidth: 120
            text: root.status
            color: root.status === "active" ? Theme.green : Theme.error()
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.clicked()
    }
}
