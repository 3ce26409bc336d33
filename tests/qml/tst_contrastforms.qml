// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan.System 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

// What forms and their parts look like.
ContrastTestCase {
    id: root

    name: "ContrastForms"

    function named(label: string, property: string): var {
        return find(item => item.Accessible.name === label && item[property] !== undefined, label)
    }

    function openBooking() {
        open("common/OrderTakingFloorPlan")
        page.selectedTableId = 1
        pressOn("Create Reservation")
        const dialog = surfaceUnder(find(item => item.text === "Customer Name" && item.contentWidth !== undefined, "the dialog"))
        tryCompare(dialog, "opacity", 1)
        tryCompare(dialog, "scale", 1)
        return dialog
    }

    function arrange() {
        setKitchenMode("none")
        FloorPlanService.loadCanvas(FloorPlanService.createFloor("Hall"))
        FloorPlanService.createTableItem({ type: "table", x: 100, y: 100, width: 80, height: 80, label: "T1", floor_id: 1, capacity: 4, metadata: "{}" })
        FloorPlanService.saveCanvas(1)
    }

    function presser(text: string): var {
        return find(item => isButton(item) && item.text === text, text)
    }

    function verifyTextOf(item, what: string) {
        tryVerify(() => textContrastOf(item) >= textContrast, 2000, what + ": " + textContrastOf(item))
    }

    function test_a_booking() {
        const dialog = openBooking()

        verifyEdge(dialog, "the dialog")
        verifyTexts(["Customer Name", "Customer Phone", "Number Of Guests", "Reservation Date", "Cancel"])
        verifyEdge(named("Customer Phone", "cursorPosition"), "a field")
        const box = named("Number Of Guests", "stepSize")
        verifyEdge(box, "a box")
        verifyTextOf(box.contentItem, "its number")
        verifyEdge(named("Reservation Date", "cursorPosition"), "the date")
        verifyTextOf(named("Reservation Date", "cursorPosition"), "the date")
        verifyEdge(presser("📅"), "the button of the calendar")
    }

    function test_the_time_and_the_notes_of_a_booking() {
        openBooking()
        let view = named("Customer Phone", "cursorPosition")
        while (view.flickableDirection === undefined)
            view = view.parent
        const notes = find(item => item.placeholderText === "Enter notes" && item.label !== undefined, "the notes")
        view.contentY = view.contentHeight - view.height

        verifyTextOf(find(item => item.Accessible.name === "Hour", "the hours"), "the hours")
        verifyEdge(notes, "the notes")
        verifyTextOf(notes, "what stands in them")
    }

    function test_what_is_selected_to_be_typed_over_data() {
        return [{ tag: "Customer Phone" }, { tag: "Reservation Date" }, { tag: "Notes" }]
    }

    function test_what_is_selected_to_be_typed_over(data) {
        openBooking()

        const input = named(data.tag, "selectedTextColor")

        verify(contrast(input.selectedTextColor, input.selectionColor) >= textContrast)
    }

    function test_a_calendar() {
        openBooking()
        presser("📅").clicked()
        const calendar = surfaceUnder(find(item => item.text === "Sun", "the calendar"))
        tryCompare(calendar, "opacity", 1)

        verifyEdge(calendar, "the calendar")
        verifyTexts(["Sun", "Today"])
        for (const text of ["<", "Today"])
            verifyEdge(presser(text), text)
        presser(">").clicked()
        const cells = within(item => item.inMonth !== undefined)
        verifyTextOf(cells.find(cell => cell.pickable && !cell.selected), "a day")
        verifyTextOf(cells.find(cell => !cell.pickable), "a day of another month")
    }

    function test_one_of_several() {
        TestDb.addPrinter("Kitchen")
        open("admin/settings/AdminPrinterSettings")
        pressOn("+ Add Printer")

        const choice = find(item => item.autoExclusive === true && item.text === "Kitchen" && item.indicator, "a printer")

        verifyEdge(choice.indicator, "its ring")
        verifyTextOf(choice.contentItem, "its name")
        choice.clicked()
        verifyEdge(choice.indicator, "its ring when it is chosen")
    }

    function test_a_switch() {
        open("admin/settings/AdminTaxSettings")
        const toggle = find(item => item.visualPosition !== undefined && item.checkable === true, "a switch")

        for (const checked of [true, false]) {
            toggle.checked = checked
            tryCompare(toggle, "visualPosition", checked ? 1 : 0)
            verifyEdge(toggle.indicator, checked ? "on" : "off")
        }
    }
}
