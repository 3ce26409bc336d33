// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0

// The tables of the store as tiles, under their title. The model follows every change of status.
ColumnLayout {
    id: root

    required property string title
    required property int selectedTableId

    signal tableClicked(int tableId)

    spacing: 2

    PlainLabel {
        text: root.title
        font.bold: true
        font.pixelSize: Theme.fontSmall
    }

    GridView {
        id: grid

        Layout.fillWidth: true
        Layout.preferredHeight: 98
        clip: true
        cellWidth: 80
        cellHeight: 48
        reuseItems: true
        model: TableService.tableModel
        activeFocusOnTab: true
        highlightMoveDuration: 0
        highlight: RowRing {
            view: grid
        }

        Keys.onEnterPressed: currentItem?.clicked()
        Keys.onReturnPressed: currentItem?.clicked()
        Keys.onSpacePressed: currentItem?.clicked()

        Accessible.role: Accessible.List
        Accessible.name: root.title

        ScrollBar.vertical: RestingScrollBar {
            padding: 0
            width: 4
        }

        FlickGuard {
            list: grid
        }

        delegate: TableTile {
            required property var model

            name: model.name
            status: model.status
            selected: model.id === root.selectedTableId
            onClicked: root.tableClicked(model.id)
        }

        EmptyHint {
            parent: grid
            visible: grid.count === 0
            text: qsTranslate("Hints", "No tables yet. An administrator lists them under Management › Table.")
        }
    }
}
