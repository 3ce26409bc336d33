// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// A field that takes a decimal number, with a point in every language.
PointField {
    id: root

    Layout.preferredWidth: 90

    validator: RegularExpressionValidator {
        regularExpression: root.storeWritesComma() ? /[0-9]*[.,]?[0-9]*/ : /[0-9]*\.?[0-9]*/
    }
}
