// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// A titled table of a report. A column is `{ title, width, text }`: its heading, its width (0 takes
// the rest) and the function from a row to its text. The rows on screen are all that is made.
ColumnLayout {
    id: root

    required property string title
    required property string emptyText
    required property var columns
    required property var rows

    spacing: 8

    component Cells: RowLayout {
        id: cells

        // Null in the heading.
        property var row: null

        spacing: 8

        Repeater {
            model: root.columns

            PlainLabel {
                required property var modelData

                Layout.fillWidth: modelData.width === 0
                Layout.preferredWidth: modelData.width || 1
                text: cells.row ? modelData.text(cells.row) : modelData.title
                color: cells.row ? Theme.text : Theme.secondaryText
                font.bold: !cells.row
                font.pixelSize: Theme.fontSmall
                elide: Text.ElideRight
            }
        }
    }

    PageHeading {
        text: root.title
    }

    Cells {
        Layout.fillWidth: true
        Layout.preferredHeight: 42
        Layout.leftMargin: 12
        Layout.rightMargin: 12
    }

    ScrollList {
        Layout.fillWidth: true
        Layout.fillHeight: true
        reuseItems: true
        model: root.rows

        Accessible.role: Accessible.List
        Accessible.name: root.title

        ScrollBar.vertical: ScrollBar {}

        delegate: Rectangle {
            id: rowItem

            required property var modelData
            required property int index

            width: ListView.view.width
            height: 42
            color: index % 2 === 0 ? Theme.background : Theme.surface

            Accessible.role: Accessible.ListItem
            Accessible.name: root.columns.map((column, place) => (place > 0 ? column.title + " " : "") + column.text(modelData)).join(", ")

            Cells {
                anchors.fill: parent
                anchors.leftMargin: 12
                anchors.rightMargin: 12
                row: rowItem.modelData
            }
        }

        PlainLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 12
            visible: root.rows.length === 0
            text: root.emptyText
            color: Theme.secondaryText
        }
    }
}
