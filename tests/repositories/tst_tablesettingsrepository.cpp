// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TableSettingsRepository.h"
#include "support/SettingsRowTest.h"

class tst_TableSettingsRepository final
    : public SettingsRowTestOf<TableSettingsRepository, TableSettings, &TableSettings::layout_mode>
{
    Q_OBJECT

public:
    tst_TableSettingsRepository();
};

tst_TableSettingsRepository::tst_TableSettingsRepository()
    : SettingsRowTestOf(
          {QStringLiteral("table_settings"),
           QStringLiteral("warning [database] Failed to save table_settings: <error text>"),
           QStringLiteral("warning [database] Failed to fetch table_settings: <error text>")},
          {.layout_mode = QStringLiteral("floor_plan")}, {.layout_mode = QStringLiteral("simple")})
{}

ZELVAN_TEST(tst_TableSettingsRepository)
#include "tst_tablesettingsrepository.moc"
