// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/RegionalSettingsRepository.h"
#include "support/SettingsRowTest.h"

class tst_RegionalSettingsRepository final
    : public SettingsRowTestOf<RegionalSettingsRepository, RegionalSettings,
                               &RegionalSettings::locale, &RegionalSettings::currency_code>
{
    Q_OBJECT

public:
    tst_RegionalSettingsRepository();
};

tst_RegionalSettingsRepository::tst_RegionalSettingsRepository()
    : SettingsRowTestOf(
          {QStringLiteral("regional_settings"),
           QStringLiteral("warning [database] Failed to save regional setting: <error text>"),
           QStringLiteral("warning [database] Failed to fetch regional setting: <error text>")},
          {.locale = QStringLiteral("zh_CN"), .currency_code = QStringLiteral("CNY")},
          {.locale = QStringLiteral("en_US"), .currency_code = QStringLiteral("EUR")})
{}

ZELVAN_TEST(tst_RegionalSettingsRepository)
#include "tst_regionalsettingsrepository.moc"
