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
    leftPadding: 8
    palette.buttonText: Theme.text
    textRole: "text"
    valueRole: "value"

    FocusRing {
        anchors.fill: parent
        radius: 4
        visible: control.visualFocus
    }

    background: Rectangle {
        border.color: control.visualFocus || control.popup.visible ? Theme.primary() : Theme.secondaryText
        border.width: 1
        color: control.down ? Theme.border : Theme.surface
        implicitWidth: 120
        opacity: control.enabled ? 1 : 0.6
        radius: 4
    }
    delegate: ThemedMenuItem {
        required property int index

        width: ListView.view.width
        font.weight: control.currentIndex === index ? Font.DemiBold : Font.Normal
        highlighted: control.highlightedIndex === index
        text: control.textAt(index)
    }
    popup: Popup {
        y: control.height
        width: control.width
        height: Math.min(contentItem.implicitHeight + 2 * padding, control.Window.height - 2 * margins)
        margins: 6
        padding: 1

        background: PopupSurface {}
        contentItem: ScrollList {
            currentIndex: control.highlightedIndex
            highlightMoveDuration: 0
            highlightRangeMode: ListView.ApplyRange
            implicitHeight: contentHeight
            model: control.delegateModel

            ScrollBar.vertical: RestingScrollBar {}
        }
    }
}
