// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "AdminMenuManagement"

    property int food

    function arrange() {
        food = addCategory("Food")
    }

    function openFood() {
        MenuService.currentCategoryId = food
        show("admin/management/AdminMenuManagement")
    }

    function storedItems(): var {
        return TestDb.rows("SELECT item, price, portion_size, is_available, is_taxable FROM menu ORDER BY id")
    }

    function test_nothing_but_a_heading_shows_without_a_category() {
        show("admin/management/AdminMenuManagement")

        verify(shows("Select a category"))
        verify(!shows("Menu Items"))
        verify(!hasButton("Add Menu Item"))
    }

    function test_a_typed_comma_becomes_a_point_where_the_store_writes_one() {
        SettingService.saveRegionalSettings({ locale: "de_DE", currency_code: "EUR" })
        addItem("Tea", food, 2)
        openFood()
        enter("Item name", "Soup")
        enter("Price", "12,345")
        compare(field("Price").text, "12.345")
        press("Add Menu Item")

        press("Edit", 0)
        const edited = allShown(item => item.placeholderText === "Price")[0]
        edited.forceActiveFocus()
        edited.selectAll()
        for (const character of "3,5")
            keyClick(character)
        compare(edited.text, "3.5")
        press("Save")

        compare(storedItems().map(item => item.price), [350, 1235])
    }

    function test_a_comma_stays_where_the_store_writes_a_point() {
        openFood()
        enter("Item name", "Soup")

        enter("Price", "12,345")

        compare(field("Price").text, "12,345")
        press("Add Menu Item")
        compare(storedItems()[0].price, 1200)
    }

    function test_a_row_shows_price_and_portion() {
        addItem("Soup", food, 5.5)
        addItem("Tea", food, 2, "Large")

        openFood()

        verify(shows("$5.50"))
        verify(shows("-"))
        verify(shows("Large"))
        compare(row("Soup").height, 44)
    }

    function test_an_item_is_added_and_the_form_starts_over() {
        openFood()
        enter("Item name", " Soup ")
        enter("Price", "12.345")
        enter("Portion (optional)", " L ")
        mouseClick(button("Taxable"))

        press("Add Menu Item")

        compare(storedItems(), [{ item: "Soup", price: 1235, portion_size: "L", is_available: 1, is_taxable: 0 }])
        for (const label of ["Item name", "Price", "Portion (optional)"])
            compare(field(label).text, "", label)
        verify(button("Taxable").checked)
        verify(button("Available").checked)
    }

    function test_an_incomplete_item_is_not_added_data() {
        return [{ tag: "no price", item: "Soup", price: "" }, { tag: "blank name", item: "  ", price: "5" }]
    }

    function test_an_incomplete_item_is_not_added(data) {
        openFood()
        enter("Item name", data.item)
        enter("Price", data.price)

        press("Add Menu Item")

        compare(storedItems(), [])
        compare(field("Item name").text, data.item)
    }

    function test_a_price_that_is_none_is_stored_as_zero_data() {
        return [
            { tag: "abc", cents: 0 }, { tag: "-1", cents: 0 }, { tag: "12,50", cents: 1200 }, { tag: "1e3", cents: 100000 },
            // As much as fits into the column.
            { tag: "1e9", cents: 2147483647 }
        ]
    }

    function test_a_price_that_is_none_is_stored_as_zero(data) {
        openFood()
        enter("Item name", "Soup")
        enter("Price", data.tag)

        press("Add Menu Item")

        compare(storedItems()[0].price, data.cents)
    }

    function test_an_item_is_edited_in_place() {
        addItem("Soup", food, 5)
        openFood()
        press("Edit")
        compare(allShown(item => item.placeholderText === "Price")[0].text, "5.00")
        enter("Item Name", " Broth ")

        press("Save")

        compare(storedItems()[0].item, "Broth")
        compare(storedItems()[0].price, 500)
        verify(hasButton("Edit"))
        verify(!hasButton("Save"))
    }

    function editedPrice(text: string) {
        const input = allShown(item => item.placeholderText === "Price")[0]
        input.forceActiveFocus()
        input.selectAll()
        keyClick(Qt.Key_Delete)
        for (const character of text)
            keyClick(character)
    }

    function test_an_edited_price_that_is_none_is_stored_as_zero_data() {
        return [{ tag: "letters", price: "abc" }, { tag: "empty", price: "" }, { tag: "negative", price: "-4" }]
    }

    function test_an_edited_price_that_is_none_is_stored_as_zero(data) {
        addItem("Soup", food, 5)
        openFood()
        press("Edit")
        editedPrice(data.price)

        press("Save")

        compare(storedItems()[0].price, 0)
    }

    function test_a_nameless_edit_stays_in_editing() {
        addItem("Soup", food, 5)
        openFood()
        press("Edit")
        enter("Item Name", "  ")

        press("Save")

        verify(hasButton("Save"))
        compare(storedItems()[0].item, "Soup")
    }

    function test_the_boxes_are_alive_only_in_editing() {
        addItem("Soup", food, 5)
        openFood()
        const boxes = () => allShown(item => item.checkState !== undefined && item.text === "")
        verify(boxes().every(box => !box.enabled && box.checked))
        press("Edit")

        mouseClick(boxes()[0])
        press("Save")

        compare(storedItems()[0].is_available, 0)
        compare(storedItems()[0].is_taxable, 1)
    }

    function test_an_item_is_deleted_only_after_a_yes_data() {
        return [{ tag: "Cancel", left: 1 }, { tag: "Delete", left: 0 }]
    }

    function test_an_item_is_deleted_only_after_a_yes(data) {
        addItem("Soup", food, 5)
        openFood()

        press("Delete")
        verify(shows("Delete Item"))
        verify(shows("Are you sure you want to delete \"Soup\"?"))
        answerWith(data.tag)

        compare(storedItems().length, data.left)
    }

    function test_an_item_that_orders_refer_to_stays_without_a_word() {
        const soup = addItem("Soup", food, 5)
        OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 1, notes: "" }], {})
        ignoreWarning(/remove failed:/)
        openFood()

        press("Delete")
        answerWith("Delete")

        compare(storedItems().length, 1)
        verify(shows("Soup"))
    }

    function test_a_long_price_is_not_cut_off() {
        addItem("Soup", food, 1e9)

        openFood()

        const price = theShown(item => item.text === "$21474836.47" && item.truncated !== undefined, "the price")
        compare(price.width, 90)
        verify(!price.truncated)
    }

    function test_an_edit_ends_where_another_category_is_shown() {
        addItem("Soup", food, 5)
        const drinks = addCategory("Drinks")
        openFood()
        press("Edit")
        enter("Item Name", "Half typed")

        click(row("Drinks"))
        click(row("Food"))

        verify(drinks > food)
        verify(hasButton("Edit"))
        verify(!hasButton("Save"))
    }

    function test_saving_a_row_leaves_the_others_in_editing() {
        addItem("Soup", food, 5)
        addItem("Tea", food, 2)
        openFood()
        press("Edit")
        press("Edit")
        const fields = allShown(item => item.placeholderText === "Item Name")
        fields[1].forceActiveFocus()
        keyClick("x")

        press("Save")

        compare(field("Item Name").text, "Teax")
        verify(shows("Soup"))
    }

    function test_saving_a_row_keeps_the_list_at_its_place() {
        for (let i = 0; i < 60; ++i)
            addItem("Item " + i, food, 1)
        const drinks = addCategory("Drinks")
        for (let i = 0; i < 60; ++i)
            addItem("Drink " + i, drinks, 1)
        openFood()
        const list = theShown(item => item.reuseItems === true && item.spacing === 4, "the items")
        list.positionViewAtIndex(30, ListView.Beginning)
        const place = list.contentY
        mouseClick(items(row("Item 31")).find(item => item.text === "Edit"))
        enter("Item Name", "Soup")

        press("Save")
        tryVerify(() => list.contentY === place)
        verify(row("Soup").visible)

        // Another category is another list.
        click(row("Drinks"))
        compare(list.contentY, 0)
        verify(shows("Drink 0"))
    }

    function test_a_row_keeps_what_was_being_typed_while_it_is_out_of_sight() {
        for (let i = 0; i < 60; ++i)
            addItem("Item " + i, food, 1)
        openFood()
        const list = theShown(item => item.reuseItems === true && item.spacing === 4, "the items")
        mouseClick(items(row("Item 3")).find(item => item.text === "Edit"))
        enter("Item Name", "Half typed")

        list.positionViewAtEnd()
        waitForRendering(page)
        verify(!hasButton("Save"))
        list.positionViewAtBeginning()
        waitForRendering(page)

        compare(field("Item Name").text, "Half typed")
        compare(allShown(item => isButton(item) && item.text === "Save").length, 1)
    }
}
