// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    property int hall
    property int terrace
    property int soup

    name: "OrderTakingFloorPlan"

    function arrange() {
        setKitchenMode("kds")
        const food = addCategory("Food")
        soup = addItem("Soup", food, 5)
        MenuService.currentCategoryId = food
        hall = FloorPlanService.createFloor("Hall")
        terrace = FloorPlanService.createFloor("Terrace")
        FloorPlanService.loadCanvas(hall)
        FloorPlanService.createTableItem({ floor_id: hall, label: "T1", capacity: 4, x: 100, y: 100, width: 80, height: 80, metadata: JSON.stringify({ table_type: "square" }) })
        FloorPlanService.addItem({ type: "wall", x: 100, y: 400, width: 150, height: 10, label: "" })
        FloorPlanService.saveCanvas(hall)
    }

    function open() {
        show("common/OrderTakingFloorPlan")
        // The second load is a deferred call of the page's own.
        wait(0)
    }

    // The editor slides in.
    function awaitEditor() {
        tryVerify(() => hasButton("Place Order"))
        const stack = theShown(item => item.depth !== undefined && item.busy !== undefined, "the stack")
        tryCompare(stack, "busy", false)
    }

    function tables(): var {
        return allShown(item => item.reservationText !== undefined)
    }

    function chooseTable() {
        click(tables()[0])
    }

    function book(more: var): bool {
        return ReservationService.createReservation(Object.assign({ customerName: "Anna", customerPhone: "0123", pax: 3, tableId: 1, reservationDateTime: new Date(2030, 4, 6, 19, 0), durationMinutes: 90, status: "booked", notes: "by the window" }, more || {}))
    }

    function test_the_first_floor_is_shown() {
        open()

        compare(page.currentFloorId, hall)
        verify(button("Hall").checked)
        compare(tables().length, 2)
        verify(shows("Select a table for dine in"))
    }

    function test_without_floors_the_quick_orders_still_work() {
        FloorPlanService.deleteFloor(hall)
        FloorPlanService.deleteFloor(terrace)
        FloorPlanService.clearCanvas()
        ignoreWarning(/Cannot assign \[undefined\] to int/)

        open()
        compare(tables().length, 0)
        press("Takeaway")
        awaitEditor()

        verify(shows("Takeaway Order"))
    }

    function test_the_first_floor_is_loaded_twice() {
        FloorPlanService.canvasModel.modelReset.connect(countReset)
        resets = 0

        open()
        FloorPlanService.canvasModel.modelReset.disconnect(countReset)

        compare(resets, 2)
    }

    property int resets: 0

    function countReset() {
        resets += 1
    }

    function test_a_reset_of_the_floors_jumps_back_to_the_first() {
        open()
        press("Terrace")
        compare(page.currentFloorId, terrace)

        FloorPlanService.loadFloors()

        compare(page.currentFloorId, hall)
    }

    function test_another_floor_clears_the_selection() {
        open()
        chooseTable()
        compare(page.selectedTableId, 1)

        press("Terrace")

        compare(page.selectedTableId, -1)
        compare(tables().length, 0)
    }

    function test_empty_space_clears_the_selection_and_a_wall_does_not() {
        open()
        chooseTable()
        click(tables()[1])
        compare(page.selectedTableId, 1)

        mouseClick(tables()[0].parent, 500, 600)

        compare(page.selectedTableId, -1)
    }

    function test_a_selected_table_shows_its_label_and_seats() {
        open()

        chooseTable()

        verify(shows("T1"))
        verify(shows("Capacity: 4"))
        verify(hasButton("Create Dine-In Order"))
        verify(hasButton("Create Reservation"))
    }

    function test_a_table_that_is_not_on_the_floor_is_unknown() {
        open()

        page.selectedTableId = 99

        verify(shows("Unknown Table"))
        verify(shows("Capacity: 0"))
    }

    function test_a_dine_in_order_turns_the_table_occupied() {
        open()
        chooseTable()
        press("Create Dine-In Order")
        awaitEditor()
        verify(shows("T1"))
        press("Add")

        press("Place Order")

        tryVerify(() => shows("Table Session"))
        compare(TestDb.value("SELECT table_id FROM order_sessions"), 1)
        compare(tables()[0].color, "#e74c3c")
        compare(page.selectedTableId, 1)
    }

    function test_quick_orders_have_no_table_data() {
        return [{ tag: "Takeaway", type: "takeaway" }, { tag: "Delivery", type: "delivery" }]
    }

    function test_quick_orders_have_no_table(data) {
        open()
        press(data.tag)
        awaitEditor()
        press("Add")

        press("Place Order")

        compare(TestDb.rows("SELECT order_type, table_id FROM order_sessions").map(row => [row.order_type, row.table_id === "" || row.table_id === null || row.table_id === undefined]), [[data.type, true]])
    }

    function test_a_reservation_is_booked_and_the_panel_still_offers_one() {
        open()
        chooseTable()
        press("Create Reservation")
        tryVerify(() => hasButton("Cancel"))
        enter("Customer Name", "Anna")
        enter("Customer Phone", "0123")

        press("Create Reservation", 1)

        tryVerify(() => !hasButton("Cancel"))
        compare(TestDb.rows("SELECT customer_name, customer_phone, pax, table_id, duration_minutes, status, notes FROM reservations"), [{ customer_name: "Anna", customer_phone: "0123", pax: 2, table_id: 1, duration_minutes: 90, status: "booked", notes: "" }])
        verify(TestDb.value("SELECT reservation_datetime FROM reservations").startsWith(Qt.formatDate(new Date(), "yyyy-MM-dd")))
        compare(tables()[0].color, "#f39c12")
        verify(hasButton("Create Reservation"))
        verify(!shows("Reservation Details"))
    }

    function test_the_buttons_have_their_colours() {
        verify(book())
        open()
        const fill = text => String(button(text).fillColor)
        compare([fill("Takeaway"), fill("Delivery")], ["#5bb8d6", "#e3a34f"])

        chooseTable()

        compare([fill("Update Reservation"), fill("Cancel Reservation")], ["#4faba1", "#5a5a5a"])
    }

    function test_the_plan_is_1600_by_1200_beside_a_panel_of_320() {
        open()

        const view = tables()[0].parent
        compare([view.width, view.height], [1600, 1200])
        compare(theShown(item => item.tableChosen !== undefined, "the panel").width, 320)
    }

    function test_from_a_booked_table_to_a_free_one_and_back() {
        verify(book())
        FloorPlanService.loadCanvas(hall)
        FloorPlanService.createTableItem({ floor_id: hall, label: "T2", capacity: 2, x: 300, y: 100, width: 80, height: 80 })
        FloorPlanService.saveCanvas(hall)
        open()
        const table = label => tables().find(item => item.label === label)

        click(table("T1"))
        verify(shows("Customer: Anna"))
        click(table("T2"))
        verify(!shows("Reservation Details"))
        verify(hasButton("Create Reservation"))
        click(table("T1"))

        verify(shows("Customer: Anna"))
    }

    function test_long_notes_leave_the_buttons_in_reach() {
        verify(book({ notes: "a table by the window ".repeat(100) + "x".repeat(300), customerName: "Anna ".repeat(100) }))
        open()
        chooseTable()
        const panel = theShown(item => item.tableChosen !== undefined, "the panel")
        const scroller = theShown(item => item.flickDeceleration !== undefined && item.parent === panel, "what scrolls")
        for (const item of allShown(item => item.text !== undefined && item.contentWidth !== undefined))
            verify(item.mapToItem(panel, 0, 0).x < 0 || item.contentWidth <= panel.width, item.text)
        verify(button("Cancel Reservation").mapToItem(panel, 0, 0).y > panel.height)

        scroller.contentY = scroller.contentHeight - scroller.height
        press("Cancel Reservation")

        compare(TestDb.value("SELECT status FROM reservations"), "cancelled")
    }

    function test_a_long_name_of_a_floor_is_cut() {
        FloorPlanService.createFloor("A very long name of a floor ".repeat(20))
        open()

        verify(allShown(item => isButton(item) && item.text.startsWith("A very long"))[0].width <= 240)
    }

    function test_the_panel_shows_the_reservation() {
        verify(book())
        open()

        chooseTable()

        for (const text of ["Reservation Details", "Customer: Anna", "Phone: 0123", "Guests: 3", "Time: 06 May 2030 07:00 PM", "Duration: 90 mins", "Status: booked", "Notes: by the window"])
            verify(shows(text), text)
        verify(!hasButton("Create Reservation"))
        verify(shows("Reserved 07:00 PM"))
    }

    function test_an_edit_moves_the_reservation_to_what_the_pickers_show() {
        verify(book())
        open()
        chooseTable()
        press("Update Reservation")
        tryVerify(() => hasButton("Cancel"))
        compare(field("Customer Name").text, "Anna")
        enter("Customer Name", "Berta")

        press("Update Reservation", 1)

        tryVerify(() => !hasButton("Cancel"))
        compare(TestDb.value("SELECT customer_name FROM reservations"), "Berta")
        compare(TestDb.value("SELECT status FROM reservations"), "booked")
        verify(TestDb.value("SELECT reservation_datetime FROM reservations").startsWith(Qt.formatDate(new Date(), "yyyy-MM-dd")))
        verify(shows("Customer: Anna"))
    }

    function test_a_closed_reservation_on_display_cannot_be_updated() {
        verify(book())
        open()
        chooseTable()
        TestDb.run("UPDATE reservations SET status = 'no_show'")

        press("Update Reservation")

        verify(!hasButton("Cancel"))
    }

    function test_a_reservation_is_cancelled_at_once() {
        verify(book())
        open()
        chooseTable()

        press("Cancel Reservation")

        compare(TestDb.value("SELECT status FROM reservations"), "cancelled")
        compare(TestDb.value("SELECT status FROM tables"), "available")
        compare(tables()[0].color, "#66bb6a")
        verify(shows("Reservation Details"))
        page.selectedTableId = -1
        chooseTable()
        verify(!shows("Reservation Details"))
    }

    function test_ordering_seats_the_reservation() {
        verify(book())
        open()
        chooseTable()
        press("Create Dine-In Order")
        awaitEditor()
        press("Add")

        press("Place Order")

        compare(TestDb.value("SELECT status FROM reservations"), "seated")
        compare(TestDb.value("SELECT status FROM tables"), "occupied")
    }

    function test_a_malformed_text_is_logged_and_treated_as_none() {
        TestDb.run("UPDATE canvas_items SET metadata = '{nonsense' WHERE type = 'table'")
        open()
        ignoreWarning(/Failed to parse metadata:/)

        chooseTable()

        compare(page.metadata, {})
        compare(page.reservation, null)
        verify(hasButton("Create Reservation"))
    }

    function test_names_are_shown_as_they_were_typed() {
        verify(book({ customerName: "<b>Anna</b>", notes: "<img src='x'>" }))
        open()

        chooseTable()

        verify(shows("Customer: <b>Anna</b>"))
        verify(shows("Notes: <img src='x'>"))
    }
}
