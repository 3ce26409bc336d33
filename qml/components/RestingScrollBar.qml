// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan.Theme 1.0

// Shows at rest that there is more than is seen, and is not there where there is not.
ScrollBar {
    id: control

    minimumSize: 0.06
    padding: 1
    policy: size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff

    background: null
    contentItem: Rectangle {
        color: control.pressed ? Theme.primary() : Theme.secondaryText
        implicitHeight: 6
        implicitWidth: 6
        radius: 3
    }
}
