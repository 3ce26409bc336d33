// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick.Layouts
import zelvan

// A field under its label.
ColumnLayout {
    id: root

    property alias label: caption.text
    property alias text: input.text
    property alias placeholderText: input.placeholderText
    property alias echoMode: input.echoMode
    property alias input: input

    signal textEdited()

    spacing: 8

    PlainLabel {
        id: caption
    }

    ThemedField {
        id: input

        Layout.fillWidth: true
        label: caption.text

        onTextEdited: root.textEdited()
    }
}
