// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ScreenTestCase {
    name: "SetupDBCreation"

    function test_a_folder_is_proposed_as_a_local_path() {
        screen("setup/SetupDBCreation")

        verify(/^(\/|[A-Z]:\/)[^/]/.test(page.selectedPath), page.selectedPath)
        verify(page.selectedPath.endsWith("/ZelvanPOS/data"))
        compare(field("Select where the database file will be stored.").text, page.selectedPath)
        verify(field("Select where the database file will be stored.").readOnly)
        verify(button("Done").enabled)
        verify(shows("v0.3.0"))
    }

    function test_without_a_folder_nothing_can_be_set_up() {
        screen("setup/SetupDBCreation")

        page.selectedPath = ""

        verify(!button("Done").enabled)
    }

    function test_the_dialog_starts_in_what_exists_of_the_proposed_folder() {
        screen("setup/SetupDBCreation")
        page.selectedPath = AppService.databasePath().replace(/[/][^/]*$/, "/ZelvanPOS/data")

        press("Browse")

        const dialog = findChild(page, "folderDialog")
        tryVerify(() => dialog.visible)
        compare(AppService.localPath(dialog.currentFolder), AppService.databasePath().replace(/[/][^/]*$/, ""))
        dialog.close()
    }

    function test_back_leaves_the_screen() {
        screen("setup/SetupDBChoice")
        press("Create New Database")
        compare(shownScreen(), "SetupDBCreation")

        press("Back")

        compare(shownScreen(), "SetupDBChoice")
    }

    function test_a_database_that_is_there_already_is_offered() {
        // The database of the tests bears the name that the screen gives to every new one.
        const path = AppService.databasePath()
        screen("setup/SetupDBCreation")
        page.selectedPath = path.slice(0, path.lastIndexOf("/"))

        press("Done")

        compare(shownScreen(), "SetupDBChoice")
        compare(stack.currentItem.mode, "exists")
        compare(stack.currentItem.currentPath, path)
        verify(!page.running)
    }

    function test_while_running_nothing_can_be_pressed() {
        screen("setup/SetupDBCreation")

        page.running = true

        verify(shows("Setting up..."))
        verify(!button("Done").enabled)
        verify(!button("Back").enabled)
    }

    // The last of this program: the failure takes the connection with it.
    function test_z_after_a_failure_the_screen_stays_busy_until_the_program_is_closed() {
        ignoreWarning(/connection 'main_connection' is still in use/)
        TestDb.expectCritical("Cannot open database:")
        TestDb.expectCritical("Database initialization failed\\.")
        screen("setup/SetupDBCreation")
        page.selectedPath = AppService.databasePath()

        press("Done")

        compare(page.errorText, "Setup failed. Please try again.")
        verify(page.running)
        verify(shows("Setting up..."))
        verify(!shows("Setup failed. Please try again."))
        verify(!button("Done").enabled)
        verify(!button("Back").enabled)
    }
}
