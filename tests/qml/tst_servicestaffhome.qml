// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "ServiceStaffHome"

    function test_it_opens_on_taking_orders() {
        show("serviceStaff/ServiceStaffHome")

        verify(hasButton("Place Order"))
        compare(button("Take Order").width, 150)
        compare(button("Take Order").height, 50)
    }

    function test_each_row_opens_its_page() {
        setKitchenMode("kds")
        show("serviceStaff/ServiceStaffHome")

        press("Checkout")
        verify(shows("Recent Paid Orders"))
        press("Kitchen")
        verify(shows("PREPARING"))
        press("Take Order")

        verify(hasButton("Place Order"))
    }

    function test_the_board_is_closed_without_a_kitchen_display_data() {
        return [
            { tag: "none", open: false },
            { tag: "tickets", open: false },
            { tag: "kds", open: true },
            { tag: "hybrid", open: true }
        ]
    }

    function test_the_board_is_closed_without_a_kitchen_display(data) {
        setKitchenMode(data.tag)
        show("serviceStaff/ServiceStaffHome")

        press("Kitchen")

        compare(button("Kitchen").enabled, data.open)
        compare(shows("PREPARING"), data.open)
    }

    function test_the_sidebar_follows_the_mode_at_once() {
        setKitchenMode("kds")
        show("serviceStaff/ServiceStaffHome")
        verify(button("Kitchen").enabled)

        setKitchenMode("tickets")

        verify(!button("Kitchen").enabled)
    }

    function test_changing_the_page_drops_what_was_keyed_in() {
        const food = addCategory("Food")
        addItem("Soup", food, 5)
        MenuService.currentCategoryId = food
        show("serviceStaff/ServiceStaffHome")
        press("Add")
        verify(hasButton("Remove"))

        press("Checkout")
        press("Take Order")

        verify(!hasButton("Remove"))
    }
}
