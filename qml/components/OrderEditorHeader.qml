// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The bar over the order editor: the way back and whose order this is.
Rectangle {
    id: root

    required property string backText
    required property string title
    required property string subtitle

    signal backRequested

    radius: 6
    color: Theme.surface
    border.width: 1
    border.color: Theme.border

    RowLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 12

        FilledButton {
            id: backButton

            focusPolicy: Qt.NoFocus
            text: root.backText
            radius: 6
            fillColor: Theme.background
            textColor: Theme.text
            onClicked: root.backRequested()
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            PageHeading {
                Layout.fillWidth: true
                text: root.title
                elide: Text.ElideRight
            }

            PlainLabel {
                text: root.subtitle
                color: Theme.secondaryText
                font.pixelSize: Theme.fontSmall
            }
        }
    }

    PressKeys {
        button: backButton
        sequences: ["Ctrl+Backspace"]
    }
}
