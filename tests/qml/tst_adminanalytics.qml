// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "AdminAnalytics"

    function sell(name: string, cents: int, quantity: int, closedAt: string) {
        const session = TestDb.insert("INSERT INTO order_sessions (display_number, order_type, status, subtotal, total, closed_at) VALUES (1, 'takeaway', 'paid', " + cents + ", " + cents + ", " + closedAt + ")")
        const order = TestDb.insert("INSERT INTO orders (order_session_id, display_number, status) VALUES (" + session + ", 1, 'served')")
        const category = TestDb.insert("INSERT INTO categories (category) VALUES ('c')")
        const item = TestDb.insert("INSERT INTO menu (item, category_id, price, is_available, is_taxable) VALUES ('" + name + "', " + category + ", 100, 1, 1)")
        TestDb.run("INSERT INTO order_items (order_id, item_id, item_name, quantity, price, is_taxable, item_status) VALUES (" + order + ", " + item + ", '" + name + "', " + quantity + ", 100, 1, 'served')")
    }

    function test_a_day_without_sales_shows_zeros_and_seven_days() {
        show("admin/AdminAnalytics")

        for (const text of ["Revenue Today", "Orders", "Average Order", "Items Sold", "Top Items Today", "Revenue by Hour", "Last 7 Days Revenue"])
            verify(shows(text), text)
        compare(texts().filter(text => text === "$0.00").length, 9)
        compare(page.snapshot.topItems.length, 0)
        compare(page.snapshot.revenueByHour.length, 0)
        compare(page.snapshot.last7Days.length, 7)
    }

    function test_the_figures_of_the_day() {
        sell("Soup", 1250, 3, "datetime('now', 'start of day', '+14 hours')")
        sell("Burger", 2501, 2, "datetime('now', 'start of day', '+14 hours')")

        show("admin/AdminAnalytics")

        for (const text of ["$37.51", "$18.75", "2", "5", "1. Soup", "2. Burger", "2pm-3pm:00"])
            verify(shows(text), text)
    }

    function test_only_the_five_best_items_are_listed() {
        for (let i = 1; i <= 7; ++i)
            sell("Dish " + i, 100, i, "datetime('now')")

        show("admin/AdminAnalytics")

        verify(shows("1. Dish 7"))
        verify(shows("5. Dish 3"))
        verify(!texts().some(text => text.endsWith("Dish 2")))
    }

    function test_the_figures_are_read_once() {
        show("admin/AdminAnalytics")

        sell("Soup", 1250, 3, "datetime('now')")

        compare(page.snapshot.ordersToday, 0)
        verify(!shows("$12.50"))
    }

    function test_the_cards_are_equal_and_100_high() {
        show("admin/AdminAnalytics")

        const cards = allShown(item => item.figureColor !== undefined)
        compare(cards.length, 4)
        for (const card of cards) {
            compare(card.height, 100)
            fuzzyCompare(card.width, cards[0].width, 1)
        }
        compare(shows("Orders"), true)
    }
}
