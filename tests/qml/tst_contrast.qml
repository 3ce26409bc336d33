// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan.System 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

// What menus, lists of choices and dialogs look like.
ContrastTestCase {
    id: root

    name: "Contrast"

    function test_the_mode_is_the_one_of_this_run() {
        open("admin/management/AdminMenuManagement")

        compare(String(Theme.background), SystemTheme.darkMode ? "#121212" : "#ffffff")
        compare(String(picture().pixel(5, 760)), String(Theme.background))
    }

    function test_a_menu() {
        open("admin/management/AdminMenuManagement")
        const category = find(item => item.Accessible.role === Accessible.ListItem && item.Accessible.name === "Drinks", "Drinks")

        mouseClick(category, 60, 20, Qt.RightButton)
        const entry = find(item => isButton(item) && item.text === "Rename", "the menu")
        verifyTexts(["Rename"])
        verifyEdge(surfaceUnder(entry), "the menu")
        entry.menu.currentIndex = 0
        verify(entry.highlighted)

        verifyTexts(["Rename"])
        verify(entry.height >= 40)
    }

    function test_a_list_of_choices() {
        open("admin/settings/AdminTableSettings")
        const box = combo("Layout Mode")
        verifyEdge(box, "the box")
        verifyTexts([box.displayText])

        mouseClick(box)
        const entry = find(item => isButton(item) && item.text === "Visual Floor Plan", "the list")

        verifyTexts(["Visual Floor Plan"])
        verifyEdge(surfaceUnder(entry), "the list")
        verify(entry.height >= 40)
        const chosen = find(item => isButton(item) && item.text === "Simple Layout", "the chosen one")
        verify(chosen.highlighted)
        verify(textContrastOf(chosen.contentItem) >= textContrast)
    }

    function test_dialogs_data() {
        return [
            { tag: "floor", page: "admin/management/AdminFloorPlanManagement", button: "+ New Floor", texts: ["Floor Name"] },
            { tag: "table", page: "admin/management/AdminFloorPlanManagement", button: "Add Table", texts: ["Table Label", "Number Of Seats", "Type Of Table"] },
            { tag: "deletion", page: "admin/management/AdminTableManagement", button: "Delete", texts: ["Delete Table"] },
            { tag: "user", page: "admin/management/AdminUserManagement", button: "Create User", texts: ["Confirm Password"] },
            { tag: "printer", page: "admin/settings/AdminPrinterSettings", button: "+ Add Printer", texts: ["Paper Width", "Cut Mode"] }
        ]
    }

    function test_dialogs(data) {
        open(data.page)

        pressOn(data.button)
        const label = find(item => item.text === data.texts[0] && item.contentWidth !== undefined, data.texts[0])
        const dialog = surfaceUnder(label)
        tryCompare(dialog, "opacity", 1)
        tryCompare(dialog, "scale", 1)

        verifyTexts(data.texts)
        verifyEdge(dialog, data.tag)
    }

    function test_a_box_to_step_through() {
        open("admin/management/AdminFloorPlanManagement")
        pressOn("Add Table")
        const box = find(item => item.Accessible.name === "Number Of Seats" && item.stepSize !== undefined, "seats")

        verifyEdge(box, "the box")

        verify(textContrastOf(box.contentItem) >= textContrast)
        verifyTexts(["+", "-"])
        verify(box.height >= 34)
    }

    function test_boxes_to_check() {
        open("admin/management/AdminMenuManagement")
        MenuService.currentCategoryId = food

        const box = find(item => item.checkState !== undefined && item.text === "Available", "Available")

        verifyEdge(box.indicator, "the box")
        verify(textContrastOf(box.contentItem) >= textContrast)
    }
}
