// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The frame of a setup screen: a centred column, the version below, and a way back if it has a text.
Item {
    id: root

    default property alias content: column.data
    property alias column: column
    property string backText
    property bool backEnabled: true
    // Where the keys go at first.
    property Item startItem: null

    signal backRequested()

    onActiveFocusChanged: if (activeFocus) startItem?.forceActiveFocus(Qt.TabFocusReason)

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    ColumnLayout {
        id: column

        anchors.centerIn: parent
        spacing: 16
        width: 450
    }

    QuietButton {
        anchors.left: parent.left
        anchors.margins: 16
        anchors.top: parent.top
        enabled: root.backEnabled
        text: root.backText
        visible: root.backText !== ""

        onClicked: root.backRequested()
    }

    VersionLabel {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        anchors.horizontalCenter: parent.horizontalCenter
        color: "#aaaaaa"
    }
}
