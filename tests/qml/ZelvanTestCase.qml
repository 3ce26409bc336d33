// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import zelvan
import ZelvanTest 1.0

// The root of every test of the screens. Each test function starts on the store of the first run and
// fails on any warning that it did not announce with ignoreWarning(). A document that needs rows for
// all its functions defines arrange().
TestCase {
    id: root

    // The page of the test, made by show().
    property Item page: null

    visible: true
    width: 1280
    height: 800
    when: windowShown

    // Overridden where all functions of a document start from the same rows.
    function arrange() {
    }

    function init() {
        failOnWarning(/.*/)
        // What the last function started has been answered.
        tryVerify(() => !Work.busy)
        TestDb.reset()
        arrange()
    }

    function setKitchenMode(mode: string, more: var) {
        SettingService.saveKitchenSettings(Object.assign(SettingService.getKitchenSettings(), { mode: mode }, more || {}))
    }

    function addCategory(category: string): int {
        MenuService.addCategory(category)
        return TestDb.value("SELECT MAX(id) FROM categories")
    }

    // The price in currency units.
    function addItem(item: string, categoryId: int, price: real, portion: var): int {
        MenuService.addMenuItem(item, categoryId, price, true, true, portion || "")
        return TestDb.value("SELECT MAX(id) FROM menu")
    }

    function create(path: string, properties: var): var {
        const component = Qt.createComponent("qrc:/qt/qml/zelvan/qml/" + path + ".qml")
        compare(component.status, Component.Ready, component.errorString())
        const made = createTemporaryObject(component, root, properties || {})
        verify(made, path)
        return made
    }

    // Makes the page at the given path and gives it the whole window.
    function show(path: string, properties: var): var {
        page = create(path, properties)
        page.width = width
        page.height = height
        waitForRendering(page)
        return page
    }

    // Every item below the start, popups included, in the order of painting.
    function items(start) {
        const found = []
        const visit = item => {
            found.push(item)
            for (let i = 0; i < item.children.length; ++i)
                visit(item.children[i])
        }
        visit(start)
        return found
    }

    function windowItem() {
        let item = root
        while (item.parent)
            item = item.parent
        return item
    }

    // Lets layouts and lists catch up with what happened.
    function settle() {
        root.Window.window.update()
        waitForRendering(root)
    }

    function allShown(accept): var {
        settle()
        return items(windowItem()).filter(item => item.visible && accept(item))
    }

    // The one shown item that is accepted; `what` names it in the failure.
    function theShown(accept, what) {
        const found = allShown(accept)
        compare(found.length, 1, what)
        return found[0]
    }

    function texts(): var {
        return allShown(item => item.text !== undefined && item.contentItem === undefined).map(item => String(item.text))
    }

    function shows(text: string): bool {
        return texts().includes(text)
    }

    function isButton(item) {
        return item.clicked !== undefined && item.checkable !== undefined
    }

    // Among several buttons of one text, the index says which.
    function button(text: string, index: var): var {
        const found = allShown(item => isButton(item) && item.text === text)
        verify(found.length > (index || 0), "a button " + text)
        return found[index || 0]
    }

    function hasButton(text: string): bool {
        return allShown(item => isButton(item) && item.text === text).length > 0
    }

    // Once what was pressed before is done with.
    function press(text: string, index: var) {
        tryVerify(() => !Work.busy)
        click(button(text, index))
    }

    // Of a dialog over the page: its buttons are painted after those of the rows.
    function answerWith(answer: string) {
        tryVerify(() => !Work.busy)
        const found = allShown(item => isButton(item) && item.text === answer)
        mouseClick(found[found.length - 1])
    }

    function click(item) {
        mouseClick(item)
        settle()
    }

    // In the window's coordinates, since the item moves under the pointer.
    function drag(item, dx: int, dy: int) {
        const start = item.mapToItem(root, item.width / 2, item.height / 2)
        mouseDrag(root, start.x, start.y, dx, dy)
    }

    // A row of a list, by what a screen reader calls it.
    function row(name: string): var {
        return theShown(item => item.Accessible.role === Accessible.ListItem && item.Accessible.name === name, "a row " + name)
    }

    function field(label: string): var {
        return theShown(item => item.cursorPosition !== undefined && item.Accessible.name === label, "a field " + label)
    }

    function enter(label: string, text: string) {
        const input = field(label)
        input.forceActiveFocus()
        input.selectAll()
        for (const character of text)
            keyClick(character)
    }
}
