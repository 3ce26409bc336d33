// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// The keys that press a button which takes no focus.
Shortcut {
    required property Item button

    // qmllint disable type
    enabled: button.visible && button.enabled
    onActivated: button.act()
    // qmllint enable type
}
