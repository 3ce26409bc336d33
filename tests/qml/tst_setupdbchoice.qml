// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

ScreenTestCase {
    name: "SetupDBChoice"

    readonly property var allChoices: [
        "Create New Database", "Open Existing Database", "Create New Database Here", "Choose Another Database",
        "Use Existing Database", "Choose Another Location", "Replace Existing Database"
    ]

    function test_each_mode_says_what_is_there_and_what_can_be_done_data() {
        return [
            {
                tag: "none", title: "Set up Zelvan", description: "Choose how you would like to set up your database.",
                choices: ["Create New Database", "Open Existing Database"]
            }, {
                tag: "exists", title: "Database Already Exists",
                description: "A Zelvan database already exists at this location.",
                choices: ["Use Existing Database", "Choose Another Location", "Replace Existing Database"]
            }, {
                tag: "missing", title: "Database Not Found",
                description: "Zelvan couldn't find the database at the location saved on this computer.",
                choices: ["Open Existing Database", "Create New Database Here"]
            }, {
                tag: "unusable", title: "Database Cannot Be Opened or Is Not a Valid Zelvan Database",
                description: "A database was found at the location saved on this computer, but Zelvan could not use it.",
                choices: ["Create New Database", "Choose Another Database", "Replace Existing Database"]
            }
        ]
    }

    function test_each_mode_says_what_is_there_and_what_can_be_done(data) {
        screen("setup/SetupDBChoice", { mode: data.tag })

        verify(shows(data.title))
        verify(shows(data.description))
        compare(allChoices.filter(choice => hasButton(choice)), data.choices)
    }

    function test_only_a_broken_start_fills_in_the_saved_path_data() {
        return [
            { tag: "none", path: "" }, { tag: "exists", path: "/given" },
            { tag: "missing", path: AppService.databasePath() }, { tag: "unusable", path: AppService.databasePath() }
        ]
    }

    function test_only_a_broken_start_fills_in_the_saved_path(data) {
        screen("setup/SetupDBChoice", { mode: data.tag, currentPath: data.tag === "exists" ? "/given" : "" })

        compare(page.currentPath, data.path)
        compare(shows(data.path), data.tag !== "none")
    }

    function test_a_choice_leads_to_its_screen_data() {
        return [
            { tag: "none", choice: "Create New Database", to: "SetupDBCreation" },
            { tag: "none, open", mode: "none", choice: "Open Existing Database", to: "SetupDBOpen" },
            { tag: "missing", choice: "Open Existing Database", to: "SetupDBOpen" },
            { tag: "unusable", choice: "Choose Another Database", to: "SetupDBOpen" },
            { tag: "unusable, new", mode: "unusable", choice: "Create New Database", to: "SetupDBCreation" }
        ]
    }

    function test_a_choice_leads_to_its_screen(data) {
        screen("setup/SetupDBChoice", { mode: data.mode || data.tag })

        press(data.choice)

        compare(shownScreen(), data.to)
    }

    function test_creating_here_turns_to_what_has_appeared_there_meanwhile() {
        screen("setup/SetupDBChoice", { mode: "missing" })

        press("Create New Database Here")

        compare(shownScreen(), "SetupDBChoice")
        compare(stack.currentItem.mode, "exists")
        compare(stack.currentItem.currentPath, AppService.databasePath())
    }

    function test_choosing_another_location_goes_back_to_the_screen_before() {
        screen("setup/SetupDBCreation")
        stack.push("qrc:/qt/qml/zelvan/qml/setup/SetupDBChoice.qml", { mode: "exists", currentPath: "/x" })
        compare(shownScreen(), "SetupDBChoice")

        press("Choose Another Location")

        compare(shownScreen(), "SetupDBCreation")
    }

    function test_the_way_to_the_replacement_turns_red_under_the_finger() {
        screen("setup/SetupDBChoice", { mode: "exists", currentPath: "/x" })
        const way = button("Replace Existing Database")
        compare(way.height, 70)
        compare(way.background.color, Qt.color("transparent"))
        compare(way.background.border.color, Theme.error())
        compare(way.contentItem.color, Theme.error())

        mousePress(way)

        compare(way.background.color, Qt.color("red"))
        compare(way.contentItem.color, Qt.color("white"))
        mouseRelease(way, -1, -1)
    }

    function test_only_the_exact_word_unlocks_the_replacement_data() {
        return [
            { tag: "replace", unlocked: false }, { tag: "REPLACE ", unlocked: false }, { tag: "REPLAC", unlocked: false },
            { tag: "REPLACE", unlocked: true }
        ]
    }

    function test_only_the_exact_word_unlocks_the_replacement(data) {
        screen("setup/SetupDBChoice", { mode: "exists", currentPath: "/x/Zelvan.db" })
        press("Replace Existing Database")

        enter("To continue, type \"REPLACE\" below.", data.tag)

        compare(button("Replace Database").enabled, data.unlocked)
    }

    function test_a_replacement_that_fails_leaves_the_dialog_and_says_nothing() {
        ignoreWarning(/Database does not exist\./)
        screen("setup/SetupDBChoice", { mode: "exists", currentPath: "/nowhere/Zelvan.db" })
        press("Replace Existing Database")
        enter("To continue, type \"REPLACE\" below.", "REPLACE")

        press("Replace Database")

        verify(hasButton("Replace Database"))
    }

    function test_the_word_has_to_be_typed_again_at_each_opening() {
        screen("setup/SetupDBChoice", { mode: "exists", currentPath: "/x/Zelvan.db" })
        press("Replace Existing Database")
        enter("To continue, type \"REPLACE\" below.", "REPLACE")
        press("Cancel")
        tryVerify(() => !hasButton("Cancel"))

        press("Replace Existing Database")

        compare(field("To continue, type \"REPLACE\" below.").text, "")
        verify(field("To continue, type \"REPLACE\" below.").activeFocus)
    }
}
