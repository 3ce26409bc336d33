// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "AdminHome"

    // Without a floor the floor plan logs a failed assignment, which is meant.
    function arrange() {
        FloorPlanService.createFloor("Hall")
    }

    function openedPage(): string {
        const loader = theShown(item => item.sourceComponent !== undefined && item.parent && item.parent.parent === page, "the page")
        return String(loader.item).replace(/_QMLTYPE.*/, "")
    }

    function test_every_row_opens_its_page_data() {
        return [
            { tag: "Take Order", opens: "OrderTaking" }, { tag: "Checkout", opens: "Checkout" },
            { tag: "Kitchen", opens: "KitchenOrders" }, { tag: "Analytics", opens: "AdminAnalytics" },
            { tag: "Tax Reports", opens: "AdminTaxReports" }, { tag: "Management", opens: "AdminManagement" },
            { tag: "Settings", opens: "AdminSettings" }
        ]
    }

    function test_every_row_opens_its_page(data) {
        setKitchenMode("kds")
        show("admin/AdminHome")

        press(data.tag)

        compare(openedPage(), data.opens)
    }

    function test_a_plan_that_slides_back_leaves_the_sidebar_free() {
        setKitchenMode("kds")
        SettingService.saveTableSettings({ id: 1, layout_mode: "floor_plan" })
        show("admin/AdminHome")
        press("Takeaway")
        tryVerify(() => !theShown(item => item.depth !== undefined && item.busy !== undefined, "the stack").busy)

        press("Back")
        press("Kitchen")

        compare(openedPage(), "KitchenOrders")
    }

    function test_the_rows_stand_in_their_order_and_size() {
        show("admin/AdminHome")
        const rows = ["Take Order", "Checkout", "Kitchen", "Analytics", "Tax Reports", "Management", "Settings"]

        rows.forEach((text, index) => {
            const row = button(text)
            compare(row.width, 150, text)
            compare(row.height, 50, text)
            compare(row.mapToItem(page, 0, 0).y, 50 * index, text)
            compare(row.selected, index === 0, text)
        })
        compare(button("Take Order").background.color, Theme.primary())
        verify(button("Take Order").font.bold)
    }

    function test_each_sidebar_has_its_look_data() {
        return [
            { tag: "AdminHome", row: "Checkout", color: Theme.background, radius: 0 },
            { tag: "AdminManagement", row: "Members", color: Theme.surface, radius: 4 },
            { tag: "AdminSettings", row: "Region & Formats", color: Theme.background, radius: 4 }
        ]
    }

    function test_each_sidebar_has_its_look(data) {
        show("admin/" + data.tag)
        const row = button(data.row)
        compare(row.background.color, data.color)
        compare(row.background.radius, data.radius)
        compare(row.contentItem.color, Theme.text)
        compare(row.font.family === "Arial", data.tag !== "AdminHome")
        verify(!row.font.bold)
        compare(row.focusPolicy, Qt.NoFocus)
        verify(!row.hoverEnabled)

        press(data.row)

        compare(row.background.color, Theme.primary())
        compare(row.contentItem.color, Qt.color("white"))
        verify(row.font.bold)
    }

    function test_an_index_outside_the_rows_leaves_the_page_data() {
        return [{ tag: "-1", index: -1 }, { tag: "7", index: 7 }]
    }

    function test_an_index_outside_the_rows_leaves_the_page(data) {
        show("admin/AdminHome")

        page.loadPage(data.index)

        compare(openedPage(), "OrderTaking")
    }

    function test_the_kitchen_needs_a_display_and_follows_the_mode_at_once_data() {
        return [
            { tag: "none", enabled: false }, { tag: "tickets", enabled: false }, { tag: "kds", enabled: true },
            { tag: "hybrid", enabled: true }
        ]
    }

    function test_the_kitchen_needs_a_display_and_follows_the_mode_at_once(data) {
        setKitchenMode(data.enabled ? "none" : "kds")
        show("admin/AdminHome")

        setKitchenMode(data.tag)

        compare(button("Kitchen").enabled, data.enabled)
        compare(button("Kitchen").contentItem.color, data.enabled ? Theme.text : Theme.secondaryText)
    }

    function test_an_open_kitchen_stays_when_the_mode_goes() {
        setKitchenMode("kds")
        show("admin/AdminHome")
        press("Kitchen")

        setKitchenMode("none")

        compare(openedPage(), "KitchenOrders")
    }

    function test_settings_start_over_after_another_page() {
        show("admin/AdminHome")
        press("Settings")
        press("Tax")
        verify(shows("Tax Settings"))

        press("Management")
        press("Settings")

        verify(shows("Restaurant Settings"))
        verify(button("Restaurant").selected)
    }

    function test_a_changed_layout_mode_changes_label_and_page_data() {
        return [
            { tag: "simple", label: "Table" }, { tag: "floor_plan", label: "Floor Plan" }
        ]
    }

    function test_a_changed_layout_mode_changes_label_and_page(data) {
        show("admin/AdminHome")
        press("Settings")

        SettingService.saveTableSettings({ layout_mode: data.tag })
        press("Management")
        tryVerify(() => button(data.label).y > 0)
        press(data.label)

        compare(shows("Table Management"), data.tag === "simple")
        compare(hasButton("Floor Plan"), data.tag === "floor_plan")
    }

    function test_the_management_rows_open_their_pages_data() {
        return [
            { tag: "Menu", shown: "Categories" }, { tag: "Table", shown: "Table Management" },
            { tag: "Members", shown: "Member Management" }, { tag: "User", shown: "User Management" }
        ]
    }

    function test_the_management_rows_open_their_pages(data) {
        show("admin/AdminManagement")

        press(data.tag)

        verify(shows(data.shown))
    }

    function test_the_settings_rows_open_their_pages_data() {
        return [
            { tag: "Restaurant", shown: "Restaurant Settings" }, { tag: "Tables", shown: "Table Settings" },
            { tag: "Printer", shown: "Printing" }, { tag: "Tax", shown: "Tax Settings" },
            { tag: "Membership", shown: "Membership Settings" }, { tag: "Kitchen", shown: "Kitchen Settings" },
            { tag: "Region & Formats", shown: "Region & Format Settings" }, { tag: "Database", shown: "Database Settings" }
        ]
    }

    function test_the_settings_rows_open_their_pages(data) {
        show("admin/AdminSettings")

        press(data.tag)

        verify(shows(data.shown))
    }

    function test_the_selected_row_starts_its_page_afresh() {
        show("admin/AdminSettings")
        enter("Restaurant Name", "Half typed")

        press("Restaurant")

        compare(field("Restaurant Name").text, "")
    }
}
