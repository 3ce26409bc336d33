// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "MenuCategoryPane"

    property int food

    function arrange() {
        food = addCategory("Food")
    }

    function openFood() {
        MenuService.currentCategoryId = food
        show("admin/management/AdminMenuManagement")
    }

    function startRenaming(category: var) {
        mouseClick(row(category || "Food"), 20, 20, Qt.RightButton)
        const entry = () => allShown(item => item.text === "Rename" && item.triggered !== undefined)[0]
        tryVerify(() => entry() !== undefined)
        mouseClick(entry())
        tryVerify(() => field("Rename").activeFocus)
    }

    function test_a_click_selects_a_category() {
        addItem("Soup", food, 5)
        show("admin/management/AdminMenuManagement")

        mouseClick(row("Food"))

        compare(MenuService.currentCategoryId, food)
        compare(row("Food").color, Theme.primary())
        verify(shows("Menu Items"))
        verify(shows("Soup"))
    }

    function test_a_category_is_added_as_it_was_typed() {
        show("admin/management/AdminMenuManagement")
        enter("New category name", " Drinks ")

        press("Add Category")

        compare(TestDb.value("SELECT category FROM categories ORDER BY id DESC"), " Drinks ")
        compare(field("New category name").text, "")
    }

    function test_an_empty_category_name_sends_nothing() {
        show("admin/management/AdminMenuManagement")

        press("Add Category")

        compare(TestDb.value("SELECT COUNT(*) FROM categories"), 1)
    }

    function test_a_category_name_of_blanks_is_sent_refused_and_kept() {
        ignoreWarning(/Cannot add empty category name/)
        show("admin/management/AdminMenuManagement")
        enter("New category name", "   ")

        press("Add Category")

        compare(field("New category name").text, "   ")
        compare(TestDb.value("SELECT COUNT(*) FROM categories"), 1)
    }

    function test_renaming_takes_the_focus_with_all_text_selected() {
        show("admin/management/AdminMenuManagement")

        startRenaming()

        compare(field("Rename").selectedText, "Food")
    }

    function test_return_commits_a_trimmed_new_name() {
        show("admin/management/AdminMenuManagement")
        startRenaming()
        enter("Rename", " Meals ")

        keyClick(Qt.Key_Return)

        compare(TestDb.value("SELECT category FROM categories"), "Meals")
        verify(shows("Meals"))
    }

    function test_losing_the_focus_commits() {
        show("admin/management/AdminMenuManagement")
        startRenaming()
        enter("Rename", "Meals")

        field("New category name").forceActiveFocus()

        compare(TestDb.value("SELECT category FROM categories"), "Meals")
    }

    function test_escape_does_not_commit() {
        show("admin/management/AdminMenuManagement")
        startRenaming()
        enter("Rename", "Meals")

        keyClick(Qt.Key_Escape)

        compare(TestDb.value("SELECT category FROM categories"), "Food")
        verify(shows("Food"))
    }

    function test_the_present_name_or_none_sends_nothing_data() {
        return [{ tag: "Food" }, { tag: "   " }]
    }

    function test_the_present_name_or_none_sends_nothing(data) {
        show("admin/management/AdminMenuManagement")
        TestDb.run("CREATE TRIGGER no_update BEFORE UPDATE ON categories BEGIN SELECT RAISE(ABORT, 'sent'); END")
        startRenaming()
        enter("Rename", data.tag)

        keyClick(Qt.Key_Return)

        verify(shows("Food"))
        TestDb.run("DROP TRIGGER no_update")
    }

    function deleteCategory(answer: string) {
        mouseClick(row("Food"), 20, 20, Qt.RightButton)
        const entry = () => allShown(item => item.text === "Delete" && item.triggered !== undefined)[0]
        tryVerify(() => entry() !== undefined)
        mouseClick(entry())
        tryVerify(() => shows("Delete Category"))
        verify(shows("Are you sure you want to delete \"Food\"? All menu items within \"Food\" will be deleted."))
        answerWith(answer)
    }

    function test_a_deleted_category_takes_its_items_and_the_selection_along() {
        addItem("Soup", food, 5)
        openFood()

        deleteCategory("Delete")

        compare(TestDb.value("SELECT COUNT(*) FROM categories"), 0)
        compare(TestDb.value("SELECT COUNT(*) FROM menu"), 0)
        verify(shows("Select a category"))
    }

    function test_a_declined_deletion_changes_nothing() {
        openFood()

        deleteCategory("Cancel")

        compare(TestDb.value("SELECT COUNT(*) FROM categories"), 1)
        verify(shows("Menu Items"))
    }

    function test_an_added_category_commits_the_name_being_typed() {
        show("admin/management/AdminMenuManagement")
        enter("New category name", "Drinks")
        startRenaming()
        enter("Rename", "Meals")

        press("Add Category")

        tryVerify(() => shows("Meals") && shows("Drinks"))
        compare(TestDb.rows("SELECT category FROM categories ORDER BY id"), [{ category: "Meals" }, { category: "Drinks" }])
        compare(allShown(item => item.cursorPosition !== undefined && item.Accessible.name === "Rename").length, 0)
    }

    function test_the_menu_of_a_category_is_opened_by_keys_data() {
        return [
            { tag: "menu key", key: Qt.Key_Menu, modifiers: Qt.NoModifier },
            { tag: "Shift+F10", key: Qt.Key_F10, modifiers: Qt.ShiftModifier }
        ]
    }

    function test_the_menu_of_a_category_is_opened_by_keys(data) {
        addCategory("Drinks")
        openFood()
        const list = row("Food").ListView.view
        list.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Down)

        keyClick(data.key, data.modifiers)
        tryVerify(() => hasButton("Rename"))
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)

        tryVerify(() => field("Rename").activeFocus)
        compare(field("Rename").text, "Drinks")
    }

    function test_the_list_has_the_keys_again_after_its_menu() {
        openFood()
        const list = row("Food").ListView.view
        list.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Menu)
        tryVerify(() => hasButton("Rename"))

        keyClick(Qt.Key_Escape)

        tryVerify(() => !hasButton("Rename"))
        tryVerify(() => list.activeFocus)
    }

    function test_the_menu_of_a_row_stays_with_it_while_another_is_renamed() {
        addCategory("Drinks")
        show("admin/management/AdminMenuManagement")
        startRenaming()
        enter("Rename", "Meals")

        mouseClick(row("Drinks"), 20, 20, Qt.RightButton)
        const entry = () => allShown(item => item.text === "Delete" && item.triggered !== undefined)[0]
        tryVerify(() => entry() !== undefined)
        mouseClick(entry())
        tryVerify(() => shows("Delete Category"))

        verify(shows("Are you sure you want to delete \"Drinks\"? All menu items within \"Drinks\" will be deleted."))
        compare(TestDb.rows("SELECT category FROM categories ORDER BY id"), [{ category: "Meals" }, { category: "Drinks" }])
    }

    function test_scrolling_a_name_being_typed_out_of_sight_commits_it() {
        for (let i = 0; i < 60; ++i)
            addCategory("Category " + i)
        show("admin/management/AdminMenuManagement")
        startRenaming("Category 1")
        enter("Rename", "Meals")
        const list = theShown(item => item.reuseItems === true && item.count === 61, "the categories")

        list.positionViewAtEnd()
        waitForRendering(page)

        tryVerify(() => TestDb.value("SELECT COUNT(*) FROM categories WHERE category = 'Meals'") === 1)
    }

    function test_a_page_that_goes_while_a_name_is_typed_takes_it_along() {
        show("admin/management/AdminMenuManagement")
        startRenaming()
        enter("Rename", "Meals")

        page.destroy()
        wait(0)

        verify(["Food", "Meals"].includes(TestDb.value("SELECT category FROM categories")))
    }
}
