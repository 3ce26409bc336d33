// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Menu, tables, members and users.
Rectangle {
    id: root

    // One entry a row of the sidebar.
    readonly property var pages: [menuPage, tablePage, membersPage, userPage]

    readonly property Item startItem: pageLoader

    function loadPage(index: int): void {
        // Which of the two pages keeps the tables is decided at each load.
        const floorPlan = index === 1 && SettingService.tableLayoutMode === "floor_plan"
        pageLoader.show(floorPlan ? floorPlanPage : root.pages[index])
    }

    color: Theme.background

    RowLayout {
        anchors.fill: parent
        spacing: 0

        AdminManagementSidebar {
            id: sidebar

            Layout.fillHeight: true
            Layout.preferredWidth: 150

            onSelectionChanged: index => root.loadPage(index)
        }

        PageLoader {
            id: pageLoader

            Layout.fillHeight: true
            Layout.fillWidth: true
        }
    }

    Component {
        id: menuPage

        AdminMenuManagement {}
    }

    Component {
        id: tablePage

        AdminTableManagement {}
    }

    Component {
        id: floorPlanPage

        AdminFloorPlanManagement {}
    }

    Component {
        id: membersPage

        AdminMembersManagement {}
    }

    Component {
        id: userPage

        AdminUserManagement {}
    }

    Component.onCompleted: root.loadPage(sidebar.selectedIndex)
}
