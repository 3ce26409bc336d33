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
        onTriggered: root.busy = false
    }

    // Paper takes a longer pause, in ms: a double click means one sheet.
    readonly property int pauseOfPaper: 400

    function start(work: var, pause: var): void {
        if (root.busy)
            return
        root.busy = true
        root.rest.interval = pause ?? 50
        try {
            work()
        } finally {
            root.rest.restart()
        }
    }
}
