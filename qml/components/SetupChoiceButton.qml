// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// A large choice: a bold title over a line that explains it.
PlainButton {
    id: control

    property string subtitle

    Accessible.description: subtitle
    implicitHeight: 90
    radius: 6

    contentItem: ColumnLayout {
        spacing: 4

        Item {
            Layout.fillHeight: true
        }

        Text {
            Layout.fillWidth: true
            color: control.down ? "white" : Theme.text
            elide: Text.ElideRight
            font.bold: true
            font.pixelSize: Theme.fontNormal
            horizontalAlignment: Text.AlignHCenter
            text: control.text
            textFormat: Text.PlainText
        }

        Text {
            Layout.fillWidth: true
            color: control.down ? "white" : Theme.secondaryText
            elide: Text.ElideRight
            font.pixelSize: Theme.fontSmall
            horizontalAlignment: Text.AlignHCenter
            text: control.subtitle
            textFormat: Text.PlainText
        }

        Item {
            Layout.fillHeight: true
        }
    }
    background: Rectangle {
        border.color: Theme.primary()
        border.width: 1
        color: control.down ? Theme.primary() : Theme.surface
        radius: 6
    }
}
