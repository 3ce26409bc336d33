// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import ZelvanTest 1.0

ZelvanTestCase {
    name: "Documents"

    // Without a floor the floor plan logs a failed assignment, which is meant.
    function arrange() {
        FloorPlanService.createFloor("Hall")
    }

    function test_every_document_loads_without_a_warning_data() {
        return TestDb.documents().map(path => ({ tag: path.replace(":/qt/qml/zelvan/qml/", ""), path: path }))
    }

    function test_every_document_loads_without_a_warning(data) {
        const component = Qt.createComponent("qrc" + data.path)

        compare(component.status, Component.Ready, component.errorString())
    }

    function test_every_page_opens_without_a_warning_data() {
        const parts = /\/(components|checkout|floor)\/|Dialog|Row|Pane|Form|Drafts|Main\.qml/
        return TestDb.documents().filter(path => !parts.test(path)).map(path => ({ tag: path.replace(":/qt/qml/zelvan/qml/", "").replace(".qml", "") }))
    }

    function test_every_page_opens_without_a_warning(data) {
        show(data.tag)

        verify(page.width > 0)
    }
}
