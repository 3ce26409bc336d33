// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

ScreenTestCase {
    name: "SetupBetaWelcome"

    function test_skipping_opens_the_program_and_sends_nothing() {
        screen("setup/SetupBetaWelcome")

        press("Skip for now")

        compare(shownScreen(), "AdminHome")
        compare(maximizedTimes, 1)
        compare(finishedSpy.count, 0)
    }

    function test_an_address_of_blanks_opens_the_program_and_sends_nothing() {
        screen("setup/SetupBetaWelcome")
        enter("Email (optional)", "   ")

        press("Continue")

        compare(shownScreen(), "AdminHome")
        compare(maximizedTimes, 1)
        verify(!page.submitting)
        compare(finishedSpy.count, 0)
    }

    function test_both_buttons_rest_while_the_form_is_on_its_way() {
        screen("setup/SetupBetaWelcome")

        page.submitting = true

        verify(!button("Sending...").enabled)
        verify(!button("Skip for now").enabled)
        verify(!hasButton("Continue"))
    }

    function test_the_program_opens_whatever_became_of_the_form_data() {
        return [{ tag: "sent", success: true }, { tag: "failed", success: false }]
    }

    function test_the_program_opens_whatever_became_of_the_form(data) {
        screen("setup/SetupBetaWelcome")
        page.submitting = true

        BetaService.submitFinished(data.success)

        verify(!page.submitting)
        compare(shownScreen(), "AdminHome")
    }

    function init() {
        failOnWarning(/.*/)
        TestDb.reset()
        finishedSpy.clear()
    }

    SignalSpy {
        id: finishedSpy

        signalName: "submitFinished"
        target: BetaService
    }
}
