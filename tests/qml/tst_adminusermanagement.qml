// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

ScreenTestCase {
    name: "AdminUserManagement"

    function users(): int {
        return TestDb.value("SELECT COUNT(*) FROM users")
    }

    function fillIn(username: string, password: string, confirmation: string) {
        enter("Username", username)
        enter("Password", password)
        enter("Confirm Password", confirmation)
    }

    function choose(label: string, index: int) {
        theShown(item => item.indexOfValue !== undefined && item.Accessible.name === label, "a choice " + label).currentIndex = index
    }

    function test_a_row_tells_the_name_the_stored_role_and_the_state() {
        addUser("boss", "admin")
        UserService.deactivateUser(addUser("gone", "Service Staff"))

        show("admin/management/AdminUserManagement")

        for (const text of ["boss", "admin", "Yes", "gone", "Service Staff", "No"])
            verify(shows(text), text)
        compare(row("boss").height, 44)
        compare(theShown(item => item.text === "Yes", "Yes").color, Theme.green)
        compare(theShown(item => item.text === "No", "No").color, Theme.error())
    }

    function test_only_active_users_have_buttons() {
        UserService.deactivateUser(addUser("gone", "admin"))

        show("admin/management/AdminUserManagement")

        for (const text of ["Edit", "Password", "Deactivate"])
            verify(!hasButton(text), text)
    }

    function test_a_new_user_gets_the_visible_text_as_role_data() {
        return [
            { tag: "Admin", index: 0 }, { tag: "Service Staff", index: 1 }, { tag: "Kitchen Staff", index: 2 }
        ]
    }

    function test_a_new_user_gets_the_visible_text_as_role(data) {
        addUser("boss", "admin")
        show("admin/management/AdminUserManagement")
        press("Create User")
        fillIn("ann", "secret", "secret")
        choose("Role", data.index)

        press("Create")

        tryVerify(() => !hasButton("Create"))
        compare(TestDb.value("SELECT role FROM users WHERE username = 'ann'"), data.tag)
        tryVerify(() => shows("ann"))
    }

    function test_a_refused_user_leaves_the_dialog_empty_and_silent() {
        addUser("boss", "admin")
        finishedSpy.clear()
        show("admin/management/AdminUserManagement")
        press("Create User")
        fillIn("ann", "secret", "other")

        press("Create")
        finishedSpy.wait()

        verify(hasButton("Create"))
        for (const label of ["Username", "Password", "Confirm Password"])
            compare(field(label).text, "", label)
        compare(users(), 1)
    }

    function test_the_role_is_not_reset_after_a_creation() {
        addUser("boss", "admin")
        show("admin/management/AdminUserManagement")
        press("Create User")
        fillIn("ann", "secret", "secret")
        choose("Role", 2)
        press("Create")
        tryVerify(() => !hasButton("Create"))

        press("Create User")

        verify(shows("Kitchen Staff"))
    }

    function test_cancelling_a_creation_clears_the_fields() {
        show("admin/management/AdminUserManagement")
        press("Create User")
        fillIn("ann", "secret", "secret")

        press("Cancel")
        tryVerify(() => !hasButton("Cancel"))
        press("Create User")

        compare(field("Username").text, "")
        compare(users(), 0)
    }

    function test_an_untouched_role_makes_the_edited_user_an_admin() {
        addUser("boss", "admin")
        addUser("ann", "kitchen_staff")
        show("admin/management/AdminUserManagement")

        press("Edit", 1)
        compare(field("Username").text, "ann")
        enter("Username", "anna")
        press("Save")

        tryVerify(() => !hasButton("Save"))
        compare(TestDb.rows("SELECT username, role FROM users WHERE id = 2"), [{ username: "anna", role: "admin" }])
    }

    function test_a_refused_edit_leaves_the_dialog() {
        addUser("boss", "admin")
        show("admin/management/AdminUserManagement")
        press("Edit")

        enter("Username", "  ")
        press("Save")

        verify(hasButton("Save"))
        compare(TestDb.value("SELECT username FROM users"), "boss")
    }

    function test_a_taken_name_closes_the_dialog_and_changes_nothing() {
        addUser("boss", "admin")
        addUser("ann", "kitchen_staff")
        ignoreWarning(/update failed:/)
        show("admin/management/AdminUserManagement")
        press("Edit", 1)

        enter("Username", "boss")
        press("Save")

        tryVerify(() => !hasButton("Save"))
        compare(TestDb.value("SELECT username FROM users WHERE id = 2"), "ann")
    }

    function test_a_password_changes_only_for_who_knows_the_old_one_data() {
        return [
            { tag: "right", old: "secret", fresh: "new", again: "new", changed: true },
            { tag: "wrong old", old: "guess", fresh: "new", again: "new", changed: false },
            { tag: "differ", old: "secret", fresh: "new", again: "other", changed: false },
            { tag: "empty", old: "secret", fresh: "", again: "", changed: false }
        ]
    }

    function test_a_password_changes_only_for_who_knows_the_old_one(data) {
        addUser("boss", "admin")
        const before = TestDb.value("SELECT password FROM users")
        show("admin/management/AdminUserManagement")
        press("Password")
        enter("Old Password", data.old)
        enter("New Password", data.fresh)
        enter("Confirm New Password", data.again)

        press("Change Password")

        compare(TestDb.value("SELECT password FROM users") !== before, data.changed)
        tryVerify(() => hasButton("Change Password") !== data.changed)
        if (!data.changed)
            compare(field("Old Password").text, data.old)
    }

    function test_cancelling_a_password_keeps_the_fields() {
        addUser("boss", "admin")
        show("admin/management/AdminUserManagement")
        press("Password")
        enter("Old Password", "half")

        press("Cancel")
        tryVerify(() => !hasButton("Cancel"))
        press("Password")

        compare(field("Old Password").text, "half")
    }

    function test_a_user_is_deactivated_only_after_a_yes_data() {
        return [{ tag: "Cancel", active: true }, { tag: "Delete", active: false }]
    }

    function test_a_user_is_deactivated_only_after_a_yes(data) {
        addUser("boss", "admin")
        show("admin/management/AdminUserManagement")

        press("Deactivate")
        verify(shows("Deactivate User"))
        verify(shows("Deactivate \"boss\"?"))
        press(data.tag)

        compare(TestDb.value("SELECT deactivated_at IS NULL FROM users") === 1, data.active)
        compare(hasButton("Deactivate"), data.active)
        verify(shows("boss"))
    }

    function test_typing_begins_in_the_first_field_of_a_dialog_data() {
        return [
            { tag: "Create User", fields: ["Username", "Password", "Confirm Password"] },
            { tag: "Edit", fields: ["Username"] },
            { tag: "Password", fields: ["Old Password", "New Password", "Confirm New Password"] }
        ]
    }

    function test_typing_begins_in_the_first_field_of_a_dialog(data) {
        addUser("boss", "admin")
        show("admin/management/AdminUserManagement")
        press(data.tag)

        for (const label of data.fields) {
            tryVerify(() => field(label).activeFocus, 1000, label)
            keyClick(Qt.Key_Tab)
        }
    }

    function test_users_created_elsewhere_appear_while_the_list_is_shown() {
        addUser("boss", "admin")
        show("admin/management/AdminUserManagement")

        for (let i = 0; i < 5; ++i)
            addUser("user" + i, "kitchen_staff")

        tryVerify(() => shows("user4"))
        compare(users(), 6)
    }

    SignalSpy {
        id: finishedSpy

        signalName: "createUserFinished"
        target: UserService
    }
}
