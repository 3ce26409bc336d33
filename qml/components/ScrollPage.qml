// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// A page of the settings: a heading over sections that scroll, and a row that stays at the bottom.
Rectangle {
    id: root

    default property alias content: column.data
    property alias footer: footerRow.data
    property alias heading: headingLabel.text

    color: Theme.background

    ScrollView {
        id: scroller

        ScrollBar.vertical: RestingScrollBar {
            anchors.bottom: parent.bottom
            anchors.right: parent.right
            anchors.top: parent.top
        }
        anchors.bottom: footerRow.top
        anchors.bottomMargin: 10
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        clip: true
        contentWidth: availableWidth
        padding: 20

        ColumnLayout {
            id: column

            spacing: 30
            width: parent.width

            PageHeading {
                id: headingLabel
            }
        }
    }

    FlickGuard {
        list: scroller.contentItem as Flickable
    }

    RowLayout {
        id: footerRow

        anchors.bottom: parent.bottom
        anchors.bottomMargin: 20
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.right: parent.right
        anchors.rightMargin: 20
        spacing: 20
    }
}
