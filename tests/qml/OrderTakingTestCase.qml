// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// The root of the tests of the order page of a store without a floor plan: two tables and two dishes.
ZelvanTestCase {
    id: root

    property int windowTable
    property int doorTable
    property int food
    property int soup
    property int burger

    function arrange() {
        SettingService.saveKitchenSettings({ mode: "kds", ticket_print_timing: "manual", allow_edit_after_send: true })
        windowTable = TableService.addTable("Window", 4)
        doorTable = TableService.addTable("Door", 2)
        food = addCategory("Food")
        soup = addItem("Soup", food, 5)
        burger = addItem("Burger", food, 12.5, "L")
        MenuService.currentCategoryId = food
    }

    function lastOrder(column: string): var {
        return TestDb.value("SELECT " + column + " FROM orders o JOIN order_sessions s ON s.id = o.order_session_id ORDER BY o.id DESC LIMIT 1")
    }

    function lines(): var {
        return TestDb.rows("SELECT item_name, quantity, notes FROM order_items ORDER BY id")
    }

    function openEditList() {
        press("Edit Order")
        return allShown(item => item.Accessible.role === Accessible.ListItem && item.Accessible.name.startsWith("Order #"))
    }
}
