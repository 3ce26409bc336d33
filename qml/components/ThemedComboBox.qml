// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.Theme 1.0

// A choice of entries `{ text, value }`. `label` is its name for a screen reader.
ComboBox {
    id: control

    property string label
    // The last one given to `selectValue`, on offer or not.
    property var givenValue
    // What to store: a given value without an entry is kept until an entry is chosen instead.
    readonly property var chosenValue: currentIndex < 0 ? givenValue : currentValue

    // An unknown value leaves no entry selected. `currentValue` itself cannot be written before Qt 6.10.
    function selectValue(value: var): void {
        givenValue = value
        currentIndex = indexOfValue(value)
    }

    Accessible.name: label
    Accessible.description: displayText
    displayText: currentIndex < 0 ? givenValue ?? "" : currentText
    font.pixelSize: Theme.fontNormal
    implicitHeight: 40
    popup.font.pixelSize: Theme.fontNormal
    textRole: "text"
    valueRole: "value"

    FocusRing {
        anchors.fill: parent
        radius: 3
        visible: control.visualFocus
    }
}
