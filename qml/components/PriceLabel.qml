// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// A price in a narrow column: a long one gets smaller before it is cut off.
PlainLabel {
    elide: Text.ElideRight
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 8
}
