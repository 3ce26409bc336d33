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
    // The second attempt is the very same call: kept as it has always been.
    if (!load() && !load()) {
        return false;
    }
    return QCoreApplication::installTranslator(&translator);
}
