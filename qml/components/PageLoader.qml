// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import "Fields.js" as Fields

// The page of a shell. Showing the page on show builds it anew, and no page leaves it as it is. The
// keys go to the page: to its `startItem`, or to the first field that can be typed in.
Loader {
    id: root

    function show(page: var): void {
        if (!page)
            return
        root.sourceComponent = null
        root.sourceComponent = page
        // A page of a shell that is just being pushed is not visible yet.
        Qt.callLater(root.takeFocus) // qmllint disable type
    }

    function takeFocus(): void {
        if (!root.item)
            return
        const start = root.item.startItem ?? Fields.typed(root.item)[0] ?? root // qmllint disable type
        start.forceActiveFocus(Qt.OtherFocusReason)
    }
}
