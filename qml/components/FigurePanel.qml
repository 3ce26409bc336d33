// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// A titled panel of the dashboard: rows `{ text, figure }`.
Rectangle {
    id: root

    required property string title
    required property var rows
    property bool boldFigures: false

    radius: 6
    color: Theme.background
    border.width: 1
    border.color: Theme.border

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 8

        PageHeading {
            text: root.title
        }

        ScrollingList {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 8
            model: root.rows

            Accessible.role: Accessible.List
            Accessible.name: root.title

            delegate: RowLayout {
                id: row

                required property var modelData

                width: list.rowWidth

                Accessible.role: Accessible.ListItem
                Accessible.name: row.modelData.text
                Accessible.description: row.modelData.figure

                NameLabel {
                    Layout.fillWidth: true
                    text: row.modelData.text
                }

                PlainLabel {
                    text: row.modelData.figure
                    font.bold: root.boldFigures
                }
            }
        }
    }
}
