// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import zelvan.Theme 1.0
import ZelvanTest 1.0

// The five pages that read a map, show it and write it back.
ZelvanTestCase {
    name: "SettingsPages"

    function choice(label: string): var {
        return theShown(item => item.indexOfValue !== undefined && item.Accessible.name === label, "a choice " + label)
    }

    function hasChoice(label: string): bool {
        return allShown(item => item.indexOfValue !== undefined && item.Accessible.name === label).length === 1
    }

    function toggle(label: string): var {
        return theShown(item => isButton(item) && item.Accessible.name === label, "a switch " + label)
    }

    function values(label: string): var {
        return choice(label).model.map(entry => entry.value)
    }

    function entries(label: string): var {
        return choice(label).model.map(entry => entry.text)
    }

    function restaurant(): var {
        return TestDb.rows("SELECT id, name, address, phone_number, email, website FROM restaurant")
    }

    function tax(): var {
        return TestDb.rows("SELECT enabled, rate, name, registration_number FROM tax_settings")[0]
    }

    function kitchen(): var {
        return TestDb.rows("SELECT mode, ticket_print_timing, require_ready_for_checkout, allow_edit_after_send FROM kitchen_settings")[0]
    }

    function test_the_restaurants_details_are_stored_as_typed() {
        show("admin/settings/AdminStoreSettings")
        enter("Restaurant Name", "Casa")
        enter("Address", "Main St 1")
        enter("Phone Number (optional)", "555")
        enter("Email (optional)", "a@b.c")
        enter("Website (optional)", "b.c")

        press("Save")

        compare(restaurant(), [{ id: 1, name: "Casa", address: "Main St 1", phone_number: "555", email: "a@b.c", website: "b.c" }])
        compare(page.errorMessage, "")
    }

    function test_even_a_nameless_restaurant_is_stored() {
        show("admin/settings/AdminStoreSettings")

        press("Save")

        compare(restaurant(), [{ id: 1, name: "", address: "", phone_number: "", email: "", website: "" }])
    }

    function test_a_save_shows_what_the_store_holds_now() {
        SettingService.saveRestaurantSetting({ name: "Casa" })
        show("admin/settings/AdminStoreSettings")
        TestDb.run("CREATE TRIGGER keep AFTER UPDATE ON restaurant WHEN NEW.name <> 'Kept' BEGIN UPDATE restaurant SET name = 'Kept'; END")

        press("Save")

        compare(field("Restaurant Name").text, "Kept")
        TestDb.run("DROP TRIGGER keep")
    }

    function test_the_fields_name_what_belongs_there_data() {
        return [
            { tag: "Restaurant Name", placeholder: "Enter Restaurant Name" }, { tag: "Address", placeholder: "Enter Address" },
            { tag: "Phone Number (optional)", placeholder: "Enter Phone Number" }, { tag: "Email (optional)", placeholder: "Enter Email" },
            { tag: "Website (optional)", placeholder: "Enter Website" }
        ]
    }

    function test_the_fields_name_what_belongs_there(data) {
        show("admin/settings/AdminStoreSettings")

        compare(field(data.tag).placeholderText, data.placeholder)
    }

    function test_the_layout_mode_is_stored_and_explained() {
        show("admin/settings/AdminTableSettings")
        const note = "Visual floor plans allow tables to be positioned freely and support advanced restaurant layouts."
        compare(values("Layout Mode"), ["simple", "floor_plan"])
        compare(choice("Layout Mode").currentValue, "simple")
        verify(!shows(note))

        choice("Layout Mode").currentIndex = 1
        verify(shows(note))
        press("Save")

        compare(TestDb.value("SELECT layout_mode FROM table_settings"), "floor_plan")
        compare(SettingService.tableLayoutMode, "floor_plan")
    }

    function test_a_stored_layout_mode_is_shown() {
        SettingService.saveTableSettings({ layout_mode: "floor_plan" })

        show("admin/settings/AdminTableSettings")

        compare(choice("Layout Mode").currentValue, "floor_plan")
    }

    function test_the_tax_fields_show_only_while_the_tax_is_on() {
        show("admin/settings/AdminTaxSettings")
        compare(allShown(item => item.cursorPosition !== undefined).length, 0)

        mouseClick(toggle("Enable Tax"))

        compare(field("Tax Name").placeholderText, "e.g. Sales Tax")
        compare(field("Tax Rate (%)").text, "1.00")
        compare(field("Tax Rate (%)").width, 150)
        compare(field("Registration Number").placeholderText, "Registration Number")
    }

    function test_a_rate_is_stored_in_hundredths_of_a_per_cent_data() {
        return [
            { tag: "8.25", stored: 825, shown: "8.25" }, { tag: "7.125", stored: 713, shown: "7.13" },
            { tag: "8.25%", stored: 825, shown: "8.25" }, { tag: "8,25", stored: 800, shown: "8.00" },
            { tag: "100", stored: 10000, shown: "100.00" }, { tag: "abc", stored: 0, shown: "0.00" },
            { tag: "-5", stored: -500, shown: "-5.00" },
            { tag: "99999999", stored: 2147483647, shown: "21474836.47" },
            { tag: "-99999999999999", stored: -2147483648, shown: "-21474836.48" }
        ]
    }

    function test_a_rate_is_stored_in_hundredths_of_a_per_cent(data) {
        show("admin/settings/AdminTaxSettings")
        mouseClick(toggle("Enable Tax"))
        enter("Tax Name", "GST")
        enter("Registration Number", "R-1")
        enter("Tax Rate (%)", data.tag)

        press("Save")

        compare(tax(), { enabled: 1, rate: data.stored, name: "GST", registration_number: "R-1" })
        page.load()
        compare(field("Tax Rate (%)").text, data.shown)
    }

    function test_a_typed_comma_becomes_a_point_where_the_store_writes_one() {
        SettingService.saveRegionalSettings({ locale: "fr_FR", currency_code: "EUR" })
        show("admin/settings/AdminTaxSettings")
        mouseClick(toggle("Enable Tax"))

        enter("Tax Rate (%)", "7,125")

        compare(field("Tax Rate (%)").text, "7.125")
        press("Save")
        compare(tax().rate, 713)
    }

    function test_a_tax_without_a_rate_is_left_alone_without_a_word_data() {
        return [{ tag: "empty", rate: "" }, { tag: "blank", rate: "   " }]
    }

    function test_a_tax_without_a_rate_is_left_alone_without_a_word(data) {
        show("admin/settings/AdminTaxSettings")
        mouseClick(toggle("Enable Tax"))
        field("Tax Rate (%)").text = data.rate

        press("Save")

        compare(tax(), { enabled: 0, rate: 100, name: "", registration_number: "" })
        compare(page.errorMessage, "")
    }

    function test_switching_the_tax_off_forgets_the_rate_and_keeps_the_rest() {
        SettingService.saveTaxSettings({ enabled: true, rate: 825, name: "GST", registration_number: "R-1" })
        show("admin/settings/AdminTaxSettings")
        mouseClick(toggle("Enable Tax"))

        press("Save")

        compare(tax(), { enabled: 0, rate: 0, name: "GST", registration_number: "R-1" })
    }

    function test_the_kitchens_sections_follow_the_mode_data() {
        return [
            { tag: "none", tickets: false, board: false }, { tag: "kds", tickets: false, board: true },
            { tag: "tickets", tickets: true, board: false }, { tag: "hybrid", tickets: true, board: true }
        ]
    }

    function test_the_kitchens_sections_follow_the_mode(data) {
        show("admin/settings/AdminKitchenSettings")

        choice("Kitchen Mode").selectValue(data.tag)

        compare(hasChoice("Print Ticket When"), data.tickets)
        compare(shows("Kitchen Ticket Printing"), data.tickets)
        compare(shows("Checkout Rules"), data.board)
        verify(shows("Order Modification"))
    }

    function test_the_kitchens_settings_are_stored() {
        show("admin/settings/AdminKitchenSettings")
        compare(entries("Kitchen Mode"), ["No kitchen system", "Kitchen Display System (KDS)", "Kitchen ticket printing", "KDS + ticket printing"])
        choice("Kitchen Mode").selectValue("hybrid")
        compare(entries("Print Ticket When"), ["Order is created", "Manual only"])
        choice("Print Ticket When").selectValue("order_created")
        waitForRendering(page)
        mouseClick(toggle("Require kitchen ready before checkout"))
        mouseClick(toggle("Allow edits after order creation"))

        press("Save")

        compare(kitchen(), { mode: "hybrid", ticket_print_timing: "order_created", require_ready_for_checkout: 1, allow_edit_after_send: 1 })
        compare(SettingService.kitchenMode, "hybrid")
    }

    function test_what_a_hidden_control_holds_is_stored_all_the_same() {
        SettingService.saveKitchenSettings({ mode: "hybrid", ticket_print_timing: "order_created", require_ready_for_checkout: 1, allow_edit_after_send: 0 })
        show("admin/settings/AdminKitchenSettings")
        choice("Kitchen Mode").selectValue("kds")
        verify(!hasChoice("Print Ticket When"))

        press("Save")

        compare(kitchen(), { mode: "kds", ticket_print_timing: "order_created", require_ready_for_checkout: 1, allow_edit_after_send: 0 })
    }

    function test_an_empty_stored_word_falls_back_to_the_first_entry() {
        TestDb.run("UPDATE kitchen_settings SET mode = '', ticket_print_timing = ''")

        show("admin/settings/AdminKitchenSettings")

        compare(choice("Kitchen Mode").currentValue, "none")
    }

    function test_language_and_currency_are_stored() {
        show("admin/settings/AdminRegionalSettings")
        compare(entries("App Language"), ["English (United States)", "中文 (简体)"])
        compare(entries("Currency"), ["$ (USD)", "RM (MYR)", "€ (EUR)", "¥ (CNY)"])
        choice("App Language").selectValue("zh_CN")
        choice("Currency").selectValue("MYR")

        press("Save")

        compare(TestDb.rows("SELECT id, locale, currency_code FROM regional_settings"), [{ id: 1, locale: "zh_CN", currency_code: "MYR" }])
        compare(SettingService.currencySymbol(), "RM")
    }

    function test_stored_language_and_currency_are_shown_data() {
        return [
            { tag: "stored", locale: "zh_CN", currency: "CNY", shown: ["zh_CN", "CNY"] },
            { tag: "empty", locale: "", currency: "", shown: ["en_US", "USD"] }
        ]
    }

    function test_stored_language_and_currency_are_shown(data) {
        SettingService.saveRegionalSettings({ locale: data.locale, currency_code: data.currency })

        show("admin/settings/AdminRegionalSettings")

        compare([choice("App Language").currentValue, choice("Currency").currentValue], data.shown)
    }

    function test_the_entries_are_as_large_as_the_choice_itself() {
        show("admin/settings/AdminRegionalSettings")
        const currency = choice("Currency")

        click(currency)

        compare(button("RM (MYR)").font.pixelSize, Theme.fontNormal)
        compare(currency.font.pixelSize, Theme.fontNormal)
        currency.popup.close()
    }

    function test_a_stored_value_that_is_not_on_offer_is_shown_and_kept_data() {
        return [
            { tag: "language", page: "AdminRegionalSettings", table: "regional_settings", stored: "locale = 'ms_MY'", label: "App Language", shown: "ms_MY" },
            { tag: "currency", page: "AdminRegionalSettings", table: "regional_settings", stored: "currency_code = 'GBP'", label: "Currency", shown: "GBP" },
            { tag: "kitchen", page: "AdminKitchenSettings", table: "kitchen_settings", stored: "mode = 'pager'", label: "Kitchen Mode", shown: "pager" },
            { tag: "tables", page: "AdminTableSettings", table: "table_settings", stored: "layout_mode = 'list'", label: "Layout Mode", shown: "list" }
        ]
    }

    function test_a_stored_value_that_is_not_on_offer_is_shown_and_kept(data) {
        SettingService.saveRegionalSettings({})
        TestDb.run("UPDATE " + data.table + " SET " + data.stored)
        show("admin/settings/" + data.page)
        compare(choice(data.label).currentIndex, -1)
        compare(choice(data.label).displayText, data.shown)

        press("Save")

        compare(TestDb.value("SELECT COUNT(*) FROM " + data.table + " WHERE " + data.stored), 1)
    }

    function test_an_entry_chosen_replaces_a_value_that_is_not_on_offer() {
        SettingService.saveRegionalSettings({ locale: "ms_MY", currency_code: "GBP" })
        show("admin/settings/AdminRegionalSettings")

        choice("App Language").currentIndex = 1
        press("Save")

        compare(TestDb.rows("SELECT locale, currency_code FROM regional_settings"), [{ locale: "zh_CN", currency_code: "GBP" }])
        compare(SettingService.currencySymbol(), "£")
    }

    function test_without_a_row_the_first_entries_stand_data() {
        return [
            { tag: "admin/settings/AdminTableSettings", table: "table_settings", choices: ["Layout Mode"] },
            { tag: "admin/settings/AdminKitchenSettings", table: "kitchen_settings", choices: ["Kitchen Mode"] },
            { tag: "admin/settings/AdminRegionalSettings", table: "regional_settings", choices: ["App Language", "Currency"] }
        ]
    }

    function test_without_a_row_the_first_entries_stand(data) {
        TestDb.run("DELETE FROM " + data.table)

        show(data.tag)

        for (const label of data.choices)
            compare(choice(label).currentIndex, 0, label)
    }

    function test_a_store_that_refuses_the_row_says_nothing_data() {
        return [
            { tag: "admin/settings/AdminStoreSettings", table: "restaurant", log: /Failed to save restaurant:/ },
            { tag: "admin/settings/AdminTableSettings", table: "table_settings", log: /Failed to save table_settings:/ },
            { tag: "admin/settings/AdminTaxSettings", table: "tax_settings", log: /Failed to save tax_settings:/ },
            { tag: "admin/settings/AdminKitchenSettings", table: "kitchen_settings", log: /Failed to save kitchen_settings:/ },
            { tag: "admin/settings/AdminRegionalSettings", table: "regional_settings", log: /Failed to save regional setting:/ }
        ]
    }

    // The reason is in the log; the page hears of thrown errors only.
    function test_a_store_that_refuses_the_row_says_nothing(data) {
        show(data.tag)
        TestDb.run("CREATE TRIGGER refused BEFORE INSERT ON " + data.table + " BEGIN SELECT RAISE(ABORT, 'refused'); END")
        ignoreWarning(data.log)

        press("Save")

        compare(page.errorMessage, "")
        TestDb.run("DROP TRIGGER refused")
    }

    function test_an_error_shows_in_red_beside_the_button() {
        show("admin/settings/AdminTaxSettings")

        page.errorMessage = "Failed to save tax settings."

        const message = theShown(item => item.text === "Failed to save tax settings.", "the message")
        compare(message.color, Qt.color("red"))
        verify(message.font.bold)
        verify(message.mapToItem(page, 0, 0).x > button("Save").mapToItem(page, 0, 0).x)
    }
}
