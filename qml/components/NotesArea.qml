// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.System 1.0
import zelvan.Theme 1.0

// A few lines of text to type in, in the theme's colours. `label` is its name for a screen reader.
ScrollView {
    id: root

    property string label
    property alias text: area.text
    property alias placeholderText: area.placeholderText

    ScrollBar.vertical: RestingScrollBar {
        anchors.bottom: parent.bottom
        anchors.margins: 2
        anchors.right: parent.right
        anchors.top: parent.top
    }

    background: FieldSurface {
        focused: area.activeFocus
    }

    TextArea {
        id: area

        color: Theme.text
        placeholderTextColor: Theme.secondaryText
        font.pixelSize: Theme.fontNormal
        textFormat: TextEdit.PlainText
        wrapMode: TextArea.Wrap
        rightPadding: 14
        background: null
        onActiveFocusChanged: if (!activeFocus) Typing.commit(area)
        Accessible.name: root.label

        TextFieldMenu {}
    }
}
