// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// What a right click offers, in letters as large as those around it.
Menu {
    id: root

    readonly property FocusReturn focusReturn: FocusReturn { owner: root }

    font.pixelSize: Theme.fontNormal

    background: PopupSurface {
        implicitWidth: 200
    }

    onAboutToShow: focusReturn.remember()
    onClosed: focusReturn.giveBack()
}
