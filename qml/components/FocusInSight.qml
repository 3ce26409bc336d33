// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// Keeps what has the focus in sight, in the window that it is put into: lists and pages that hold it
// scroll, and all of the window's content moves up while the desktop's on-screen keyboard would cover it.
// Nothing moves from under a finger: it is waited for until it is lifted.
Item {
    id: root

    // What the on-screen keyboard covers, in the window's coordinates. Empty while there is none, and where
    // the desktop does not tell.
    property rect keyboard: Qt.inputMethod.visible ? Qt.inputMethod.keyboardRectangle : Qt.rect(0, 0, 0, 0) // qmllint disable type
    readonly property Item focused: Window.activeFocusItem
    readonly property bool pressed: press.active
    property bool waiting: false

    // Once what takes the focus lies where it will.
    function followSoon(): void {
        if (!root.Window.window) // qmllint disable type
            return
        waiting = true
        root.Window.window.update() // qmllint disable type
    }

    function follow(): void {
        const content = root.Window.contentItem
        const whole = frameOf(focused)
        if (whole && whole !== content)
            scrollTo(whole)
        content.y = -liftFor(whole, content)
    }

    // A control is seen as a whole, not only the part of it that takes the keys.
    function frameOf(item: Item): Item {
        const control = item?.parent
        return control?.contentItem === item ? control : item // qmllint disable type
    }

    function scrollTo(item: Item): void {
        for (let view = item.parent; view; view = view.parent) {
            if (view.flickableDirection === undefined) // qmllint disable type
                continue
            const box = item.mapToItem(view, 0, 0, item.width, item.height)
            const right = view.originX + view.contentWidth - view.width
            const bottom = view.originY + view.contentHeight - view.height
            const dx = stepInto(box.x, box.width, view.width)
            const dy = stepInto(box.y, box.height, view.height)
            if (dx !== 0)
                view.contentX = Math.max(view.originX, Math.min(right, view.contentX + dx))
            if (dy !== 0)
                view.contentY = Math.max(view.originY, Math.min(bottom, view.contentY + dy))
        }
    }

    // How far to scroll until a box lies within a view, with a little room around it where there is some.
    function stepInto(start: real, size: real, room: real): real {
        const margin = Math.min(12, (room - size) / 2)
        if (margin < 0)
            return 0
        return Math.min(0, start - margin) + Math.max(0, start + size + margin - room)
    }

    function liftFor(item: Item, content: Item): real {
        if (!item || root.keyboard.height <= 0)
            return 0
        const margin = 12
        const box = item.mapToItem(content, 0, 0, item.width, item.height)
        const covered = box.y + box.height + margin - edge()
        return Math.max(0, Math.min(covered, box.y - margin))
    }

    // Windows gives the keyboard's place on the screen.
    function edge(): real {
        const isOnScreen = Qt.platform.os === "windows"
        return root.keyboard.y - (isOnScreen ? root.Window.window.y : 0) // qmllint disable type
    }

    // Over the layer of dialogs and menus, to hear of every press first, but in nobody's way.
    z: 1000002

    onFocusedChanged: if (!pressed || keyboard.height > 0) followSoon()
    onKeyboardChanged: followSoon()
    onPressedChanged: if (keyboard.height > 0) followSoon()

    Connections {
        enabled: root.waiting && !root.pressed
        target: root.Window.window

        function onAfterAnimating(): void {
            root.waiting = false
            root.follow()
        }
    }

    PointHandler {
        id: press

        // This item has no size: the whole window is its margin.
        margin: 100000
    }
}
