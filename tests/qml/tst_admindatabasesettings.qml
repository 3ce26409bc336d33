// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "AdminDatabaseSettings"

    readonly property var actions: ["Backup Database", "Restore Database", "Move Database"]

    function test_the_page_shows_where_the_database_is() {
        show("admin/settings/AdminDatabaseSettings")

        compare(page.currentDatabasePath, AppService.databasePath())
        verify(shows(AppService.databasePath()))
        verify(shows("Backups are stored in a 'backups' folder next to the database file."))
    }

    function test_a_backup_is_made_at_once() {
        show("admin/settings/AdminDatabaseSettings")

        press("Backup Database")

        verify(shows("Database backup created successfully."))
        compare(page.errorMessage, "")
    }

    function test_a_second_backup_in_one_second_fails_and_clears_the_praise() {
        ignoreWarning(/Backup failed:/)
        show("admin/settings/AdminDatabaseSettings")

        // Two in a row may fall into two seconds; a third cannot then be without a twin.
        for (let i = 0; i < 20 && page.errorMessage === ""; ++i)
            page.backup()

        verify(shows("Failed to create database backup."))
        compare(page.successMessage, "")
    }

    // Of the dialog that the button opens, as a local path.
    function startOfDialog(action: string, name: string): string {
        press(action)
        const dialog = findChild(page, name)
        tryVerify(() => dialog.visible)
        const start = AppService.localPath(dialog.currentFolder)
        dialog.close()
        tryVerify(() => !dialog.visible)
        return start
    }

    function test_the_dialogs_start_beside_the_database() {
        const folder = AppService.databasePath().replace(/[/][^/]*$/, "")
        show("admin/settings/AdminDatabaseSettings")

        compare(startOfDialog("Move Database", "folderDialog"), folder)
        // A backup is named by its second, and the test before may have made one in this.
        const second = new Date().getSeconds()
        tryVerify(() => new Date().getSeconds() !== second)
        verify(DatabaseService.backupDatabase())

        compare(startOfDialog("Restore Database", "fileDialog"), folder + "/backups")
    }

    function test_everything_rests_while_the_database_moves() {
        show("admin/settings/AdminDatabaseSettings")

        page.moveInProgress = true

        for (const action of actions)
            verify(!button(action).enabled, action)
    }

    function test_an_empty_answer_of_a_dialog_ends_the_flow() {
        show("admin/settings/AdminDatabaseSettings")

        page.chooseRestoreFile("")
        page.chooseFolder("")

        verify(!hasButton("Restore"))
        verify(!hasButton("Cancel"))
    }

    function test_the_chosen_file_is_shown_before_it_is_restored() {
        show("admin/settings/AdminDatabaseSettings")

        page.chooseRestoreFile("file:///tmp/a%20%23b/backup.db")

        tryVerify(() => hasButton("Restore"))
        verify(shows("/tmp/a #b/backup.db"))
        verify(shows("Make sure you selected the correct restore file."))
    }

    function test_a_file_that_cannot_be_restored_is_refused() {
        ignoreWarning(/does not exist/)
        show("admin/settings/AdminDatabaseSettings")
        page.chooseRestoreFile("file:///nowhere/backup.db")
        tryVerify(() => hasButton("Restore"))

        press("Restore")

        verify(shows("Failed to restore database."))
    }

    function test_the_new_place_is_shown_before_the_move() {
        show("admin/settings/AdminDatabaseSettings")

        page.chooseFolder("file:///srv/d%C3%A9p%C3%B4t")

        tryVerify(() => hasButton("Cancel"))
        compare(page.destinationPreview, "/srv/dépôt/ZelvanPOS/data/Zelvan.db")
        verify(shows(page.destinationPreview))
        verify(shows("App will restart after moving."))
    }

    function test_a_move_that_fails_says_so_and_does_not_restart() {
        ignoreWarning(/Failed to create destination directory\./)
        show("admin/settings/AdminDatabaseSettings")
        page.chooseFolder("file://" + AppService.databasePath())
        tryVerify(() => hasButton("Cancel"))

        press("Move Database", 1)

        verify(shows("Failed to move database."))
        verify(!page.moveInProgress)
        compare(TestDb.value("SELECT COUNT(*) FROM app_state") > 0, true)
    }

    function test_cancelling_leaves_everything_as_it_was_data() {
        return [{ tag: "restore" }, { tag: "move" }]
    }

    function test_cancelling_leaves_everything_as_it_was(data) {
        show("admin/settings/AdminDatabaseSettings")
        if (data.tag === "restore")
            page.chooseRestoreFile("file:///nowhere/backup.db")
        else
            page.chooseFolder("file:///srv")
        tryVerify(() => hasButton("Cancel"))

        press("Cancel")

        tryVerify(() => !hasButton("Cancel"))
        compare(page.errorMessage + page.successMessage, "")
    }
}
