// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import Zelvan.Services 1.0
import ZelvanTest 1.0

// What a screen reader finds on every page and in every dialog.
ScreenTestCase {
    id: root

    // The roles of what can be used; each needs a name.
    readonly property var used: ["Button", "CheckBox", "RadioButton", "ComboBox", "EditableText", "SpinBox", "ListItem", "List", "MenuItem", "PageTab", "Dialog"]
    property var dialog: null

    name: "Accessibility"

    function initTestCase() {
        TestDb.startScreenReader()
    }

    // A store in which every list has a row.
    function arrange() {
        SettingService.saveRestaurantSetting({ name: "Corner", address: "1 Main Street" })
        setKitchenMode("kds", { allow_edit_after_send: true })
        SettingService.saveMembershipSettings(Object.assign(SettingService.getMembershipSettings(), { enabled: true, earn_points: 1, earn_spend: 1, redeem_points: 10, redeem_value: 1 }))
        const food = addCategory("Food")
        const soup = addItem("Soup", food, 5, "Bowl")
        MenuService.currentCategoryId = food
        TableService.addTable("Window", 4)
        const floor = FloorPlanService.createFloor("Hall")
        FloorPlanService.loadFloors()
        FloorPlanService.loadCanvas(floor)
        FloorPlanService.createTableItem({ type: "table", x: 100, y: 100, width: 80, height: 80, label: "A1", floor_id: floor, capacity: 4, metadata: "{}" })
        FloorPlanService.saveCanvas(floor)
        OrderService.createOrder("takeaway", [{ menuItemId: soup, qty: 2, notes: "hot" }], { notes: "" })
        OrderService.createOrder("dine_in", [{ menuItemId: soup, qty: 1, notes: "" }], { notes: "", tableId: 1 })
        CheckoutService.completeCheckout(TestDb.value("SELECT MIN(id) FROM order_sessions"), "0123", 0)
        addUser("boss", "admin")
        SettingService.savePrinter({ id: 0, name: "TM88", system_name: "TM88", role: "both", paper_width: 80, cut_mode: "full" })
    }

    function cleanup() {
        dialog?.close()
        dialog = null
        stack.clear(StackView.Immediate)
    }

    function tree(): var {
        settle()
        return TestDb.accessibleTree()
    }

    function words(node: var): string {
        return node.role + " '" + node.name + "' " + node.item
    }

    function verifyNamed() {
        const nodes = tree()
        verify(nodes.some(node => used.includes(node.role)), "something to use")
        compare(nodes.filter(node => used.includes(node.role) && node.name === "").map(words), [])
        // Whatever takes the focus says what it is.
        compare(nodes.filter(node => node.focusable && ["NoRole", "Client", "Pane", "Filler"].includes(node.role)).map(words), [])
        // What is seen is heard: each control on the screen stands in the tree.
        const heard = nodes.map(node => node.item)
        const controls = allShown(item => isButton(item) || item.cursorPosition !== undefined || item.displayText !== undefined && item.popup !== undefined)
        compare(controls.filter(item => item.opacity > 0 && item.width > 0 && !heard.includes(item) && item.parent?.up === undefined && item.parent?.popup === undefined).map(String), [])
    }

    function test_every_control_of_a_page_has_a_name_and_a_role_data() {
        const parts = /\/(components|checkout|floor)\/|Dialog|Row|Pane|Form|Drafts|Main\.qml|Sidebar\.qml|\/OrderTaking\.qml/
        return TestDb.documents().filter(path => !parts.test(path)).map(path => ({ tag: path.replace(":/qt/qml/zelvan/qml/", "").replace(".qml", "") }))
    }

    function test_every_control_of_a_page_has_a_name_and_a_role(data) {
        screen(data.tag)

        verifyNamed()
    }

    function test_every_control_of_a_dialog_has_a_name_and_a_role_data() {
        return [
            { tag: "admin/management/UserCreateDialog" },
            { tag: "admin/management/UserEditDialog" },
            { tag: "admin/management/UserPasswordDialog" },
            { tag: "admin/management/MemberDialog", properties: { memberId: 1 } },
            { tag: "admin/settings/MoveDatabaseDialog" },
            { tag: "admin/settings/RestoreDatabaseDialog" },
            { tag: "admin/settings/PrinterDialog" },
            { tag: "common/floor/ReservationDialog" },
            { tag: "components/ReplaceDatabaseDialog" },
            { tag: "components/ConfirmationDialog" },
            { tag: "components/FloorDialog", properties: { title: "T", label: "L", placeholder: "P", confirmText: "OK", cancelText: "No" } },
            { tag: "components/TableItemDialog", properties: { title: "T", labelTitle: "L", labelPlaceholder: "P", startLabel: "S", seatsTitle: "N", typeTitle: "Y", types: [{ text: "a", value: "a" }], confirmText: "OK", cancelText: "No" } }
        ]
    }

    function test_every_control_of_a_dialog_has_a_name_and_a_role(data) {
        dialog = create(data.tag, data.properties)
        dialog.open()
        tryVerify(() => dialog.opened)

        verifyNamed()
    }

    function test_passwords_are_named_and_marked_as_such() {
        screen("setup/SetupAdmin")

        const fields = tree().filter(node => node.role === "EditableText")

        compare(fields.map(node => node.name), ["Username", "Password", "Confirm password"])
        compare(fields.map(node => node.password), [false, true, true])
        verify(fields.every(node => node.focusable && node.editable && !node.value.includes("secret")))
    }

    // The rows that a list of that name has.
    function rowsOf(list: string): var {
        const nodes = tree()
        const at = nodes.findIndex(node => node.role === "List" && node.name === list)
        verify(at >= 0, "a list " + list)
        const rows = []
        for (let i = at + 1; i < nodes.length && nodes[i].depth > nodes[at].depth; ++i) {
            if (nodes[i].role === "ListItem")
                rows.push(nodes[i])
        }
        return rows
    }

    function test_a_row_of_the_tax_report_says_all_its_cells() {
        screen("admin/AdminTaxReports")
        const closedAt = TestDb.value("SELECT closed_at FROM order_sessions WHERE status = 'paid'")
        const receipt = TestDb.value("SELECT receipt_number FROM order_sessions WHERE status = 'paid'")

        const rows = rowsOf("Transactions")

        compare(rows.length, 1)
        for (const cell of [receipt, "takeaway", "$10.00", closedAt])
            verify(rows[0].name.includes(cell), cell + " in " + rows[0].name)
        verify(rowsOf("Daily Breakdown")[0].name.includes("$10.00"))
    }

    function test_a_card_says_its_figure_and_its_note() {
        screen("admin/AdminTaxReports")

        const names = tree().filter(node => node.role === "StaticText").map(node => node.name)

        verify(names.some(name => name.includes("Total Sales") && name.includes("$10.00") && name.includes("1transactions")), names.join("|"))
    }

    function test_a_kitchen_card_says_what_to_cook() {
        screen("common/KitchenOrders")

        const card = tree().find(node => node.role === "ListItem")

        verify(card.description.includes("Soup, Bowl, x"), card.description)
    }

    function test_the_chosen_category_is_told() {
        screen("common/OrderTakingSimple")

        const category = rowsOf("Categories")[0]

        compare(category.name, "Food")
        verify(category.selectable)
        verify(category.selected)
    }

    function test_a_choice_tells_its_value_and_a_switch_its_state() {
        screen("admin/settings/AdminKitchenSettings")

        const nodes = tree()

        compare(nodes.find(node => node.role === "ComboBox").description, "Kitchen Display System (KDS)")
        const edits = nodes.find(node => node.name === "Allow edits after order creation" && node.checkable)
        verify(edits.checked)
    }
}
