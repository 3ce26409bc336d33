// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

class QDateTime;
class RegionalSettingsRepository;

/// What all documents agree on about paper: widths, columns, rows, and how the store writes dates
/// and amounts.
namespace PrintLayout {

/// "58mm" for a width below 1, otherwise the number with "mm".
[[nodiscard]] QString paperText(int paperWidth);

/// Columns of a line: 32 on "58mm", 48 on any other paper.
[[nodiscard]] int lineWidth(int paperWidth);

/// A dash for every column of the line.
[[nodiscard]] QString dashes(int lineWidth);

/// A UTF-16 code unit below 128 counts one column, any other two (a surrogate pair thus four).
[[nodiscard]] int columns(QStringView text);

/// Left and right with the blanks that fill the line between them, at least one. Nothing is wrapped
/// or cut.
[[nodiscard]] QString twoColumnRow(const QString &left, const QString &right, int lineWidth);

/// The locale of the regional settings, read anew at each call; the default locale when there is no
/// row or it names none.
[[nodiscard]] QLocale localeFor(const RegionalSettingsRepository &regionalSettings);

/// An amount in currency units as the locale writes it with two decimals, without a symbol.
[[nodiscard]] QString money(const QLocale &locale, double units);

/// The date of a local time in the locale's short format.
[[nodiscard]] QString shortDate(const QLocale &locale, const QDateTime &local);

/// The time of day of a local time as "HH:mm:ss", in every locale.
[[nodiscard]] QString timeOfDay(const QDateTime &local);

} // namespace PrintLayout
