// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan

// A caption at the left and its figure at the right.
RowLayout {
    property alias caption: captionLabel.text
    property alias figure: figureLabel.text

    Layout.fillWidth: true

    PlainLabel {
        id: captionLabel

        Layout.fillWidth: true
    }

    PlainLabel {
        id: figureLabel
    }
}
