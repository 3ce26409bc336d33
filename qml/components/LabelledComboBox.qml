// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick.Layouts
import zelvan

// A choice under its label.
ColumnLayout {
    property alias label: caption.text
    property alias comboBox: choice

    spacing: 8

    PlainLabel {
        id: caption
    }

    ThemedComboBox {
        id: choice

        Layout.fillWidth: true
        label: caption.text
    }
}
