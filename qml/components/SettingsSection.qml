// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick.Layouts
import zelvan

// A titled group of rows on a settings page.
ColumnLayout {
    default property alias content: rows.data
    property alias title: titleLabel.text

    spacing: 12

    SectionTitle {
        id: titleLabel
    }

    ColumnLayout {
        id: rows

        Layout.fillWidth: true
        Layout.leftMargin: 20
        spacing: 12
    }
}
