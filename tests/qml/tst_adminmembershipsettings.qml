// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "AdminMembershipSettings"

    function stored(): var {
        return TestDb.rows("SELECT enabled, earn_points, earn_spend, redeem_points, redeem_value, earn_on FROM membership_settings")[0]
    }

    function toggle() {
        return theShown(item => isButton(item) && item.Accessible.name === "Enable Points Loyalty", "the switch")
    }

    function open() {
        SettingService.saveMembershipSettings(Object.assign(SettingService.getMembershipSettings(), { enabled: true }))
        show("admin/settings/AdminMembershipSettings")
    }

    function test_the_rules_show_only_while_the_points_are_on() {
        show("admin/settings/AdminMembershipSettings")
        verify(!shows("Earning Rules"))
        verify(!shows("Redemption Rules"))

        mouseClick(toggle())

        for (const text of ["Earning Rules", "Redemption Rules", "Earn", "point(s) for every $", "spent", "Earn Based On", "Redemption", "points = $"])
            verify(shows(text), text)
    }

    function test_stored_rules_are_shown_in_currency_units() {
        open()

        compare(field("Earn").text, "1")
        compare(field("point(s) for every $").text, "10.00")
        compare(field("Redemption").text, "100")
        compare(field("points = $").text, "1.00")
    }

    function test_rules_are_stored_in_cents_cut_toward_zero() {
        open()
        enter("Earn", "2")
        enter("point(s) for every $", "19.99")
        enter("Redemption", "50")
        enter("points = $", "0.29")

        press("Save")

        compare(stored(), { enabled: 1, earn_points: 2, earn_spend: 1998, redeem_points: 50, redeem_value: 28, earn_on: "total" })
        verify(SettingService.membershipEnabled)
    }

    function test_an_amount_that_is_not_touched_stays_as_it_is_data() {
        return [
            { tag: "0.29", cents: 29 }, { tag: "19.99", cents: 1999 }, { tag: "10.00", cents: 1000 },
            { tag: "0.00", cents: 0 }, { tag: "1.15", cents: 115 }, { tag: "-0.29", cents: -29 },
            { tag: "21474836.47", cents: 2147483647 }
        ]
    }

    function test_an_amount_that_is_not_touched_stays_as_it_is(data) {
        TestDb.run("UPDATE membership_settings SET enabled = 1, earn_spend = " + data.cents + ", redeem_value = " + data.cents)
        show("admin/settings/AdminMembershipSettings")
        compare(field("points = $").text, data.tag)
        enter("Earn", "3")

        press("Save")
        press("Save")

        compare(stored(), { enabled: 1, earn_points: 3, earn_spend: data.cents, redeem_points: 100, redeem_value: data.cents, earn_on: "total" })
    }

    function test_an_amount_typed_anew_is_cut_whatever_stood_there() {
        TestDb.run("UPDATE membership_settings SET enabled = 1, earn_spend = 1999, redeem_value = 29")
        show("admin/settings/AdminMembershipSettings")
        enter("point(s) for every $", "19.99")

        press("Save")

        compare([stored().earn_spend, stored().redeem_value], [1998, 29])
    }

    function test_a_typed_comma_becomes_a_point_where_the_store_writes_one() {
        SettingService.saveRegionalSettings({ locale: "de_DE", currency_code: "EUR" })
        open()

        enter("points = €", "1,5,7")

        compare(field("points = €").text, "1.57")
        press("Save")
        compare(stored().redeem_value, 157)
    }

    function test_a_comma_does_not_enter_where_the_store_writes_a_point() {
        open()

        enter("points = $", "1,5")

        compare(field("points = $").text, "15")
    }

    function test_empty_fields_are_stored_as_zero() {
        open()
        for (const label of ["Earn", "point(s) for every $", "Redemption", "points = $"])
            field(label).text = ""

        press("Save")

        compare(stored(), { enabled: 1, earn_points: 0, earn_spend: 0, redeem_points: 0, redeem_value: 0, earn_on: "total" })
    }

    function test_numbers_out_of_range_end_at_the_highest() {
        open()
        for (const label of ["Earn", "point(s) for every $", "Redemption", "points = $"])
            enter(label, "99999999999")

        press("Save")

        compare(stored(), { enabled: 1, earn_points: 2147483647, earn_spend: 2147483647, redeem_points: 2147483647, redeem_value: 2147483647, earn_on: "total" })
    }

    function test_letters_do_not_enter_the_numbers() {
        open()

        enter("Earn", "1a.5")
        enter("points = $", "1x.5")

        compare(field("Earn").text, "15")
        compare(field("points = $").text, "1.5")
    }

    function test_the_base_of_the_earning_is_stored() {
        open()
        const base = theShown(item => item.indexOfValue !== undefined && item.Accessible.name === "Earn Based On", "the base")
        compare(base.model.map(entry => entry.text), ["Total", "Subtotal"])
        base.currentIndex = 1

        press("Save")

        compare(stored().earn_on, "subtotal")
    }

    function test_without_a_row_the_fields_stay_blank() {
        TestDb.run("DELETE FROM membership_settings")
        show("admin/settings/AdminMembershipSettings")

        mouseClick(toggle())

        compare(field("Earn").text, "")
        compare(field("Earn").placeholderText, "1")
        compare(field("points = $").placeholderText, "1.00")
    }

    function test_a_failed_save_shows_beside_the_button() {
        show("admin/settings/AdminMembershipSettings")

        page.errorMessage = "Failed to save membership settings."

        verify(shows("Failed to save membership settings."))
    }
}
