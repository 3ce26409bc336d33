// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// The page of a shell. Showing the page on show builds it anew, and no page leaves it as it is.
Loader {
    id: root

    function show(page: var): void {
        if (!page)
            return
        root.sourceComponent = null
        root.sourceComponent = page
    }
}
