// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Translation.h"

#include "repositories/RegionalSettingsRepository.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <optional>

QString chosenLanguage(const RegionalSettingsRepository &regionalSettings)
{
    const std::optional<RegionalSettings> settings = regionalSettings.fetch();
    if (settings && !settings->locale.isEmpty()) {
        return settings->locale;
    }
    return QLocale::system().name();
}

bool installTranslation(QTranslator &translator, const QString &language)
{
    const auto load = [&] {
        return translator.load(QLocale(language), QStringLiteral("app"), QStringLiteral("_"),
                               QStringLiteral(":/i18n"), QString());
    };
    bool loaded = load();
    if (!loaded) {
        // The very same call once more: kept as it has always been.
        loaded = load();
    }
    return loaded && QCoreApplication::installTranslator(&translator);
}
