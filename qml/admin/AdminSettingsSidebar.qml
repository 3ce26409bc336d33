// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan

// The settings pages.
Sidebar {
    readonly property int membershipIndex: 4

    buttonRadius: 4
    fontFamily: "Arial"
    modifier: "Alt"
    rows: [
        { key: "restaurant", text: qsTr("Restaurant") },
        { key: "tables", text: qsTr("Tables") },
        { key: "printer", text: qsTr("Printer") },
        { key: "tax", text: qsTr("Tax") },
        { key: "membership", text: qsTr("Membership") },
        { key: "kitchen", text: qsTr("Kitchen") },
        { key: "region", text: qsTr("Region & Formats") },
        { key: "database", text: qsTr("Database") }
    ]
}
