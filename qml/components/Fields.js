// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

// What Return does in a form: on to the next field, and from the last one to the main button.

// The fields of the form that can be typed in now, in the order in which they stand.
function typed(form) {
    const found = []
    const visit = item => {
        if (!item.visible || !item.enabled)
            return
        if (item.cursorPosition !== undefined && !item.readOnly)
            found.push(item)
        for (let i = 0; i < item.children.length; ++i)
            visit(item.children[i])
    }
    visit(form)
    return found
}

// Keys.onPressed of the form; `mainButton` may be null.
function goOn(event, form, mainButton) {
    const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
    if (!isReturn || event.modifiers & Qt.ControlModifier)
        return
    event.accepted = true
    if (event.isAutoRepeat)
        return
    const fields = typed(form)
    const next = fields[fields.findIndex(field => field.activeFocus) + 1]
    if (next && fields.some(field => field.activeFocus))
        next.forceActiveFocus(Qt.TabFocusReason)
    else
        press(mainButton)
}

// A button that can be pressed now.
function press(button) {
    if (button?.enabled && button.visible)
        button.act()
}
