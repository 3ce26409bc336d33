// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtTest
import ZelvanTest 1.0

// The root of the tests of what keys do.
ScreenTestCase {
    id: root

    property var dialog: null

    function focused(): var {
        return root.Window.window.activeFocusItem
    }

    function focusName(): string {
        return focused().Accessible.name
    }

    readonly property string pageFocus: root.Window.window?.activeFocusItem?.Accessible.name ?? ""

    // What Tab goes through from here, until it is back at something known.
    function tabOrder(): var {
        const names = []
        for (let count = 0; count < 40 && !names.includes(focusName()); ++count) {
            names.push(focusName())
            keyClick(Qt.Key_Tab)
        }
        return names
    }

    function tabTo(name: string) {
        const names = []
        for (let count = 0; count < 40 && focusName() !== name; ++count) {
            keyClick(Qt.Key_Tab)
            names.push(focusName())
        }
        compare(focusName(), name, names.join(", "))
    }

    function type(text: string) {
        for (const character of text)
            keyClick(character)
    }

    function openDialog(path: string, properties: var): var {
        dialog = create(path, properties)
        dialog.open()
        tryVerify(() => dialog.opened)
        return dialog
    }

    function cleanup() {
        stack.clear(StackView.Immediate)
        dialog?.close()
        dialog = null
    }
}
