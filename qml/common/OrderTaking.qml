// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// The order page.
Loader {
    sourceComponent: OrderTakingSimple {}
}
