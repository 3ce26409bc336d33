// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtTest
import Zelvan.Services 1.0
import ZelvanTest 1.0

// The root of the tests of screens that lead to other screens: they stand on a stack, as in the program.
ZelvanTestCase {
    id: root

    property alias stack: stackView
    property alias maximizedTimes: appWindow.maximizedTimes

    function screen(path: string, properties: var): var {
        appWindow.maximizedTimes = 0
        stackView.clear(StackView.Immediate)
        stackView.forceActiveFocus()
        page = stackView.push("qrc:/qt/qml/zelvan/qml/" + path + ".qml", properties || {}, StackView.Immediate)
        waitForRendering(page)
        return page
    }

    // The screen on show once nothing moves any more, by the name of its document.
    function shownScreen(): string {
        tryVerify(() => !stackView.busy)
        return String(stackView.currentItem).replace(/_QMLTYPE.*/, "")
    }

    function addUser(username: string, role: string): int {
        createdSpy.clear()
        UserService.createUser(username, "secret", "secret", role)
        createdSpy.wait()
        verify(createdSpy.signalArguments[0][0])
        return TestDb.value("SELECT MAX(id) FROM users")
    }

    function cleanup() {
        stackView.clear(StackView.Immediate)
    }

    StackView {
        id: stackView

        anchors.fill: parent
        focus: true
    }

    QtObject {
        id: appWindow

        property int maximizedTimes: 0

        function showMaximized() {
            ++maximizedTimes
        }
    }

    SignalSpy {
        id: createdSpy

        signalName: "createUserFinished"
        target: UserService
    }
}
