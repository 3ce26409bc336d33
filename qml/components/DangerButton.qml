// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import zelvan

// An action that takes something away.
FilledButton {
    fillColor: "red"
}
