// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    property var dialog: null

    name: "ReservationDialog"

    function arrange() {
        TableService.addTable("T1", 4)
        TableService.addTable("T2", 4)
        dialog = create("common/floor/ReservationDialog")
    }

    function openCreate(tableId: int) {
        dialog.openCreate(tableId)
        tryVerify(() => dialog.opened)
    }

    function openEdit(reservation: var) {
        dialog.openEdit(reservation)
        tryVerify(() => dialog.opened)
    }

    function booking(more: var): var {
        return Object.assign({ customerName: "Anna", customerPhone: "0123", pax: 7, tableId: 1, reservationDateTime: new Date(2030, 4, 6, 19, 0), durationMinutes: 120, status: "booked", notes: "by the window" }, more || {})
    }

    function stored(): var {
        return TestDb.rows("SELECT customer_name, customer_phone, pax, table_id, duration_minutes, status, notes FROM reservations")
    }

    function spinBox(name: string): var {
        return theShown(item => item.Accessible.name === name && item.stepSize !== undefined, "a box " + name)
    }

    function test_it_has_its_size_and_its_ranges() {
        openCreate(1)

        compare([dialog.width, dialog.height], [580, 520])
        verify(dialog.modal)
        const guests = spinBox("Number Of Guests")
        compare([guests.from, guests.to, guests.value], [1, 100, 2])
        const duration = spinBox("Duration (minutes)")
        compare([duration.from, duration.to, duration.stepSize, duration.value, duration.editable], [30, 300, 30, 90, true])
    }

    function test_a_name_can_be_typed_at_once() {
        for (let opening = 1; opening <= 2; ++opening) {
            openCreate(1)

            for (const letter of "Mei")
                keyClick(letter)

            compare(field("Customer Name").text, "Mei")
            press("Cancel")
            tryVerify(() => !dialog.visible)
        }
    }

    function test_the_time_of_the_pickers_is_booked() {
        const picked = new Date(new Date().getFullYear() + 1, 4, 6)
        openCreate(2)
        theShown(item => item.selectedDate !== undefined, "the date").selectedDate = picked
        theShown(item => item.showTime !== undefined, "the time").showTime(19, 30)

        press("Create Reservation")

        tryVerify(() => !dialog.visible)
        compare(TestDb.value("SELECT reservation_datetime FROM reservations"), Qt.formatDate(picked, "yyyy-MM-dd") + " 19:30:00")
        compare(stored(), [{ customer_name: "", customer_phone: "", pax: 2, table_id: 2, duration_minutes: 90, status: "booked", notes: "" }])
    }

    function test_an_overlap_leaves_it_open_without_a_word() {
        const today = new Date()
        today.setHours(0, 0, 0, 0)
        verify(ReservationService.createReservation(booking({ reservationDateTime: today, durationMinutes: 2 * 24 * 60 })))
        openCreate(1)
        // All but the numbers of the turning columns, which are made as they turn.
        const words = () => texts().filter(text => !/^\d\d$/.test(text))
        const before = words()

        press("Create Reservation")

        verify(dialog.opened)
        compare(words(), before)
        compare(stored().length, 1)
    }

    function test_a_duration_that_is_still_being_typed_is_booked() {
        openCreate(1)
        const input = spinBox("Duration (minutes)").contentItem
        input.forceActiveFocus()
        input.selectAll()
        for (const digit of "120")
            keyClick(digit)

        press("Create Reservation")

        tryVerify(() => !dialog.visible)
        compare(TestDb.value("SELECT duration_minutes FROM reservations"), 120)
    }

    function test_a_change_keeps_status_and_table_and_moves_to_the_pickers() {
        verify(ReservationService.createReservation(booking({ status: "seated" })))
        openEdit(ReservationService.getActiveReservationByTable(1))
        compare([field("Customer Name").text, field("Customer Phone").text], ["Anna", "0123"])
        compare([spinBox("Number Of Guests").value, spinBox("Duration (minutes)").value], [7, 120])
        enter("Customer Name", "Berta")

        press("Update Reservation")

        tryVerify(() => !dialog.visible)
        compare(stored(), [{ customer_name: "Berta", customer_phone: "0123", pax: 7, table_id: 1, duration_minutes: 120, status: "seated", notes: "by the window" }])
        verify(TestDb.value("SELECT reservation_datetime FROM reservations").startsWith(Qt.formatDate(new Date(), "yyyy-MM-dd")))
    }

    function test_a_new_booking_starts_empty_after_a_change() {
        openEdit(booking({ id: 1 }))
        press("Cancel")
        tryVerify(() => !dialog.visible)

        openCreate(1)

        compare([field("Customer Name").text, field("Customer Phone").text, field("Notes").text], ["", "", ""])
        compare([spinBox("Number Of Guests").value, spinBox("Duration (minutes)").value], [2, 90])
        verify(hasButton("Create Reservation"))
    }

    function test_escape_in_the_calendar_leaves_the_dialog_open() {
        openCreate(1)
        field("Reservation Date").forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Return)
        tryVerify(() => hasButton("Today"))

        keyClick(Qt.Key_Escape)

        tryVerify(() => !hasButton("Today"))
        verify(dialog.opened)
        tryVerify(() => field("Reservation Date").activeFocus)
        keyClick(Qt.Key_Escape)
        tryVerify(() => !dialog.visible)
    }
}
