// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

// What a page without rows says to do next.
ZelvanTestCase {
    id: root

    name: "EmptyPages"

    function hint(text: string): var {
        return theShown(item => item.text === text && item.font !== undefined, text)
    }

    function hints(): var {
        return allShown(item => item.font !== undefined && /yet\.|open bills|can be edited|orders appear here|press Add beside|Nothing paid/.test(item.text)).map(item => item.text)
    }

    // Whether the window shows more than one colour where the text is.
    function isPainted(label): bool {
        const image = grabImage(page)
        const place = label.mapToItem(page, 0, 0)
        const y = Math.round(place.y + label.topPadding + label.font.pixelSize / 2)
        const start = Math.ceil(place.x + label.leftPadding)
        for (let x = start; x < place.x + label.width - label.rightPadding; ++x) {
            if (!Qt.colorEqual(image.pixel(x, y), image.pixel(start, y)))
                return true
        }
        return false
    }

    function emptyFoodIsChosen() {
        MenuService.currentCategoryId = addCategory("Food")
    }

    function test_an_empty_page_says_what_to_do_next_data() {
        return [
            { tag: "categories to order from", page: "common/OrderTakingSimple", says: "No dishes yet. An administrator writes the menu under Management › Menu." },
            { tag: "dishes to order", page: "common/OrderTakingSimple", before: emptyFoodIsChosen, says: "No dishes in this category yet. An administrator adds them under Management › Menu." },
            { tag: "lines", page: "common/OrderTakingSimple", says: "Choose a category, then press Add beside a dish." },
            { tag: "lines of the plan", page: "components/OrderEditor", says: "Choose a category, then press Add beside a dish." },
            { tag: "orders to edit", page: "common/OrderTakingSimple", then: () => page.showOpenOrders(), says: "No order can be edited. Press New Order to take one." },
            { tag: "tables to order for", page: "common/OrderTakingSimple", then: () => page.changeOrderType("dine_in"), says: "No tables yet. An administrator lists them under Management › Table." },
            { tag: "bills", page: "common/Checkout", says: "No open bills. An order that is placed opens one." },
            { tag: "paid orders", page: "common/Checkout", says: "Nothing paid yet. An order appears here once it is paid." },
            { tag: "cards", page: "common/KitchenOrders", says: "New orders appear here." },
            { tag: "floors to order from", page: "common/OrderTakingFloorPlan", before: () => ignoreWarning(/Cannot assign \[undefined\] to int/), says: "No floors yet. An administrator draws them under Management › Floor Plan." },
            { tag: "floors", page: "admin/management/AdminFloorPlanManagement", says: "No floors yet. Press + New Floor to draw the first one." },
            { tag: "members", page: "admin/management/AdminMembersManagement", says: "No members yet. A phone number typed under Checkout becomes a member with the payment." },
            { tag: "members found", page: "admin/management/AdminMembersManagement", then: () => enter("Search phone number", "555"), says: "No member has this number." },
            { tag: "categories", page: "admin/management/AdminMenuManagement", says: "No categories yet. Type a name below, then press Add Category." },
            { tag: "dishes", page: "admin/management/AdminMenuManagement", before: emptyFoodIsChosen, says: "No dishes in this category yet. Type a name and a price below, then press Add Menu Item." },
            { tag: "tables", page: "admin/management/AdminTableManagement", says: "No tables yet. Type a name below, then press Add Table." },
            { tag: "printers", page: "admin/settings/AdminPrinterSettings", says: "No printers yet. Press + Add Printer to choose one." }
        ]
    }

    function test_an_empty_page_says_what_to_do_next(data) {
        if (data.before)
            data.before()
        show(data.page)
        if (data.then)
            data.then()

        const said = hint(data.says)

        compare(said.color, Theme.secondaryText)
        verify(said.width > 100)
        const place = said.mapToItem(page, 0, 0)
        verify(place.x >= 0 && place.x + said.width <= page.width)
        verify(place.y >= 0 && place.y + said.height <= page.height)
        verify(isPainted(said), "nothing lies over it")
    }

    function test_a_page_with_rows_says_nothing_data() {
        return [
            { tag: "common/OrderTakingSimple" }, { tag: "common/OrderTakingFloorPlan" }, { tag: "common/Checkout" },
            { tag: "common/KitchenOrders" }, { tag: "admin/management/AdminFloorPlanManagement" },
            { tag: "admin/management/AdminMembersManagement" }, { tag: "admin/management/AdminMenuManagement" },
            { tag: "admin/management/AdminTableManagement" }, { tag: "admin/settings/AdminPrinterSettings" }
        ]
    }

    function test_a_page_with_rows_says_nothing(data) {
        setKitchenMode("kds")
        SettingService.saveRestaurantSetting({ name: "Corner Cafe" })
        emptyFoodIsChosen()
        const soup = addItem("Soup", MenuService.currentCategoryId, 5)
        TableService.addTable("T1", 4)
        FloorPlanService.createFloor("Hall")
        SettingService.savePrinter({ system_name: "Bar", role: "receipt", paper_width: 58, cut_mode: "none" })
        TestDb.run("INSERT INTO memberships (phone_number, total_points, status) VALUES ('555', 0, 'active')")
        for (let i = 0; i < 2; ++i)
            OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
        verify(CheckoutService.completeCheckout(TestDb.value("SELECT MIN(id) FROM order_sessions"), "", 0))

        show(data.tag)

        compare(hints().filter(text => !text.startsWith("Choose a category")), [])
    }
}
