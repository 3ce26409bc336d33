// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only

// Texts of a setup screen that is gone. No document looks them up; the catalogue goes on holding
// them, and without this list the next `scripts/update-translations` would drop them.
const kept = [
    QT_TRANSLATE_NOOP("SetupDBLocation", "Back"),
    QT_TRANSLATE_NOOP("SetupDBLocation", "Choose database location"),
    QT_TRANSLATE_NOOP("SetupDBLocation", "Select where the database file will be stored."),
    QT_TRANSLATE_NOOP("SetupDBLocation", "Browse"),
    QT_TRANSLATE_NOOP("SetupDBLocation", "Done"),
    QT_TRANSLATE_NOOP("SetupDBLocation", "Setting up..."),
    QT_TRANSLATE_NOOP("SetupDBLocation", "Select Database Folder"),
]
