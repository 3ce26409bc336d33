// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// Holds on every day, and is run on days that do not begin at midnight. What the service says of them
// is the measure: it counts days without a clock.
ZelvanTestCase {
    id: root

    name: "SummerTime"

    readonly property string today: TaxReportService.getTodaySummary().from
    readonly property int year: Number(today.slice(0, 4))

    function iso(day: date): string {
        return Qt.formatDate(day, "yyyy-MM-dd")
    }

    function isoOf(year: int, month: int, day: int): string {
        return new Date(Date.UTC(year, month, day)).toISOString().slice(0, 10)
    }

    function makeCalendar() {
        page = create("components/DatePicker")
        page.x = 400
        page.y = 50
        waitForRendering(page)
        click(field("Date"))
        tryVerify(() => hasButton("Today"))
    }

    function cells(): var {
        return allShown(item => item.inMonth !== undefined)
    }

    function cellOf(day: string): var {
        return cells().find(cell => iso(cell.day) === day)
    }

    function test_each_month_shows_each_of_its_days_once() {
        makeCalendar()

        for (let month = 0; month < 12; ++month) {
            page.currentDate = new Date(year, month, 15, 12)
            const start = new Date(Date.UTC(year, month, 1)).getUTCDay()
            const expected = Array.from({ length: 42 }, (unused, index) => isoOf(year, month, 1 - start + index))

            compare(cells().map(cell => iso(cell.day)), expected)
            compare(cells().map(cell => items(cell).find(item => item.text !== undefined).text), expected.map(day => String(Number(day.slice(8)))))
            compare(cells().filter(cell => cell.inMonth).length, new Date(Date.UTC(year, month + 1, 0)).getUTCDate())
        }
    }

    function test_the_months_follow_each_other() {
        makeCalendar()
        page.currentDate = new Date(year, 0, 24, 12)

        for (let month = 1; month < 24; ++month) {
            press(">")
            compare(iso(page.currentDate), isoOf(year, month, 24))
        }
    }

    function test_today_can_be_picked_and_yesterday_cannot() {
        makeCalendar()

        verify(cellOf(today).today)
        verify(cellOf(today).selected)
        compare(cells().filter(cell => cell.pickable && iso(cell.day) < today).length, 0)
        mouseClick(cellOf(today))

        compare(iso(page.selectedDate), today)
        compare(field("Date").text, Qt.formatDate(new Date(), "dd MMM yyyy"))
    }

    function test_a_day_that_is_picked_is_the_one_that_is_taken() {
        makeCalendar()
        for (const day of cells().filter(cell => cell.pickable).slice(0, 3).map(cell => iso(cell.day))) {
            mouseClick(cellOf(day))

            compare(iso(page.selectedDate), day)
            tryVerify(() => !hasButton("Today"))
            click(field("Date"))
            tryVerify(() => hasButton("Today"))
        }
    }

    function test_the_last_day_on_offer_is_the_end_of_the_year_after_next() {
        makeCalendar()

        page.currentDate = new Date(year + 2, 11, 1, 12)
        verify(cellOf((year + 2) + "-12-31").pickable)
        page.currentDate = new Date(year + 3, 0, 1, 12)

        verify(!cellOf((year + 3) + "-01-01").pickable)
    }

    function test_a_booking_is_stored_for_the_day_that_is_shown() {
        const table = TableService.addTable("T1", 4)
        const dialog = create("common/floor/ReservationDialog")
        dialog.openCreate(table)
        tryVerify(() => dialog.opened)
        enter("Customer Name", "Mei")
        enter("Customer Phone", "555")

        press("Create Reservation")

        compare(TestDb.value("SELECT substr(reservation_datetime, 1, 10) FROM reservations"), today)
    }

    function test_the_report_counts_its_days_as_the_service_does_data() {
        return [
            { tag: "Today", expected: TaxReportService.getTodaySummary() },
            { tag: "Yesterday", expected: TaxReportService.getYesterdaySummary() },
            { tag: "This Week", expected: TaxReportService.getThisWeekSummary() },
            { tag: "This Month", expected: TaxReportService.getThisMonthSummary() },
            { tag: "Last Month", expected: TaxReportService.getLastMonthSummary() }
        ]
    }

    function test_the_report_counts_its_days_as_the_service_does(data) {
        show("admin/AdminTaxReports")

        press(data.tag)

        compare([page.summary.from, page.summary.to], [data.expected.from, data.expected.to])
        compare([field("From").text, field("To").text], [data.expected.from, data.expected.to])
    }

    function test_the_report_opens_on_today() {
        show("admin/AdminTaxReports")

        compare([page.summary.from, page.summary.to], [today, today])
    }

    function test_a_typed_range_keeps_its_days() {
        show("admin/AdminTaxReports")

        for (let around = -3; around <= 3; ++around) {
            const day = isoOf(year, Number(today.slice(5, 7)) - 1, Number(today.slice(8)) + around)
            field("From").text = day
            field("To").text = day
            page.loadCustomRange()

            compare([page.summary.from, page.summary.to], [day, day])
        }
    }
}
