// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ScreenTestCase {
    id: root

    name: "Login"

    function arrange() {
        AuthService.logout()
    }

    function logIn(username: string, password: string) {
        screen("auth/Login")
        enter("Username", username)
        enter("Password", password)
        press("Login")
    }

    function test_the_form_shows_the_version_and_its_placeholders() {
        screen("auth/Login")

        verify(shows("Zelvan"))
        verify(shows("v0.3.0"))
        compare(field("Username").placeholderText, "Enter username")
        compare(field("Password").placeholderText, "Enter password")
        compare(field("Password").echoMode, TextInput.Password)
    }

    function test_each_role_reaches_its_home_data() {
        return [
            { tag: "admin", home: "AdminHome" },
            { tag: "service_staff", home: "ServiceStaffHome" },
            { tag: "kitchen_staff", home: "KitchenStaffHome" }
        ]
    }

    function test_each_role_reaches_its_home(data) {
        addUser("first", "admin")
        const id = addUser("ann", data.tag)
        TestDb.run("UPDATE users SET role = '" + data.tag + "' WHERE id = " + id)

        logIn("ann", "secret")

        compare(shownScreen(), data.home)
        compare(AuthService.currentUsername, "ann")
        compare(stack.depth, 2)
    }

    function test_a_role_without_a_home_stays_on_the_form_without_a_message() {
        addUser("first", "admin")
        addUser("ann", "Service Staff")
        Window.window.showNormal()

        logIn("ann", "secret")

        compare(shownScreen(), "Login")
        compare(AuthService.currentUserRole, "Service Staff")
        compare(Window.window.visibility, Window.Maximized)
        verify(!shows("Invalid username or password."))
    }

    function test_a_refusal_goes_with_the_log_in_that_follows() {
        addUser("first", "admin")
        addUser("ann", "Service Staff")
        logIn("ann", "guess")
        verify(shows("Invalid username or password."))

        enter("Password", "secret")
        press("Login")

        compare(AuthService.currentUsername, "ann")
        compare(shownScreen(), "Login")
        verify(!shows("Invalid username or password."))
    }

    function test_a_role_of_any_text_without_a_home_stays_on_the_form_data() {
        return [
            { tag: "toString" },
            { tag: "constructor" },
            { tag: "__proto__" },
            { tag: "hasOwnProperty" },
            { tag: "" }
        ]
    }

    function test_a_role_of_any_text_without_a_home_stays_on_the_form(data) {
        addUser("first", "admin")
        addUser("ann", data.tag)

        logIn("ann", "secret")

        compare(AuthService.currentUserRole, data.tag)
        compare(shownScreen(), "Login")
        compare(stack.depth, 1)
    }

    function test_a_wrong_entry_is_refused_and_keeps_the_fields_data() {
        return [
            { tag: "wrong password", username: "ann", password: "guess" },
            { tag: "other letter case", username: "Ann", password: "secret" },
            { tag: "empty", username: "", password: "" },
            { tag: "deactivated", username: "gone", password: "secret" }
        ]
    }

    function test_a_wrong_entry_is_refused_and_keeps_the_fields(data) {
        addUser("ann", "admin")
        UserService.deactivateUser(addUser("gone", "admin"))

        logIn(data.username, data.password)

        verify(shows("Invalid username or password."))
        compare(field("Username").text, data.username)
        compare(field("Password").text, data.password)
        compare(shownScreen(), "Login")
        compare(AuthService.currentUsername, "")
    }

    function test_typing_begins_with_the_name() {
        screen("auth/Login")

        tryVerify(() => field("Username").activeFocus)
        keyClick(Qt.Key_Tab)

        verify(field("Password").activeFocus)
    }

    function test_whoever_sees_the_program_start_can_type_at_once() {
        addUser("boss", "admin")
        const component = Qt.createComponent("qrc:/qt/qml/zelvan/qml/Main.qml")

        const program = createTemporaryObject(component, root)

        tryVerify(() => program.activeFocusItem?.Accessible.name === "Username")
    }

    function test_enter_in_a_field_does_nothing() {
        addUser("ann", "admin")
        screen("auth/Login")
        enter("Username", "ann")
        enter("Password", "secret")

        keyClick(Qt.Key_Return)

        compare(shownScreen(), "Login")
        compare(AuthService.currentUsername, "")
    }
}
