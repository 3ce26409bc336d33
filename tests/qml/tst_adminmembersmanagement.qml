// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    id: root

    name: "AdminMembersManagement"

    function arrange() {
        TestDb.run("INSERT INTO memberships (id, phone_number, total_points, status) VALUES (1, '0123456', 120, 'active'), (2, '9912377', 5, 'revoked'), (3, '5550000', 0, 'active')")
    }

    function phones(): var {
        return allShown(item => item.phoneNumber !== undefined).map(item => item.phoneNumber)
    }

    function test_all_members_are_listed() {
        show("admin/management/AdminMembersManagement")

        compare(phones(), ["0123456", "9912377", "5550000"])
        for (const text of ["Member Management", "Phone Number", "Points", "Status", "120", "revoked"])
            verify(shows(text), text)
    }

    function test_a_revoked_member_shows_in_the_error_colour() {
        show("admin/management/AdminMembersManagement")

        compare(theShown(item => item.text === "revoked", "revoked").color, "#ff0000")
        compare(allShown(item => item.text === "active")[0].color, "#2e7d32")
    }

    function test_a_search_matches_anywhere_newest_first_and_an_empty_one_restores() {
        show("admin/management/AdminMembersManagement")

        enter("Search phone number", "123")
        compare(phones(), ["9912377", "0123456"])
        field("Search phone number").text = ""

        compare(phones(), ["0123456", "9912377", "5550000"])
    }

    function test_a_member_shows_the_history() {
        TestDb.run("INSERT INTO order_sessions (id, display_number, order_type, status) VALUES (9, 41, 'takeaway', 'paid')")
        // The session of the second one is gone.
        TestDb.run("PRAGMA foreign_keys = OFF")
        TestDb.run("INSERT INTO membership_transactions (membership_id, order_session_id, type, points, created_at) VALUES (1, 9, 'earn', 12, '2026-01-02 12:00:00'), (1, 10, 'redeem', 5, '2026-01-03 12:00:00')")
        TestDb.run("PRAGMA foreign_keys = ON")
        show("admin/management/AdminMembersManagement")

        click(row("0123456"))
        tryVerify(() => shows("Member Phone: 0123456"))

        const local = new Date(Date.UTC(2026, 0, 2, 12, 0, 0))
        for (const text of ["Points: 120", "Status: active", "Transactions", "Earn", "+12", "#41", "Redeem", "-5", "Manual", Qt.formatDateTime(local, "dd/MM/yyyy hh:mm")])
            verify(shows(text), text)
    }

    function test_the_dialog_closes_with_escape_and_opens_for_another_member() {
        show("admin/management/AdminMembersManagement")
        click(row("0123456"))
        tryVerify(() => shows("Member Phone: 0123456"))

        keyClick(Qt.Key_Escape)
        tryVerify(() => !shows("Member Phone: 0123456"))
        click(row("5550000"))

        tryVerify(() => shows("Member Phone: 5550000"))
        compare(MemberService.transactionModel.rowCount(), 0)
    }
}
