// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// What somebody called something. Cut off at the right while its first twelve letters are seen; in a
// narrower column it takes further lines, and its row is to grow with it.
PlainLabel {
    id: root

    // How many letters stand before the name.
    property int lead: 0
    /// What the first twelve letters take.
    readonly property real leastWidth: Math.ceil(twelveLetters.advanceWidth)
    readonly property bool narrow: width > 0 && width < leastWidth

    // A text that may be cut off never grows out of the height that it was given once.
    elide: narrow ? Text.ElideNone : Text.ElideRight
    wrapMode: narrow ? Text.Wrap : Text.NoWrap

    TextMetrics {
        id: twelveLetters

        font: root.font
        text: root.text.length > root.lead + 12 ? root.text.slice(0, root.lead + 12) + "…" : root.text
    }
}
