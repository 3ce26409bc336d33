// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import zelvan
import zelvan.System 1.0
import zelvan.Theme 1.0

// What all buttons have in common, whatever they look like: Tab reaches them, Space and Return press
// them, and a press ends what is being typed. A few are asked to leave the focus where it is, and set
// the policy to Qt.NoFocus.
Button {
    id: control

    property int radius: 4
    property int minimumHeight: 40

    // Takes over what is still being composed or edited, even where the button takes no focus: the
    // field hears that it loses the focus, and has it back if it is still there.
    function endTyping(): void {
        const typing = control.Window.activeFocusItem
        Typing.commit(typing)
        if (typing?.cursorPosition === undefined)
            return
        // Not the button itself, which would take a loss of focus for a finger that let go.
        ring.forceActiveFocus(Qt.MouseFocusReason)
        if (typing.visible && typing.enabled)
            typing.forceActiveFocus(Qt.MouseFocusReason)
        else
            ring.focus = false
    }

    // As a click does, without the pointer.
    function act(): void {
        control.endTyping()
        if (control.checkable && !control.checked)
            control.toggle()
        control.clicked()
    }

    function pressByKey(event: var): void {
        event.accepted = true
        if (!event.isAutoRepeat)
            control.act()
    }

    focusPolicy: Qt.StrongFocus
    font.pixelSize: Theme.fontNormal
    hoverEnabled: false
    implicitHeight: Math.max(minimumHeight, implicitContentHeight + topPadding + bottomPadding)

    // The text as it stands: newer Qt would take its "&" for a mark and leave it out.
    Accessible.name: text
    Accessible.checkable: checkable
    Accessible.checked: checked
    Keys.onEnterPressed: event => control.pressByKey(event)
    Keys.onReturnPressed: event => control.pressByKey(event)

    FocusRing {
        id: ring

        anchors.fill: parent
        radius: control.radius
        visible: control.visualFocus
    }

    onPressed: control.endTyping()
}
