// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// Gives the focus back to what had it when a popup opened, unless something else has taken it since. Older Qt
// leaves it nowhere, and the keys with it. The popup calls it, since its own handlers come before all others.
QtObject {
    id: root

    required property QtObject owner
    property Item before: null
    // Whether a frame showed that it had the focus.
    property bool wasSeen: false

    // qmllint disable type
    function remember(): void {
        root.before = root.owner.parent?.Window.activeFocusItem ?? null
        root.wasSeen = root.before?.visualFocus === true
    }

    function giveBack(): void {
        const holder = root.before?.Window.activeFocusItem
        if (!root.before?.visible || !root.before.enabled || holder && holder !== root.before.Window.contentItem)
            return
        root.before.forceActiveFocus(root.wasSeen ? Qt.TabFocusReason : Qt.PopupFocusReason)
    }
    // qmllint enable type
}
