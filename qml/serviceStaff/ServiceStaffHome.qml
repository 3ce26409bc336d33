// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// The home of service staff: orders, checkout and, with a kitchen display, the board.
RowLayout {
    id: root

    // One entry a row of the sidebar; an index outside the list leaves the page as it is.
    readonly property var pages: [orderTaking, checkout, kitchen]

    property int shownIndex: -1

    function loadPage(index: int) {
        shownIndex = index
        page.show(root.pages[index])
    }

    // Choosing the order page once more leaves it as it is: an order may be half keyed in there.
    function choosePage(index: int) {
        if (index > 0 || index !== shownIndex)
            loadPage(index)
    }

    spacing: 0

    ServiceStaffSidebar {
        id: sidebar

        Layout.preferredWidth: 150
        Layout.fillHeight: true
        onSelectionChanged: index => root.choosePage(index)
    }

    PageLoader {
        id: page

        Layout.fillWidth: true
        Layout.fillHeight: true
    }

    Component {
        id: orderTaking

        OrderTaking {}
    }

    Component {
        id: checkout

        Checkout {}
    }

    Component {
        id: kitchen

        KitchenOrders {}
    }

    Component.onCompleted: loadPage(sidebar.selectedIndex)
}
