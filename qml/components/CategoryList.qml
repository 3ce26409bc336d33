// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import Zelvan.Services 1.0

// The menu's categories at the left of an order screen. The choice is shared by all screens.
Item {
    id: root

    required property string title
    property int rowSpacing: 4

    Layout.preferredWidth: 220
    Layout.fillHeight: true

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        PlainLabel {
            text: root.title
            font.bold: true
        }

        KeyList {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: root.rowSpacing
            model: MenuService.categoryModel

            Accessible.role: Accessible.List
            Accessible.name: root.title

            delegate: CategoryRow {
                required property var model

                width: list.rowWidth
                text: model.name
                selected: model.id === MenuService.currentCategoryId
                onClicked: MenuService.currentCategoryId = model.id
            }

            EmptyHint {
                parent: list
                visible: list.count === 0
                text: qsTranslate("Hints", "No dishes yet. An administrator writes the menu under Management › Menu.")
            }
        }
    }
}
