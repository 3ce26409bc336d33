// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import Zelvan.Services 1.0

// The pages of service staff. The board is closed in the two kitchen modes without a display.
Sidebar {
    buttonPolicy: Qt.StrongFocus
    disabledKeys: SettingService.kitchenMode === "none" || SettingService.kitchenMode === "tickets" ? ["kitchen"] : []
    rows: [
        { key: "takeOrder", text: qsTr("Take Order") },
        { key: "checkout", text: qsTr("Checkout") },
        { key: "kitchen", text: qsTr("Kitchen") }
    ]
}
