// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
pragma Singleton
import QtQml

// One piece of work at a time: what a button starts goes through here, and a second press finds it
// under way. Work blocks the window, so that such a press arrives only once it is done; it is over
// when those have passed.
QtObject {
    id: root

    property bool busy: false
    readonly property Timer rest: Timer {
        interval: 50
        onTriggered: root.busy = false
    }

    function start(work: var): void {
        if (root.busy)
            return
        root.busy = true
        try {
            work()
        } finally {
            root.rest.restart()
        }
    }
}
