// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan.Theme 1.0

// A choice of entries `{ text, value }`. `label` is its name for a screen reader.
ComboBox {
    id: control

    property string label

    // An unknown value leaves nothing selected. `currentValue` itself cannot be written before Qt 6.10.
    function selectValue(value: var): void {
        currentIndex = indexOfValue(value)
    }

    Accessible.name: label
    font.pixelSize: Theme.fontNormal
    implicitHeight: 40
    textRole: "text"
    valueRole: "value"
}
