// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan

// A list of a page, whose scroll bar stands in the margin beside its rows.
ScrollList {
    id: root

    // Rows are as wide as the layout meant the list to be; the page's margin is wider than this.
    readonly property real rowWidth: width - barRoom
    property int barRoom: 12

    Layout.rightMargin: -barRoom
    // Rows beyond the edges are made bit by bit, and a model that is filled anew meanwhile would leave a line
    // in the log. Rows that are used again are there at once without.
    cacheBuffer: 0
    reuseItems: true

    ScrollBar.vertical: RestingScrollBar {}
}
