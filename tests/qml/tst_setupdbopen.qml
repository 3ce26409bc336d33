// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ScreenTestCase {
    name: "SetupDBOpen"

    function test_nothing_can_be_opened_before_a_file_is_chosen() {
        screen("setup/SetupDBOpen")

        compare(field("Select an existing Zelvan database to use.").placeholderText, "No database selected")
        verify(!button("Open Database").enabled)
    }

    function test_a_chosen_file_is_shown_before_it_is_opened() {
        screen("setup/SetupDBOpen")

        page.selectedPath = "/data/Zelvan.db"

        compare(field("Select an existing Zelvan database to use.").text, "/data/Zelvan.db")
        verify(button("Open Database").enabled)
    }

    function test_the_dialog_starts_where_the_store_is_or_was() {
        screen("setup/SetupDBOpen")

        press("Browse")

        const dialog = findChild(page, "fileDialog")
        tryVerify(() => dialog.visible)
        compare(AppService.localPath(dialog.currentFolder), AppService.databasePath().replace(/[/][^/]*$/, ""))
        dialog.close()
    }

    function test_a_file_that_is_no_database_of_ours_is_refused() {
        const before = AppService.databasePath()
        ignoreWarning(/Database file does not exist\./)
        screen("setup/SetupDBOpen")
        page.selectedPath = "/nowhere/Zelvan.db"

        press("Open Database")

        verify(shows("The selected file could not be opened as a Zelvan database."))
        verify(!page.running)
        verify(button("Open Database").enabled)
        compare(AppService.databasePath(), before)
    }

    function test_while_running_nothing_can_be_pressed() {
        screen("setup/SetupDBOpen")
        page.selectedPath = "/data/Zelvan.db"

        page.running = true

        verify(shows("Opening database..."))
        verify(!button("Open Database").enabled)
        verify(!button("Back").enabled)
    }

    function test_back_leaves_the_screen() {
        screen("setup/SetupDBChoice")
        press("Open Existing Database")
        compare(shownScreen(), "SetupDBOpen")

        press("Back")

        compare(shownScreen(), "SetupDBChoice")
    }
}
