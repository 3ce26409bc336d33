// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// A field that takes digits only.
ThemedField {
    Layout.preferredWidth: 90
    inputMethodHints: Qt.ImhDigitsOnly

    validator: RegularExpressionValidator {
        regularExpression: /[0-9]*/
    }
}
