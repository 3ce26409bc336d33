// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import Zelvan.Services 1.0
import zelvan

// A field for a number with a point. Where the store's locale writes a comma, a typed comma becomes
// that point at once.
ThemedField {
    id: root

    function storeWritesComma(): bool {
        const settings = SettingService.getRegionalSettings()
        return Qt.locale(settings.locale ?? "").decimalPoint === "," // qmllint disable type
    }

    inputMethodHints: Qt.ImhFormattedNumbersOnly

    // Not by assigning the text, which would cut it off from what it is bound to.
    onTextEdited: {
        const comma = text.indexOf(",")
        if (comma < 0 || !storeWritesComma())
            return
        const cursor = cursorPosition
        remove(comma, comma + 1)
        insert(comma, ".")
        cursorPosition = cursor
    }
}
