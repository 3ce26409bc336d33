// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// The home of service staff: orders, checkout and, with a kitchen display, the board.
RowLayout {
    id: root

    // An index outside the list leaves the page as it is.
    function loadPage(index: int) {
        const pages = [orderTaking, checkout, kitchen]
        page.show(pages[index] ?? null)
    }

    spacing: 0

    ServiceStaffSidebar {
        id: sidebar

        Layout.preferredWidth: 150
        Layout.fillHeight: true
        onSelectionChanged: index => root.loadPage(index)
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
