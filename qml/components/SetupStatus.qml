// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick.Layouts
import zelvan

// What a setup screen is doing, or what went wrong with it. Takes no room while there is nothing to say.
PlainLabel {
    property bool running: false
    property string runningText
    property string errorText

    Layout.fillWidth: true
    color: running ? "lightgray" : "red"
    text: running ? runningText : errorText
    visible: text !== ""
    wrapMode: PlainLabel.WordWrap
}
