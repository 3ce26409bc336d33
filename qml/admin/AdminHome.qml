// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// What an administrator sees after the log-in.
Rectangle {
    id: root

    // One entry a row of the sidebar; each page is built when it is chosen and dropped after.
    readonly property var pages: [
        orderPage, checkoutPage, kitchenPage, analyticsPage, taxReportsPage, managementPage, settingsPage
    ]

    function loadPage(index: int): void {
        pageLoader.show(root.pages[index])
    }

    color: Theme.background

    RowLayout {
        anchors.fill: parent
        spacing: 0

        AdminSidebar {
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
        id: orderPage

        OrderTaking {}
    }

    Component {
        id: checkoutPage

        Checkout {}
    }

    Component {
        id: kitchenPage

        KitchenOrders {}
    }

    Component {
        id: analyticsPage

        AdminAnalytics {}
    }

    Component {
        id: taxReportsPage

        AdminTaxReports {}
    }

    Component {
        id: managementPage

        AdminManagement {}
    }

    Component {
        id: settingsPage

        AdminSettings {}
    }

    Component.onCompleted: root.loadPage(sidebar.selectedIndex)
}
