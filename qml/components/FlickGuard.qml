// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// Lies over a list that moves: a touch on one that runs on stops it, a second finger on one that is
// pulled does nothing, and neither presses what happens to pass by.
MouseArea {
    id: root

    // What it guards.
    required property Flickable list

    parent: list
    anchors.fill: parent
    z: 1
    enabled: list.moving || pressed

    // The area itself hears of one finger at a time.
    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen
        enabled: root.list.dragging
        gesturePolicy: TapHandler.ReleaseWithinBounds
    }
}
