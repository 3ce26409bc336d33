// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The column of page buttons at the left of a shell. The shell loads the page of `selectedIndex`.
Rectangle {
    id: root

    property int selectedIndex: 0
    /// The rows from the top, each `{ key, text }`.
    property var rows: []
    property list<string> disabledKeys
    property color restColor: Theme.background
    property int buttonRadius: 0
    // With the number of a row, this key presses it.
    property string modifier: "Ctrl"
    property int buttonPolicy: Qt.NoFocus
    property string fontFamily: Qt.application.font.family // qmllint disable type

    signal selectionChanged(int index)

    function select(index: int): void {
        selectedIndex = index
        selectionChanged(index)
    }

    color: restColor
    implicitWidth: 150

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Repeater {
            model: root.rows

            SidebarButton {
                id: button

                required property int index
                required property var modelData

                Layout.fillWidth: true
                Layout.preferredHeight: 50
                enabled: !root.disabledKeys.includes(modelData.key)
                focusPolicy: root.buttonPolicy
                font.family: root.fontFamily
                radius: root.buttonRadius
                restColor: root.restColor
                selected: index === root.selectedIndex
                text: modelData.text

                onClicked: root.select(index)

                PressKeys {
                    button: button
                    sequences: [root.modifier + "+" + (button.index + 1)]
                }
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }
}
