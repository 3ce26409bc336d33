// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// The store's settings, one page a subject.
Rectangle {
    id: root

    // One entry a row of the sidebar.
    readonly property var pages: [
        storePage, tablePage, printerPage, taxPage, membershipPage, kitchenPage, regionalPage, databasePage
    ]

    readonly property Item startItem: pageLoader

    function loadPage(index: int): void {
        pageLoader.show(root.pages[index])
    }

    color: Theme.background

    RowLayout {
        anchors.fill: parent
        spacing: 0

        AdminSettingsSidebar {
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
        id: storePage

        AdminStoreSettings {}
    }

    Component {
        id: tablePage

        AdminTableSettings {}
    }

    Component {
        id: printerPage

        AdminPrinterSettings {}
    }

    Component {
        id: taxPage

        AdminTaxSettings {}
    }

    Component {
        id: membershipPage

        AdminMembershipSettings {}
    }

    Component {
        id: kitchenPage

        AdminKitchenSettings {}
    }

    Component {
        id: regionalPage

        AdminRegionalSettings {}
    }

    Component {
        id: databasePage

        AdminDatabaseSettings {}
    }

    Component.onCompleted: root.loadPage(sidebar.selectedIndex)
}
