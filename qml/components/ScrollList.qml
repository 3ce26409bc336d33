// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// A list that may hold more than is seen.
ListView {
    id: root

    clip: true

    FlickGuard {
        list: root
    }
}
