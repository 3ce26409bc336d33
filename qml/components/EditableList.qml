// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import "MenuKey.js" as MenuKey

// A list whose rows are edited in place. Every change fills its model anew, which would lead back to
// the top and end the editing of every row: the list returns to where it was, and each row is told
// to pool() what is typed in it before it goes.
KeyList {
    id: root

    function poolRows(): void {
        for (let row = 0; row < root.count; ++row)
            root.itemAtIndex(row)?.pool() // qmllint disable type
    }

    function returnTo(place: real): void {
        root.forceLayout()
        root.contentY = place
        root.returnToBounds()
    }

    act: "act"

    Keys.onDeletePressed: event => root.actOnRow(event, "askToDelete")
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F2)
            root.actOnRow(event, "startEditing")
        else if (MenuKey.isMeant(event) && root.currentItem?.openMenu) // qmllint disable type
            root.actOnRow(event, "openMenu")
    }

    Connections {
        function onModelAboutToBeReset(): void {
            Qt.callLater(root.returnTo, root.contentY) // qmllint disable type
            root.poolRows()
        }

        target: root.model
    }
}
