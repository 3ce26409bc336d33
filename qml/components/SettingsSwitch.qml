// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// A label and a switch.
RowLayout {
    id: root

    property alias checked: control.checked
    property alias label: caption.text
    property int labelWidth: 230

    spacing: 12

    PlainLabel {
        id: caption

        Layout.maximumWidth: root.labelWidth
        Layout.minimumWidth: root.labelWidth
        wrapMode: PlainLabel.WordWrap
    }

    ThemedSwitch {
        id: control

        Accessible.name: caption.text
    }
}
