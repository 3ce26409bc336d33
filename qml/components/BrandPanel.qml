// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The left half of the log-in form and of the first administrator's form.
Item {
    implicitWidth: 300

    ColumnLayout {
        anchors.centerIn: parent

        PlainLabel {
            Layout.alignment: Qt.AlignHCenter
            font.bold: true
            font.pixelSize: Theme.fontXL
            text: "Zelvan"
        }

        VersionLabel {
            Layout.alignment: Qt.AlignHCenter
            color: Theme.secondaryText
        }
    }
}
