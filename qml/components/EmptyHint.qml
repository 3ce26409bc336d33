// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import zelvan.Theme 1.0

// Stands in a list that is empty and says what to do next. The texts have a context of their own.
PlainLabel {
    width: parent?.width ?? 0
    color: Theme.secondaryText
    horizontalAlignment: Text.AlignHCenter
    padding: 12
    wrapMode: Text.Wrap
}
