// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ScreenTestCase {
    name: "SetupAdmin"

    function arrange() {
        AuthService.logout()
    }

    function register(username: string, password: string, confirmation: string) {
        screen("setup/SetupAdmin")
        enter("Username", username)
        enter("Password", password)
        enter("Confirm password", confirmation)
        press("Register")
    }

    function test_the_first_admin_is_stored_and_logged_in_without_a_restart() {
        register("boss", "secret", "secret")

        tryVerify(() => shownScreen() === "SetupBetaWelcome")
        compare(TestDb.value("SELECT role FROM users WHERE username = 'boss'"), "admin")
        compare(AuthService.currentUsername, "boss")
    }

    function test_a_form_that_cannot_be_sent_says_why_data() {
        return [
            { tag: "no name", username: "", password: "a", confirmation: "a", message: "Please fill in all fields" },
            { tag: "blank name", username: "  ", password: "a", confirmation: "a", message: "Please fill in all fields" },
            { tag: "no password", username: "boss", password: "", confirmation: "", message: "Please fill in all fields" },
            { tag: "differ", username: "boss", password: "a", confirmation: "b", message: "Passwords do not match" }
        ]
    }

    function test_a_form_that_cannot_be_sent_says_why(data) {
        register(data.username, data.password, data.confirmation)

        verify(shows(data.message))
        compare(TestDb.value("SELECT COUNT(*) FROM users"), 0)
    }

    function test_a_name_of_an_active_user_is_refused() {
        addUser("boss", "admin")

        register("boss", "other", "other")

        tryVerify(() => shows("Could not create account"))
    }

    function test_blanks_around_the_name_are_stored_without_and_fail_the_login() {
        register(" boss ", "secret", "secret")

        tryVerify(() => shows("Login failed after registration"))
        compare(TestDb.value("SELECT username FROM users"), "boss")
    }

    function test_a_deactivated_name_ends_in_a_failed_login() {
        UserService.deactivateUser(addUser("boss", "admin"))
        ignoreWarning(/createUser failed:/)

        register("boss", "other", "other")

        tryVerify(() => shows("Login failed after registration"))
        compare(TestDb.value("SELECT COUNT(*) FROM users"), 1)
    }

    function test_whatever_made_the_user_fail_is_told_on_the_form_on_show() {
        screen("setup/SetupAdmin")

        UserService.createUserFinished(false)

        verify(shows("Could not create account"))
        verify(!page.running)
    }

    function test_the_form_below_leaves_users_made_later_alone() {
        register("boss", "secret", "secret")
        tryVerify(() => shownScreen() === "SetupBetaWelcome")

        addUser("ann", "service_staff")

        compare(shownScreen(), "SetupBetaWelcome")
        compare(stack.depth, 2)
    }
}
