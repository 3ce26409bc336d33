// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// One item of the menu with the button that puts it into the order.
RowLayout {
    id: root

    required property string name
    required property string price
    required property string portion
    required property bool available
    required property string unavailableText
    required property string addText
    required property int addSidePadding
    required property int addEndPadding
    required property real addWidth
    required property real portionWidth
    readonly property color textColor: available ? Theme.text : Theme.secondaryText

    signal addRequested

    function add(): void {
        if (root.available)
            root.addRequested()
    }

    spacing: 8

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: [available ? "" : unavailableText, price, portion].filter(text => text !== "").join(", ") // qmllint disable type

    ColumnLayout {
        Layout.fillWidth: true
        Layout.minimumWidth: 40
        spacing: 0

        NameLabel {
            Layout.fillWidth: true
            text: root.name
            color: root.textColor
        }

        PlainLabel {
            visible: !root.available
            text: root.unavailableText
            color: "red"
            font.pixelSize: Theme.fontSmall
        }
    }

    PriceLabel {
        Layout.preferredWidth: 70
        text: root.price
        color: root.textColor
    }

    NameLabel {
        Layout.preferredWidth: root.portionWidth
        text: root.portion || "-"
        color: root.textColor
    }

    FilledButton {
        Layout.preferredWidth: root.addWidth
        enabled: root.available
        dimmed: false
        focusPolicy: Qt.NoFocus
        minimumHeight: root.addEndPadding === 5 ? 0 : 40
        text: root.addText
        Accessible.description: root.name
        fillColor: root.available ? Theme.primary() : Theme.secondaryText
        leftPadding: root.addSidePadding
        rightPadding: root.addSidePadding
        topPadding: root.addEndPadding
        bottomPadding: root.addEndPadding
        onClicked: root.addRequested()
    }
}
