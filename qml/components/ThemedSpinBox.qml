// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// A number to step or to type, high enough for a finger. `label` is its name for a screen reader.
SpinBox {
    id: control

    property string label

    Accessible.name: label
    editable: true
    font.pixelSize: Theme.fontNormal
    implicitHeight: 40
    inputMethodHints: Qt.ImhDigitsOnly

    FocusRing {
        anchors.fill: parent
        radius: 3
        visible: control.activeFocus
    }
}
