// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// What the administrator keeps. Built once: the layout mode only changes on another page.
Sidebar {
    id: root

    buttonRadius: 4
    color: Theme.background
    fontFamily: "Arial"
    modifier: "Alt"
    restColor: Theme.surface

    Component.onCompleted: {
        const floorPlan = SettingService.tableLayoutMode === "floor_plan"
        root.rows = [
            { key: "menu", text: qsTr("Menu") },
            { key: "tables", text: floorPlan ? qsTr("Floor Plan") : qsTr("Table") },
            { key: "members", text: qsTr("Members") },
            { key: "users", text: qsTr("User") }
        ]
    }
}
