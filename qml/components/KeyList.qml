// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// A list whose rows are chosen by keys as well: Tab reaches it, the arrows walk through it, Return and
// Space do to the row what a click does.
ScrollingList {
    id: root

    // The row's function or signal.
    property string act: "clicked"

    function actOnRow(event: var, act: string): void {
        // Keys that a row's own fields let pass are not meant for the list.
        event.accepted = !!root.currentItem && [root, root.currentItem].includes(root.Window.activeFocusItem) // qmllint disable type
        if (event.accepted)
            root.currentItem[act]()
    }

    activeFocusOnTab: true
    highlightMoveDuration: 0

    highlight: RowRing {
        view: root
    }

    Keys.onEnterPressed: event => root.actOnRow(event, root.act)
    Keys.onReturnPressed: event => root.actOnRow(event, root.act)
    Keys.onSpacePressed: event => root.actOnRow(event, root.act)
    onActiveFocusChanged: {
        if (activeFocus && currentIndex < 0 && count > 0)
            currentIndex = 0
    }
}
