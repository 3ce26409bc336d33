// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import Zelvan.Services 1.0

// The order page: the floor plan or the plain table list, as the store has chosen.
Loader {
    anchors.fill: parent
    sourceComponent: SettingService.tableLayoutMode === "floor_plan" ? floorPlan : simple

    Component {
        id: simple

        OrderTakingSimple {}
    }

    Component {
        id: floorPlan

        OrderTakingFloorPlan {}
    }
}
