// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick

// The frame of the row that the keys act on, as the highlight of a list; unseen while they act elsewhere.
FocusRing {
    required property Item view

    radius: 4
    visible: view.activeFocus && [view, view.currentItem].includes(view.Window.activeFocusItem) // qmllint disable type
}
