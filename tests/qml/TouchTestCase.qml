// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest

// The root of the tests that touch the screens. All places are in the window's coordinates, since
// items move under the finger.
ZelvanTestCase {
    id: root

    function centre(item): point {
        return item.mapToItem(root, item.width / 2, item.height / 2)
    }

    // A finger that was put down, to be moved and lifted.
    function putDown(x: real, y: real): var {
        const finger = touchEvent(root)
        finger.press(0, root, x, y).commit()
        return finger
    }

    function tapAt(x: real, y: real) {
        putDown(x, y).release(0, root, x, y).commit()
        settle()
    }

    function tap(item) {
        const place = centre(item)
        tapAt(place.x, place.y)
    }

    function tapButton(text: string, index: var) {
        tap(button(text, index))
    }

    // In small steps and at the pace of a hand, which is what a list takes its speed from.
    function swipe(x: real, y: real, dx: real, dy: real) {
        const finger = putDown(x, y)
        for (let step = 1; step <= 10; ++step) {
            wait(8)
            finger.move(0, root, x + dx * step / 10, y + dy * step / 10).commit()
        }
        finger.release(0, root, x + dx, y + dy).commit()
    }

    function dragByFinger(item, dx: real, dy: real) {
        const place = centre(item)
        swipe(place.x, place.y, dx, dy)
        settle()
    }

    // Until `opened` is true; how long that took. Lifts the finger.
    function hold(x: real, y: real, opened: var): int {
        const start = Date.now()
        const finger = putDown(x, y)
        tryVerify(opened)
        const took = Date.now() - start
        finger.release(0, root, x, y).commit()
        return took
    }
}
