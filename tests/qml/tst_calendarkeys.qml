// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import ZelvanTest 1.0

// The date picker without a pointer.
ZelvanTestCase {
    id: root

    readonly property int nextYear: new Date().getFullYear() + 1

    name: "CalendarKeys"

    function init() {
        failOnWarning(/.*/)
        page = create("components/DatePicker", { x: 400, y: 50 })
        page.selectedDate = new Date(nextYear, 4, 12)
        page.currentDate = new Date(nextYear, 4, 12)
        waitForRendering(page)
        field("Date").forceActiveFocus(Qt.TabFocusReason)
    }

    function isOpen(): bool {
        return hasButton("Today")
    }

    function openByKey() {
        keyClick(Qt.Key_Return)
        tryVerify(isOpen)
    }

    function iso(day: date): string {
        return Qt.formatDate(day, "yyyy-MM-dd")
    }

    function cell(day: int): var {
        return theShown(item => item.inMonth === true && item.day.getDate() === day, "the day " + day)
    }

    // The days that are seen to have the keys.
    function framed(): var {
        return allShown(item => item.inMonth !== undefined && items(item).some(part => part.visible && part.z === 2)).map(item => iso(item.day))
    }

    function test_it_opens_on_the_chosen_day_which_is_framed() {
        openByKey()

        compare(framed(), [nextYear + "-05-12"])
    }

    function test_keys_lead_to_other_days_and_return_takes_them_data() {
        return [
            { tag: "Right", keys: [Qt.Key_Right], day: "05-13" },
            { tag: "Left", keys: [Qt.Key_Left], day: "05-11" },
            { tag: "Down", keys: [Qt.Key_Down], day: "05-19" },
            { tag: "Up", keys: [Qt.Key_Up], day: "05-05" },
            { tag: "into the next month", keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Down], day: "06-02" },
            { tag: "into the month before", keys: [Qt.Key_Up, Qt.Key_Up], day: "04-28" },
            { tag: "Page Down", keys: [Qt.Key_PageDown], day: "06-12" },
            { tag: "Page Up", keys: [Qt.Key_PageUp], day: "04-12" },
            { tag: "from the 31st to a shorter month", keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Right, Qt.Key_Right, Qt.Key_Right, Qt.Key_Right, Qt.Key_Right, Qt.Key_PageDown], day: "06-30" }
        ]
    }

    function test_keys_lead_to_other_days_and_return_takes_them(data) {
        openByKey()

        for (const key of data.keys)
            keyClick(key)
        compare(framed(), [nextYear + "-" + data.day])
        verify(shows(Qt.formatDate(new Date(nextYear + "-" + data.day + "T12:00"), "MMMM yyyy")))
        keyClick(Qt.Key_Return)

        tryVerify(() => !isOpen())
        compare(iso(page.selectedDate), nextYear + "-" + data.day)
    }

    function test_space_takes_the_day_as_well() {
        openByKey()

        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Space)

        tryVerify(() => !isOpen())
        compare(iso(page.selectedDate), nextYear + "-05-13")
    }

    function test_escape_closes_and_leaves_the_date() {
        openByKey()

        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Escape)

        tryVerify(() => !isOpen())
        compare(iso(page.selectedDate), nextYear + "-05-12")
    }

    function test_the_field_has_the_keys_again_afterwards_data() {
        return [{ tag: "Escape", key: Qt.Key_Escape }, { tag: "Return", key: Qt.Key_Return }]
    }

    function test_the_field_has_the_keys_again_afterwards(data) {
        openByKey()

        keyClick(data.key)

        tryVerify(() => !isOpen())
        tryVerify(() => field("Date").activeFocus)
    }

    function test_days_that_cannot_be_booked_cannot_be_taken_data() {
        return [{ tag: "past", now: "-05-20T10:00", far: false }, { tag: "after the last year", now: "-01-10T10:00", far: true }]
    }

    function test_days_that_cannot_be_booked_cannot_be_taken(data) {
        const now = new Date(nextYear + data.now)
        page.currentDate = new Date(nextYear + (data.far ? 3 : 0), 0, 1)
        openByKey()
        page.now = now
        const before = iso(page.selectedDate)

        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Return)

        verify(isOpen())
        compare(iso(page.selectedDate), before)
    }

    function test_the_month_buttons_take_the_keys_along() {
        openByKey()

        press(">")
        field("Date")
        keyClick(Qt.Key_Backtab)
        while (framed().length === 0)
            keyClick(Qt.Key_Tab)

        compare(framed(), [nextYear + "-06-12"])
    }

    function test_a_pointer_sees_no_frame_until_a_key_is_pressed() {
        click(field("Date"))
        tryVerify(isOpen)
        compare(framed(), [])

        keyClick(Qt.Key_Right)

        compare(framed(), [nextYear + "-05-13"])
    }

    function test_tab_goes_through_months_days_and_buttons() {
        openByKey()
        const names = []

        for (let i = 0; i < 5; ++i) {
            names.push(root.Window.activeFocusItem.Accessible.name)
            keyClick(Qt.Key_Tab)
        }

        compare(names, ["Date", "Today", "Cancel", "<", ">"])
    }

    function test_what_a_finger_presses_is_forty_high() {
        openByKey()

        compare(allShown(item => isButton(item) && item.height < 40).map(item => item.text), [])
    }
}
