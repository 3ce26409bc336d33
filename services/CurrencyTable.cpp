// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CurrencyTable.h"

#include <QHash>

namespace {
constexpr int usualDecimals = 2;
const QString prefix = QStringLiteral("prefix");

QHash<QString, CurrencyInfo> makeTable()
{
    const CurrencyInfo rows[] = {
        {QStringLiteral("USD"), QStringLiteral("$"), QStringLiteral("US Dollar"), 2, prefix},
        {QStringLiteral("EUR"), QStringLiteral("\u20ac"), QStringLiteral("Euro"), 2, prefix},
        {QStringLiteral("JPY"), QStringLiteral("\u00a5"), QStringLiteral("Japanese Yen"), 0,
         prefix},
        {QStringLiteral("MYR"), QStringLiteral("RM"), QStringLiteral("Malaysian Ringgit"), 2,
         prefix},
        {QStringLiteral("GBP"), QStringLiteral("\u00a3"), QStringLiteral("British Pound"), 2,
         prefix},
        {QStringLiteral("CNY"), QStringLiteral("\u00a5"), QStringLiteral("Chinese Yuan"), 2,
         prefix},
    };
    QHash<QString, CurrencyInfo> table;
    for (const CurrencyInfo &row : rows) {
        table.insert(row.code, row);
    }
    return table;
}
} // namespace

CurrencyInfo currencyInfo(const QString &code)
{
    static const QHash<QString, CurrencyInfo> table = makeTable();
    return table.value(code, {code, QStringLiteral("$"), QStringLiteral("Unknown Currency"),
                              usualDecimals, prefix});
}
