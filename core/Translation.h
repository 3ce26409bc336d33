// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

class QTranslator;
class RegionalSettingsRepository;

/// The store's language: its stored locale, or the operating system's where none is stored.
[[nodiscard]] QString chosenLanguage(const RegionalSettingsRepository &regionalSettings);

/// Loads the catalogue of that language and installs it. Where there is none, the English source
/// texts stand and nothing is logged. True when a catalogue was installed.
bool installTranslation(QTranslator &translator, const QString &language);
