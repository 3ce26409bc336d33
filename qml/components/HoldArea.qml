// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// Tells of a finger that is held still, which stands for the right click that a finger lacks. It lies
// over what takes the finger's taps and lets them through.
Item {
    id: root

    // True for a moment. What takes the taps is hidden or its parent disabled by it, and so lets go of
    // the finger: lifting it is no tap as well.
    property bool lettingGo: false

    signal held(real x, real y)

    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen
        // Seconds, on every platform.
        longPressThreshold: 0.8
        onLongPressed: {
            const place = point.position
            root.lettingGo = true
            root.lettingGo = false
            // Not from within: what is told may rebuild the list that this lies in.
            Qt.callLater(root.held, place.x, place.y) // qmllint disable type
        }
    }
}
