// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import "Fields.js" as Fields

// A page whose settings are written by one button. Says something only when that fails.
ScrollPage {
    id: root

    property string errorMessage
    property alias saveText: saveButton.text

    signal saveRequested()

    Keys.onPressed: event => Fields.goOn(event, root, saveButton)

    footer: [
        ActionButton {
            id: saveButton

            fillColor: Theme.primary()
            focusPolicy: Qt.NoFocus

            onClicked: Work.start(root.saveRequested)
        },
        ErrorLabel {
            Layout.fillWidth: true
            text: root.errorMessage
        }
    ]

    PressKeys {
        button: saveButton
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
    }
}
