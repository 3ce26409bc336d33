// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan.Theme 1.0

// A large choice: a bold title over a line that explains it.
Button {
    id: control

    property string subtitle

    Accessible.description: subtitle
    font.pixelSize: Theme.fontNormal
    hoverEnabled: false
    implicitHeight: 90

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
