// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// What rows were being edited to when they went out of sight or the list was filled anew, by the
// record's id. Rows are used again for other records, so they may not keep it themselves.
QtObject {
    id: root

    property var drafts: new Map()

    function put(id: int, draft: var): void {
        root.drafts.set(id, draft)
    }

    // The draft of that record, or undefined; asked for once.
    function take(id: int): var {
        const draft = root.drafts.get(id)
        root.drafts.delete(id)
        return draft
    }

    function clear(): void {
        root.drafts.clear()
    }
}
