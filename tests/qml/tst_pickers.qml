// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import zelvan.Theme 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "Pickers"

    function makeDatePicker() {
        page = create("components/DatePicker")
        page.x = 400
        page.y = 50
        waitForRendering(page)
        return page
    }

    function openCalendar() {
        press("📅")
        tryVerify(() => hasButton("Today"))
    }

    // The cells of the grid, from the first.
    function cells() {
        return allShown(item => item.inMonth !== undefined)
    }

    function iso(day: date): string {
        return Qt.formatDate(day, "yyyy-MM-dd")
    }

    function test_it_starts_as_today() {
        makeDatePicker()

        compare(iso(page.selectedDate), iso(new Date()))
        compare(page.implicitWidth, 300)
        compare(page.implicitHeight, 50)
        compare(field("Date").text, Qt.formatDate(new Date(), "dd MMM yyyy"))
    }

    function test_field_and_button_open_the_calendar_below_the_control() {
        makeDatePicker()
        click(field("Date"))
        tryVerify(() => hasButton("Today"))
        press("Cancel")
        tryVerify(() => !hasButton("Today"))

        openCalendar()

        const left = cells()[0].mapToItem(null, 0, 0).x
        verify(left > 400 - 20 && left < 400)
        verify(cells()[0].mapToItem(null, 0, 0).y > 105)
        const calendar = theShown(item => item.radius === 12, "the calendar")
        compare([calendar.width, calendar.height], [340, 420])
        compare(calendar.mapToItem(null, 0, 0), Qt.point(380, 105))
        compare(calendar.width - cells()[6].mapToItem(calendar, 40, 0).x, cells()[0].mapToItem(calendar, 0, 0).x)
    }

    function test_the_grid_starts_on_sunday_and_has_42_cells() {
        makeDatePicker()
        page.currentDate = new Date(2027, 0, 15)
        openCalendar()

        compare(cells().length, 42)
        compare(iso(cells()[0].day), "2026-12-27")
        compare(iso(cells()[41].day), "2027-02-06")
        for (const head of ["Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"])
            verify(shows(head), head)
        verify(shows("January 2027"))
    }

    function test_a_long_month_that_starts_on_saturday_fits() {
        makeDatePicker()
        page.currentDate = new Date(2028, 0, 1)
        openCalendar()

        compare(cells().filter(cell => cell.inMonth).length, 31)
        compare(iso(cells()[6].day), "2028-01-01")
        compare(iso(cells()[36].day), "2028-01-31")
    }

    function test_only_days_of_the_month_from_today_on_can_be_picked() {
        makeDatePicker()
        page.now = new Date(2026, 10, 20, 14, 0)
        page.currentDate = new Date(2026, 10, 20)
        const enabled = day => {
            return page.inCurrentMonth(day) && !page.isPast(day) && page.isAllowed(day)
        }

        verify(!enabled(new Date(2026, 10, 19)))
        verify(enabled(new Date(2026, 10, 20)))
        verify(enabled(new Date(2026, 10, 30)))
        verify(!enabled(new Date(2026, 11, 1)))
    }

    function test_the_last_day_is_the_end_of_the_year_after_next() {
        makeDatePicker()
        page.now = new Date(2026, 10, 20, 14, 0)

        verify(page.isAllowed(new Date(2028, 11, 31)))
        verify(!page.isAllowed(new Date(2029, 0, 1)))
    }

    function test_a_click_on_a_day_selects_it_and_closes() {
        makeDatePicker()
        const next = new Date(new Date().getFullYear() + 1, 5, 1)
        page.currentDate = next
        openCalendar()

        mouseClick(cells().find(cell => cell.inMonth && cell.day.getDate() === 17))

        compare(iso(page.selectedDate), iso(new Date(next.getFullYear(), 5, 17)))
        tryVerify(() => !hasButton("Today"))
    }

    function test_days_of_other_months_and_past_ones_cannot_be_clicked() {
        makeDatePicker()
        const before = iso(page.selectedDate)
        page.currentDate = new Date(2020, 5, 1)
        openCalendar()

        mouseClick(cells()[0])
        mouseClick(cells()[20])

        compare(iso(page.selectedDate), before)
        verify(hasButton("Today"))
    }

    function test_the_month_buttons_use_the_scripts_own_arithmetic() {
        makeDatePicker()
        page.currentDate = new Date(2027, 0, 31)
        openCalendar()

        press(">")
        compare(iso(page.currentDate), "2027-03-03")
        press("<")

        compare(iso(page.currentDate), "2027-02-03")
    }

    function test_a_past_date_stays_until_it_is_changed() {
        makeDatePicker()
        page.selectedDate = new Date(2020, 1, 2)

        openCalendar()
        press("Cancel")

        compare(iso(page.selectedDate), "2020-02-02")
    }

    function test_today_brings_date_and_month_back() {
        makeDatePicker()
        page.selectedDate = new Date(2020, 1, 2)
        page.currentDate = new Date(2020, 1, 2)
        openCalendar()

        press("Today")

        compare(iso(page.selectedDate), iso(new Date()))
        compare(iso(page.currentDate), iso(new Date()))
        tryVerify(() => !hasButton("Today"))
    }

    function test_a_cell_shows_its_state_data() {
        return [
            { tag: "selected", day: 25, fill: "#9a7bff", border: "#9a7bff", number: "#ffffff", bold: true },
            { tag: "today", day: 20, fill: "surface", border: "#00000000", number: "text", bold: true },
            { tag: "open", day: 27, fill: "#00000000", border: "#00000000", number: "text", bold: false },
            { tag: "past", day: 19, fill: "#00000000", border: "#00000000", number: "secondary", bold: false },
            { tag: "outside", day: 31, fill: "surface", border: "#00000000", number: "secondary", bold: false }
        ]
    }

    function test_a_cell_shows_its_state(data) {
        makeDatePicker()
        page.selectedDate = new Date(2027, 10, 25)
        page.currentDate = new Date(2027, 10, 20)
        openCalendar()
        page.now = new Date(2027, 10, 20, 14, 0)
        const colour = { surface: Theme.surface, text: Theme.text, secondary: Theme.secondaryText }

        // November starts on Monday, so October's last day comes first.
        const cell = data.tag === "outside" ? cells()[0] : cells().find(cell => cell.inMonth && cell.day.getDate() === data.day)

        const number = items(cell).find(item => item.text !== undefined)
        compare([cell.width, cell.height, cell.radius, cell.border.width], [40, 40, 6, 2])
        compare(String(cell.color), String(colour[data.fill] ?? data.fill))
        compare(String(cell.border.color), data.border)
        compare(number.text, String(data.day))
        compare(String(number.color), String(colour[data.number] ?? data.number))
        compare(number.font.bold, data.bold)
    }

    function test_escape_and_a_press_outside_close_the_calendar() {
        makeDatePicker()
        openCalendar()
        keyClick(Qt.Key_Escape)
        tryVerify(() => !hasButton("Today"))
        openCalendar()

        mouseClick(root, 5, root.height - 5)

        tryVerify(() => !hasButton("Today"))
    }

    function test_the_time_is_rounded_up_and_clamped_data() {
        return [
            { tag: "08:10", hour: 8, minute: 10, shown: "09:15" },
            { tag: "12:00", hour: 12, minute: 0, shown: "12:00" },
            { tag: "12:01", hour: 12, minute: 1, shown: "12:15" },
            { tag: "12:46", hour: 12, minute: 46, shown: "13:00" },
            { tag: "22:50", hour: 22, minute: 50, shown: "22:00" },
            { tag: "23:40", hour: 23, minute: 40, shown: "22:45" },
            { tag: "00:00", hour: 0, minute: 0, shown: "09:00" }
        ]
    }

    function test_the_time_is_rounded_up_and_clamped(data) {
        page = create("components/TimePicker")

        page.showTime(data.hour, data.minute)

        const twoDigits = number => String(number).padStart(2, "0")
        compare(twoDigits(page.hour) + ":" + twoDigits(page.minute), data.shown)
    }

    function test_a_step_that_does_not_divide_the_hour_ends_with_it_data() {
        return [
            { tag: "25: the first", step: 25, minute: 0, shown: "12:00" },
            { tag: "25: the last", step: 25, minute: 25, shown: "12:25" },
            { tag: "25: past the last", step: 25, minute: 26, shown: "13:00" },
            { tag: "25: past the hour", step: 25, minute: 55, shown: "13:00" },
            { tag: "7: the last", step: 7, minute: 49, shown: "12:49" },
            { tag: "7: past the last", step: 7, minute: 52, shown: "13:00" },
            { tag: "7: past the hour", step: 7, minute: 59, shown: "13:00" },
            { tag: "60", step: 60, minute: 1, shown: "13:00" }
        ]
    }

    function test_a_step_that_does_not_divide_the_hour_ends_with_it(data) {
        page = create("components/TimePicker", { minuteStep: data.step })

        page.showTime(12, data.minute)

        const twoDigits = number => String(number).padStart(2, "0")
        compare(twoDigits(page.hour) + ":" + twoDigits(page.minute), data.shown)
        compare(findChild(page, "minuteColumn").count, Math.floor(60 / data.step))
    }

    function test_it_starts_on_the_present_time() {
        const before = new Date()
        page = create("components/TimePicker")
        const other = create("components/TimePicker")

        other.showTime(before.getHours(), before.getMinutes())

        compare(page.hour, other.hour)
        compare(page.minute, other.minute)
    }

    function test_the_columns_offer_the_opening_hours_in_quarters() {
        page = create("components/TimePicker")

        compare(page.totalHours, 14)
        compare(findChild(page, "hourColumn").count, 14)
        compare(findChild(page, "minuteColumn").count, 4)
        compare(page.width, 260)
        compare(page.height, 160)
    }

    SignalSpy {
        id: timeSpy

        signalName: "timeChanged"
    }

    function test_each_change_of_a_column_is_told() {
        page = create("components/TimePicker")
        page.showTime(12, 0)
        timeSpy.target = page
        timeSpy.clear()

        findChild(page, "minuteColumn").currentIndex = 2

        compare(timeSpy.count, 1)
        compare(timeSpy.signalArguments[0][0], 12)
        compare(timeSpy.signalArguments[0][1], 30)
    }
}
