// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import Zelvan.Services 1.0
import zelvan

// The administrator's pages.
Sidebar {
    disabledKeys: SettingService.kitchenMode === "none" || SettingService.kitchenMode === "tickets" ? ["kitchen"] : []
    rows: [
        { key: "takeOrder", text: qsTr("Take Order") },
        { key: "checkout", text: qsTr("Checkout") },
        { key: "kitchen", text: qsTr("Kitchen") },
        { key: "analytics", text: qsTr("Analytics") },
        { key: "taxReports", text: qsTr("Tax Reports") },
        { key: "management", text: qsTr("Management") },
        { key: "settings", text: qsTr("Settings") }
    ]
}
