// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/PrintLayout.h"

#include "repositories/RegionalSettingsRepository.h"

#include <QDateTime>

namespace PrintLayout {

QString paperText(int paperWidth)
{
    return paperWidth < 1 ? QStringLiteral("58mm") : QStringLiteral("%1mm").arg(paperWidth);
}

int lineWidth(int paperWidth)
{
    return paperText(paperWidth) == QLatin1String("58mm") ? 32 : 48;
}

QString dashes(int lineWidth)
{
    return QString(lineWidth, QLatin1Char('-'));
}

int columns(QStringView text)
{
    int count = 0;
    for (const QChar unit : text) {
        count += unit.unicode() < 128 ? 1 : 2;
    }
    return count;
}

QString twoColumnRow(const QString &left, const QString &right, int lineWidth)
{
    const int padding = qMax(1, lineWidth - columns(left) - columns(right));
    return left + QString(padding, QLatin1Char(' ')) + right;
}

QLocale localeFor(const RegionalSettingsRepository &regionalSettings)
{
    const auto settings = regionalSettings.fetch();
    return settings && !settings->locale.isEmpty() ? QLocale(settings->locale) : QLocale();
}

QString money(const QLocale &locale, double units)
{
    return locale.toString(units, 'f', 2);
}

QString shortDate(const QLocale &locale, const QDateTime &local)
{
    return locale.toString(local.date(), QLocale::ShortFormat);
}

QString timeOfDay(const QDateTime &local)
{
    return local.time().toString(QStringLiteral("HH:mm:ss"));
}

} // namespace PrintLayout
