// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "AdminTaxReports"

    function sell(closedAt: string, cents: int, tax: int, more: var) {
        const id = TestDb.insert("INSERT INTO order_sessions (display_number, order_type, status, receipt_number, subtotal, tax, discount, total, closed_at) VALUES (1, 'takeaway', 'paid', " + (more?.receipt ? "'" + more.receipt + "'" : "NULL") + ", " + cents + ", " + tax + ", " + (more?.discount || 0) + ", " + (cents + tax - (more?.discount || 0)) + ", '" + closedAt + "')")
        if (more?.taxName)
            TestDb.run("INSERT INTO receipt_snapshot (order_session_id, store_name, tax_name, tax_rate, created_at) VALUES (" + id + ", 'r', '" + more.taxName + "', " + more.rate + ", '" + closedAt + "')")
    }

    function type(label: string, text: string) {
        enter(label, text)
        keyClick(Qt.Key_Return)
    }

    function setRange(from: string, to: string) {
        type("To", to)
        type("From", from)
    }

    function iso(day: date): string {
        return Qt.formatDate(day, "yyyy-MM-dd")
    }

    function slashed(day: date): string {
        return Qt.formatDate(day, "dd/MM/yyyy")
    }

    function test_an_empty_period() {
        show("admin/AdminTaxReports")

        verify(shows(slashed(new Date()) + " - " + slashed(new Date())))
        for (const text of ["Sales Before Tax", "Tax Collected", "0%", "Discount", "Total Sales", "0transactions", "No data for this period", "No transactions for this period"])
            verify(shows(text), text)
        compare(texts().filter(text => text === "$0.00").length, 4)
    }

    function test_a_period_is_summed_day_by_day_and_session_by_session() {
        sell("2025-03-01 10:00:00", 10000, 825, { receipt: "2025-000001", taxName: "VAT", rate: 825 })
        sell("2025-03-01 11:00:00", 5000, 412, { discount: 100, taxName: "VAT", rate: 600 })
        sell("2025-03-02 23:30:00", 200, 10)
        sell("2025-03-03 00:00:00", 777, 1)
        show("admin/AdminTaxReports")

        setRange("2025-03-01", "2025-03-02")

        for (const text of ["01/03/2025 - 02/03/2025", "$152.00", "VAT", "6%", "$12.47", "$1.00", "$163.47", "3transactions", "01/03/2025", "02/03/2025", "2025-000001", "2025-03-02 23:30:00"])
            verify(shows(text), text)
        compare(page.dailyBreakdown.length, 2)
        compare(page.sessions.length, 3)
        compare(page.sessions[0].closedAt, "2025-03-02 23:30:00")
    }

    function test_missing_fields_show_a_dash() {
        sell("2025-03-01 10:00:00", 10000, 825)
        show("admin/AdminTaxReports")

        setRange("2025-03-01", "2025-03-01")

        compare(texts().filter(text => text === "-").length, 2)
        verify(shows("takeaway"))
    }

    function test_a_wrong_range_changes_nothing_data() {
        return [
            { tag: "reversed", from: "2025-03-02", to: "2025-03-01" },
            { tag: "no date", from: "yesterday", to: "2025-03-01" },
            { tag: "empty", from: "", to: "2025-03-01" },
            { tag: "30 February", from: "2024-02-01", to: "2024-02-30" },
            { tag: "leap day of a common year", from: "2023-02-29", to: "2023-03-31" },
            { tag: "month 0", from: "2024-00-10", to: "2024-03-01" },
            { tag: "month 13", from: "2024-01-01", to: "2024-13-01" },
            { tag: "day 0", from: "2024-01-00", to: "2024-03-01" },
            { tag: "31 April", from: "2024-04-01", to: "2024-04-31" },
            { tag: "one digit", from: "2024-1-5", to: "2024-03-01" }
        ]
    }

    function test_a_wrong_range_changes_nothing(data) {
        show("admin/AdminTaxReports")
        const before = page.summary

        field("From").text = data.from
        field("To").text = data.to
        page.loadCustomRange()

        compare(page.summary, before)
        compare(iso(page.fromDate), iso(new Date()))
    }

    function test_a_typed_range_is_taken_to_its_days_data() {
        return [
            { tag: "a leap day", from: "2024-02-29", to: "2024-02-29" },
            { tag: "a century without one", from: "2100-02-28", to: "2100-03-01" },
            { tag: "a year of three digits", from: "0099-12-31", to: "0100-01-01" },
            { tag: "the last day", from: "2024-12-31", to: "2025-01-01" }
        ]
    }

    function test_a_typed_range_is_taken_to_its_days(data) {
        show("admin/AdminTaxReports")

        field("From").text = data.from
        field("To").text = data.to
        page.loadCustomRange()

        compare([page.summary.from, page.summary.to], [data.from, data.to])
    }

    function test_the_presets_data() {
        const now = new Date()
        const year = now.getFullYear()
        const month = now.getMonth()
        const day = now.getDate()
        return [
            { tag: "Today", from: now, to: now },
            { tag: "Yesterday", from: new Date(year, month, day - 1), to: new Date(year, month, day - 1) },
            { tag: "This Week", from: new Date(year, month, day - (now.getDay() + 6) % 7), to: now },
            { tag: "This Month", from: new Date(year, month, 1), to: now },
            { tag: "Last Month", from: new Date(year, month - 1, 1), to: new Date(year, month, 0) }
        ]
    }

    function test_the_presets(data) {
        show("admin/AdminTaxReports")

        press(data.tag)

        compare(page.summary.from, iso(data.from))
        compare(page.summary.to, iso(data.to))
        compare(field("From").text, iso(data.from))
        compare(field("To").text, iso(data.to))
    }

    function test_a_preset_knows_the_calendar_data() {
        return [
            { tag: "yesterday over new year", preset: "yesterday", now: new Date(2026, 0, 1, 12), from: "2025-12-31", to: "2025-12-31" },
            { tag: "week of a Sunday", preset: "week", now: new Date(2026, 2, 8, 12), from: "2026-03-02", to: "2026-03-08" },
            { tag: "week of a Monday", preset: "week", now: new Date(2026, 2, 9, 12), from: "2026-03-09", to: "2026-03-09" },
            { tag: "week of a Saturday", preset: "week", now: new Date(2026, 2, 7, 12), from: "2026-03-02", to: "2026-03-07" },
            { tag: "month on its first day", preset: "month", now: new Date(2026, 2, 1, 12), from: "2026-03-01", to: "2026-03-01" },
            { tag: "last month in January", preset: "lastMonth", now: new Date(2026, 0, 31, 12), from: "2025-12-01", to: "2025-12-31" },
            { tag: "last month in March", preset: "lastMonth", now: new Date(2028, 2, 31, 12), from: "2028-02-01", to: "2028-02-29" }
        ]
    }

    function test_a_preset_knows_the_calendar(data) {
        show("admin/AdminTaxReports")

        const period = page.periodOf(data.preset, data.now)

        compare([iso(period.from), iso(period.to)], [data.from, data.to])
    }

    function test_a_preset_shows_its_dates_over_what_was_typed_in_vain() {
        show("admin/AdminTaxReports")
        type("From", "nonsense")
        compare(field("From").text, "nonsense")

        press("Today")

        compare(field("From").text, iso(new Date()))
        setRange("2025-03-01", "2025-03-02")
        compare(page.summary.from, "2025-03-01")
        press("Today")
        compare(field("From").text, iso(new Date()))
    }

    function test_dates_with_other_than_two_hyphens_stay_as_they_are() {
        show("admin/AdminTaxReports")

        compare(page.formatDate("2026-11-20"), "20/11/2026")
        compare(page.formatDate("2026-11"), "2026-11")
        compare(page.formatDate("-2026-11-20"), "-2026-11-20")
        compare(page.formatDate(""), "")
    }

    function test_many_sessions_make_only_the_rows_on_screen() {
        TestDb.run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) INSERT INTO order_sessions (display_number, order_type, status, subtotal, tax, discount, total, closed_at) SELECT i, 'takeaway', 'paid', 100, 8, 0, 108, '2025-03-01 10:00:00' FROM n")
        show("admin/AdminTaxReports")

        setRange("2025-03-01", "2025-03-01")

        compare(page.sessions.length, 2000)
        verify(items(page).length < 1500)
    }
}
