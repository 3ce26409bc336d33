// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// The whole home of kitchen staff: the board and nothing else. The stack view sizes it.
Item {
    KitchenOrders {
        anchors.fill: parent
    }
}
