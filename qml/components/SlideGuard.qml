// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQml

// Runs for a moment after a row has left its list: the next one has slid under the finger, and a
// second press was not meant for it.
Timer {
    interval: 300
}
