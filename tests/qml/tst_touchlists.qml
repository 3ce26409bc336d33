// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

TouchTestCase {
    id: root

    property int food

    name: "TouchLists"

    function arrange() {
        setKitchenMode("kds")
        SettingService.saveRestaurantSetting({ name: "Corner", address: "1 Main Street" })
        food = addCategory("Food")
        for (let i = 1; i <= 60; ++i)
            addItem("Dish " + i, food, i)
        for (let i = 1; i <= 40; ++i)
            addCategory("Category " + i)
        for (let i = 1; i <= 40; ++i)
            TableService.addTable("Table " + i, 4)
        MenuService.currentCategoryId = food
    }

    function cards(count: int) {
        for (let i = 0; i < count; ++i)
            OrderService.createOrder("takeaway", [{ menuItemId: TestDb.value("SELECT MIN(id) FROM menu"), qty: 1, notes: "" }], {})
    }

    function pay(count: int) {
        for (let i = 0; i < count; ++i) {
            cards(1)
            CheckoutService.completeCheckout(TestDb.value("SELECT MAX(id) FROM order_sessions"), "", 0)
        }
    }

    function isScroller(item): bool {
        return item.flickDeceleration !== undefined && item.contentHeight > item.height
    }

    function list(name: string): var {
        const found = allShown(item => isScroller(item) && (name === "" || item.Accessible.name === name))
        verify(found.length > 0, "a list " + name)
        return found[0]
    }

    function pages(): var {
        return [
            { tag: "categories of the menu", page: "admin/management/AdminMenuManagement", list: "", x: 100 },
            { tag: "dishes to order", page: "common/OrderTakingSimple", list: "Menu Items" },
            { tag: "categories to order from", page: "common/OrderTakingSimple", list: "Categories" },
            { tag: "tables", page: "admin/management/AdminTableManagement", list: "" },
            { tag: "the kitchen's board", page: "common/KitchenOrders", list: "NEW" },
            { tag: "open bills", page: "common/Checkout", list: "Checkout" },
            { tag: "paid bills", page: "common/Checkout", list: "Recent Paid Orders" },
            { tag: "a page of settings", page: "admin/settings/AdminMembershipSettings", list: "", height: 400 },
            { tag: "the dashboard", page: "admin/AdminAnalytics", list: "", height: 400 }
        ]
    }

    function open(data: var): var {
        if (data.page === "common/KitchenOrders" || data.page === "common/Checkout") {
            pay(14)
            cards(20)
        }
        if (data.page.endsWith("MembershipSettings"))
            SettingService.saveMembershipSettings({ enabled: true, earn_points: 1, earn_spend: 1, redeem_points: 1, redeem_value: 0.1, earn_on: "total" })
        show(data.page)
        if (data.height)
            page.height = data.height
        settle()
        return list(data.list)
    }

    function test_a_finger_scrolls_and_presses_nothing_on_the_way_data() {
        return pages()
    }

    function test_a_finger_scrolls_and_presses_nothing_on_the_way(data) {
        const scroller = open(data)
        const place = centre(scroller)
        const before = stateOfThings()

        // Once for each thing that a press could start on.
        for (const part of [0.1, 0.5, 0.9]) {
            scroller.contentY = scroller.originY
            const x = scroller.mapToItem(root, scroller.width * part, 0).x
            swipe(x, place.y, 0, -Math.min(150, scroller.height / 2))
            scroller.cancelFlick()

            verify(scroller.contentY > scroller.originY + 20, part + ": " + scroller.contentY)
            compare(stateOfThings(), before)
        }
    }

    function test_a_list_that_runs_on_is_stopped_and_presses_nothing_data() {
        return pages().filter(data => !data.height)
    }

    function test_a_list_that_runs_on_is_stopped_and_presses_nothing(data) {
        const scroller = open(data)
        const place = centre(scroller)
        const before = stateOfThings()

        for (const part of [0.1, 0.5, 0.9]) {
            scroller.contentY = scroller.originY
            const x = scroller.mapToItem(root, scroller.width * part, 0).x
            swipe(x, place.y, 0, -Math.min(150, scroller.height / 2))
            verify(scroller.flicking, "it runs")
            tapAt(x, place.y)

            verify(!scroller.flicking)
            compare(stateOfThings(), before)
            tryVerify(() => !scroller.moving)
        }
    }

    // All that a press on one of these pages could change.
    function stateOfThings(): string {
        const stored = TestDb.rows("SELECT (SELECT COUNT(*) FROM orders) a, (SELECT GROUP_CONCAT(status) FROM orders) b, (SELECT COUNT(*) FROM categories) c, (SELECT COUNT(*) FROM menu) d, (SELECT COUNT(*) FROM tables) e")
        const shown = [page.totalItems, page.selectedSession, page.selectedRecentDetails, MenuService.currentCategoryId]
        const typing = root.Window.window.activeFocusItem?.cursorPosition !== undefined
        const open = allShown(item => isButton(item) && ["Save", "Cancel"].includes(item.text)).length
        return JSON.stringify([stored, shown, typing, open])
    }

    function test_a_running_list_can_be_caught_and_pulled_back() {
        const scroller = open({ page: "common/OrderTakingSimple", list: "Menu Items" })
        const place = centre(scroller)
        swipe(place.x, place.y, 0, -150)
        verify(scroller.flicking)
        const caught = scroller.contentY

        swipe(place.x, place.y, 0, 200)

        verify(scroller.contentY < caught - 100)
        compare(page.totalItems, 0)
    }

    function test_a_list_at_rest_takes_the_next_tap() {
        const scroller = open({ page: "common/OrderTakingSimple", list: "Menu Items" })
        const place = centre(scroller)
        swipe(place.x, place.y, 0, -150)
        tapAt(place.x, place.y)
        tryVerify(() => !scroller.moving)

        const shown = allShown(item => isButton(item) && item.text === "Add").find(item => centre(item).y > place.y)
        tap(shown)

        compare(page.totalItems, 1)
    }

    function test_a_second_finger_on_a_scrolling_list_presses_nothing() {
        const scroller = open({ page: "common/OrderTakingSimple", list: "Menu Items" })
        const place = centre(scroller)
        const other = centre(button("Add", 2))

        const fingers = putDown(place.x, place.y)
        for (let step = 1; step <= 5; ++step) {
            wait(8)
            fingers.move(0, root, place.x, place.y - 10 * step).commit()
        }
        verify(scroller.dragging)
        fingers.stationary(0).press(1, root, other.x, other.y).commit()
        fingers.stationary(0).release(1, root, other.x, other.y).commit()
        fingers.release(0, root, place.x, place.y - 50).commit()
        settle()

        compare(page.totalItems, 0)
    }

    function test_a_held_category_offers_its_menu() {
        show("admin/management/AdminMenuManagement")
        const entries = () => allShown(item => isButton(item) && item.subMenu !== undefined).map(item => item.text)
        const place = centre(row("Category 3"))

        const took = hold(place.x, place.y, () => entries().length > 0)

        // Timers may be a twentieth early.
        verify(took >= 760, took)
        compare(entries(), ["Rename", "Delete"])
        compare(MenuService.currentCategoryId, food)
        tapButton("Rename")
        tryVerify(() => entries().length === 0)
        compare(field("Rename").text, "Category 3")
    }

    function test_a_tapped_category_is_chosen() {
        show("admin/management/AdminMenuManagement")

        tap(row("Category 3"))

        compare(MenuService.currentCategoryId, TestDb.value("SELECT id FROM categories WHERE category = 'Category 3'"))
    }

    function test_a_finger_that_scrolls_the_categories_opens_no_menu() {
        show("admin/management/AdminMenuManagement")
        const place = centre(row("Category 5"))

        const finger = putDown(place.x, place.y)
        for (let step = 1; step <= 5; ++step) {
            wait(8)
            finger.move(0, root, place.x, place.y - 10 * step).commit()
        }
        wait(1000)
        finger.release(0, root, place.x, place.y - 50).commit()

        compare(allShown(item => isButton(item) && item.subMenu !== undefined).length, 0)
        compare(MenuService.currentCategoryId, food)
    }

    function test_a_name_being_typed_is_kept_when_another_category_is_held() {
        show("admin/management/AdminMenuManagement")
        const entries = () => allShown(item => isButton(item) && item.subMenu !== undefined)
        mouseClick(row("Category 2"), 20, 20, Qt.RightButton)
        tryVerify(() => entries().length > 0)
        press("Rename")
        tryVerify(() => entries().length === 0)
        enter("Rename", "Sweets")
        const place = centre(row("Category 5"))

        hold(place.x, place.y, () => entries().length > 0)
        tapButton("Rename")

        tryVerify(() => row("Sweets"))
        compare(TestDb.value("SELECT COUNT(*) FROM categories WHERE category = 'Sweets'"), 1)
    }
}
