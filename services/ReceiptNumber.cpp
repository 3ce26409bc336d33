// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/ReceiptNumber.h"

#include "core/Arithmetic.h"
#include "repositories/AppStateRepository.h"

#include <QDate>

#include <optional>

namespace {
const QString yearKey = QStringLiteral("receipt.year");
const QString counterKey = QStringLiteral("receipt.counter");
} // namespace

QString ReceiptNumber::take(AppStateRepository &appState)
{
    const int year = QDate::currentDate().year();
    // Texts that are no number, or too large for one, count as 0.
    const std::optional<QString> storedYear = appState.fetch(yearKey);
    const std::optional<QString> storedCounter = appState.fetch(counterKey);
    int counter = storedCounter.value_or(QStringLiteral("1")).toInt();
    if (!storedYear || storedYear->toInt() != year) {
        counter = 1;
    }
    const QString number = QStringLiteral("%1-%2").arg(
        QString::number(year), QStringLiteral("%1").arg(counter, 6, 10, QLatin1Char('0')));
    appState.save({yearKey, QString::number(year)});
    appState.save({counterKey, QString::number(Arithmetic::wrapAdd(counter, 1))});
    return number;
}
