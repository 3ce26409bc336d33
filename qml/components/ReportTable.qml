// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// A titled table of a report. A column is `{ title, width, least, text }`: its heading, its width (0
// takes the rest) and what it shrinks to before the rest gets narrow, and the function from a row to
// its text. The rows on screen are all that is made, and they read their places in the list of rows: as
// a model of its own that list would be turned into another one first, row by row.
ColumnLayout {
    id: root

    required property string title
    required property string emptyText
    required property var columns
    required property var rows

    // How much of what they may give the columns keep: all of it, down to none.
    readonly property real kept: {
        let wanted = restWidth + 24
        let least = restWidth + 24
        for (const column of columns) {
            wanted += column.width + 8
            least += (column.least || column.width) + 8
        }
        return Math.max(0, Math.min(1, (width - least) / Math.max(1, wanted - least)))
    }
    readonly property real restWidth: 140

    function columnWidth(column: var): real {
        if (column.width > 0)
            return keptWidth(column)
        const others = columns.reduce((sum, other) => sum + keptWidth(other), 8 * (columns.length - 1))
        return Math.max(0, width - 24 - others)
    }

    function keptWidth(column: var): real {
        const least = column.least || column.width
        return Math.floor(least + (column.width - least) * kept)
    }

    spacing: 8
    onRowsChanged: list.positionViewAtBeginning()

    component Cells: Row {
        id: cells

        property bool heading: false
        // What stands in it; nothing in the heading.
        property var row

        spacing: 8

        Repeater {
            model: root.columns

            NameLabel {
                required property var modelData
                // The column of the rest holds names; figures get smaller before they are cut off.
                readonly property bool rest: modelData.width === 0

                anchors.verticalCenter: parent?.verticalCenter
                width: root.columnWidth(modelData)
                text: cells.heading ? modelData.title : cells.row ? modelData.text(cells.row) : ""
                color: cells.heading ? Theme.secondaryText : Theme.text
                font.bold: cells.heading
                font.pixelSize: Theme.fontSmall
                elide: rest && narrow ? Text.ElideNone : Text.ElideRight
                fontSizeMode: rest ? Text.FixedSize : Text.HorizontalFit
                minimumPixelSize: 8
                wrapMode: rest && narrow ? Text.Wrap : Text.NoWrap
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
        heading: true
    }

    ScrollingList {
        id: list

        Layout.fillWidth: true
        Layout.fillHeight: true
        model: root.rows.length

        Accessible.role: Accessible.List
        Accessible.name: root.title

        delegate: Rectangle {
            id: rowItem

            required property int index
            // Nothing for a moment, while the list gets shorter.
            readonly property var row: root.rows[index]

            width: list.rowWidth
            height: Math.max(42, cells.implicitHeight + 4)
            color: index % 2 === 0 ? Theme.background : Theme.surface

            Accessible.role: Accessible.ListItem
            Accessible.name: row ? root.columns.map((column, place) => (place > 0 ? column.title + " " : "") + column.text(row)).join(", ") : ""

            Cells {
                id: cells

                anchors.fill: parent
                anchors.leftMargin: 12
                anchors.rightMargin: 12
                row: rowItem.row
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
