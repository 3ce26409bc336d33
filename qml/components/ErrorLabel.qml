// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// What went wrong on a page, beside the button that caused it.
PlainLabel {
    color: "red"
    font.bold: true
    wrapMode: Text.WordWrap
}
