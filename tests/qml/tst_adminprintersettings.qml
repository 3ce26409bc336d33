// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "AdminPrinterSettings"

    function printers(): var {
        return TestDb.rows("SELECT system_name, role, paper_width, cut_mode FROM printers ORDER BY id")
    }

    function choice(label: string): var {
        return theShown(item => item.indexOfValue !== undefined && item.Accessible.name === label, "a choice " + label)
    }

    function chooseEntry(label: string, index: int) {
        const box = choice(label)
        box.currentIndex = index
        box.activated(index)
    }

    function openNew() {
        TestDb.addPrinter("TM88")
        show("admin/settings/AdminPrinterSettings")
        press("+ Add Printer")
        tryVerify(() => hasButton("Cancel"))
    }

    function savePrinter(name: string, role: string) {
        SettingService.savePrinter({ id: 0, system_name: name, role: role, paper_width: 80, cut_mode: "full" })
    }

    // The first of this document: printers that were added stay for the others.
    function test_a_bare_system_has_no_printer_to_save() {
        show("admin/settings/AdminPrinterSettings")
        press("+ Add Printer")
        verify(shows("No printers found"))

        press("Add Printer")

        verify(shows("No printer selected"))
        compare(printers(), [])
    }

    function test_an_unknown_role_is_a_printer_data() {
        return [
            { tag: "receipt", label: "Receipt Printer" }, { tag: "kitchen", label: "Kitchen Printer" },
            { tag: "both", label: "Receipt + Kitchen Printer" }, { tag: "fax", label: "Printer" }
        ]
    }

    function test_an_unknown_role_is_a_printer(data) {
        savePrinter("TM88", data.tag)

        show("admin/settings/AdminPrinterSettings")

        verify(shows(data.label))
        verify(shows("TM88"))
        verify(row("TM88").visible)
    }

    function test_new_rows_start_narrow_uncut_and_for_receipts() {
        openNew()
        verify(shows("Select a printer"))
        press("TM88")

        press("Add Printer")

        tryVerify(() => !hasButton("Cancel"))
        compare(printers(), [{ system_name: "TM88", role: "receipt", paper_width: 58, cut_mode: "none" }])
        verify(shows("Receipt Printer"))
    }

    function test_the_choices_are_stored() {
        openNew()
        press("TM88")
        compare(choice("Role").model.map(entry => entry.text), ["Receipt", "Kitchen Ticket", "Receipt + Kitchen Ticket"])
        compare(choice("Paper Width").model.map(entry => entry.text), ["58 mm", "80 mm"])
        compare(choice("Cut Mode").model.map(entry => entry.text), ["Full Cut", "Partial Cut", "None"])
        chooseEntry("Role", 2)
        chooseEntry("Paper Width", 1)
        chooseEntry("Cut Mode", 1)

        press("Add Printer")

        compare(printers(), [{ system_name: "TM88", role: "both", paper_width: 80, cut_mode: "partial" }])
    }

    function test_a_test_without_a_printer_fails() {
        ignoreWarning(/Print failed: empty printer name/)
        openNew()

        press("Test Printer")

        verify(shows("Failed"))
        compare(theShown(item => item.text === "Failed", "the status").color, Qt.color("red"))
    }

    function test_a_test_prints_and_stores_nothing() {
        const before = TestDb.printedDocuments()
        openNew()
        press("TM88")

        press("Test Printer")

        verify(shows("Success"))
        compare(theShown(item => item.text === "Success", "the status").color, Qt.color("lightgreen"))
        compare(TestDb.printedDocuments(), before + 1)
        verify(TestDb.lastPrintedDocument().includes("PRINTER TEST"))
        compare(printers(), [])
    }

    function test_a_row_prints_its_test_page() {
        savePrinter("TM88", "kitchen")
        const before = TestDb.printedDocuments()
        show("admin/settings/AdminPrinterSettings")

        press("Test")

        compare(TestDb.printedDocuments(), before + 1)
        verify(TestDb.lastPrintedDocument().includes("TM88"))
    }

    function test_a_row_is_changed() {
        TestDb.addPrinter("TM88")
        savePrinter("TM88", "kitchen")
        show("admin/settings/AdminPrinterSettings")
        press("Edit")
        tryVerify(() => hasButton("Save Changes"))
        compare([choice("Role").currentValue, choice("Paper Width").currentValue, choice("Cut Mode").currentValue], ["kitchen", 80, "full"])
        chooseEntry("Cut Mode", 2)

        press("Save Changes")

        compare(printers(), [{ system_name: "TM88", role: "kitchen", paper_width: 80, cut_mode: "none" }])
    }

    function test_a_printer_that_the_system_lost_keeps_its_name() {
        savePrinter("Gone", "kitchen")
        show("admin/settings/AdminPrinterSettings")
        press("Edit")
        tryVerify(() => hasButton("Save Changes"))
        verify(!allShown(item => item.text === "TM88" && item.checked).length)

        press("Save Changes")

        compare(printers()[0].system_name, "Gone")
    }

    function test_adding_starts_over_after_an_edit() {
        savePrinter("TM88", "kitchen")
        show("admin/settings/AdminPrinterSettings")
        press("Edit")
        tryVerify(() => hasButton("Save Changes"))
        press("Cancel")
        tryVerify(() => !hasButton("Cancel"))

        press("+ Add Printer")

        tryVerify(() => hasButton("Add Printer"))
        compare([choice("Role").currentValue, choice("Paper Width").currentValue, choice("Cut Mode").currentValue], ["receipt", 58, "none"])
    }

    function test_a_second_row_for_one_printer_closes_the_dialog_and_changes_nothing() {
        savePrinter("TM88", "kitchen")
        ignoreWarning(/Failed to insert printer:/)
        openNew()
        press("TM88")

        press("Add Printer")

        tryVerify(() => !hasButton("Cancel"))
        compare(printers(), [{ system_name: "TM88", role: "kitchen", paper_width: 80, cut_mode: "full" }])
    }

    function test_a_row_is_removed_without_a_question() {
        savePrinter("TM88", "kitchen")
        show("admin/settings/AdminPrinterSettings")

        press("Remove")

        compare(printers(), [])
        verify(!shows("TM88"))
        compare(page.errorMessage, "")
    }
}
