// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// The root of the tests that measure what the screens look like, in their pictures. Their documents run twice,
// once in dark mode. The pages stand in the program's own window, whose palette they take.
ZelvanTestCase {
    id: root

    readonly property real textContrast: 4.5
    readonly property real edgeContrast: 3
    property var appWindow: null
    property int food

    function arrange() {
        setKitchenMode("none")
        food = addCategory("Food")
        addItem("Soup", food, 5)
        addCategory("Drinks")
        TableService.addTable("Window", 4)
        FloorPlanService.createFloor("Hall")
    }

    function cleanup() {
        appWindow.destroy()
        appWindow = null
    }

    function open(path: string) {
        const component = Qt.createComponent("qrc:/qt/qml/zelvan/qml/Main.qml")
        compare(component.status, Component.Ready, component.errorString())
        appWindow = component.createObject(null, { width: 1024, height: 768 })
        tryVerify(() => appWindow.contentItem.width === 1024)
        const stack = within(item => item.depth !== undefined && item.busy !== undefined)[0]
        page = stack.push("qrc:/qt/qml/zelvan/qml/" + path + ".qml")
        tryVerify(() => !stack.busy)
    }

    function within(accept): var {
        let top = appWindow.contentItem
        while (top.parent)
            top = top.parent
        return items(top).filter(item => item.visible && accept(item))
    }

    function find(accept, what: string): var {
        tryVerify(() => within(accept).length > 0, 5000, what)
        return within(accept)[0]
    }

    function pressOn(text: string) {
        mouseClick(find(item => isButton(item) && item.text === text, text))
    }

    function combo(label: string): var {
        return find(item => item.Accessible.name === label && item.displayText !== undefined && item.popup !== undefined, label)
    }

    function luminance(colour: color): real {
        const linear = part => part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4)
        return 0.2126 * linear(colour.r) + 0.7152 * linear(colour.g) + 0.0722 * linear(colour.b)
    }

    function contrast(a: color, b: color): real {
        const [light, dark] = [luminance(a), luminance(b)].sort((one, other) => other - one)
        return (light + 0.05) / (dark + 0.05)
    }

    function picture(): var {
        let top = appWindow.contentItem
        while (top.parent)
            top = top.parent
        return grabImage(top)
    }

    // Of the letters in the item's box: the most frequent colour is what they stand on.
    function textContrastOf(item): real {
        const image = picture()
        const corner = item.mapToItem(null, 0, 0)
        const seen = {}
        for (let y = 0; y < item.height; ++y) {
            for (let x = 0; x < item.width; ++x) {
                const colour = String(image.pixel(Math.round(corner.x) + x, Math.round(corner.y) + y))
                seen[colour] = (seen[colour] ?? 0) + 1
            }
        }
        const ground = Object.keys(seen).reduce((most, colour) => seen[colour] > seen[most] ? colour : most)
        return Math.max(...Object.keys(seen).map(colour => contrast(Qt.color(colour), Qt.color(ground))))
    }

    // The strongest line met on the way over the left edge, against what lies outside of it.
    function edgeContrastOf(item): real {
        const image = picture()
        const edge = item.mapToItem(null, 0, item.height / 2)
        const outside = image.pixel(Math.round(edge.x) - 4, Math.round(edge.y))
        let best = 1
        for (let x = -3; x <= 3; ++x)
            best = Math.max(best, contrast(image.pixel(Math.round(edge.x) + x, Math.round(edge.y)), outside))
        return best
    }

    function verifyTexts(texts: var) {
        for (const text of texts) {
            const label = find(item => item.text === text && item.contentWidth !== undefined && item.width > 0, text)
            tryVerify(() => textContrastOf(label) >= textContrast, 2000, text + ": " + textContrastOf(label))
        }
    }

    function verifyEdge(item, what: string) {
        tryVerify(() => edgeContrastOf(item) >= edgeContrast, 2000, what + ": " + edgeContrastOf(item))
    }

    // What a popup draws behind its content, by an item of the content.
    function surfaceUnder(item): var {
        while (item.parent && !String(item.parent).startsWith("QQuickOverlay"))
            item = item.parent
        return item
    }
}
