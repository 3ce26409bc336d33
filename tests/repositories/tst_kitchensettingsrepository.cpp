// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/KitchenSettingsRepository.h"
#include "support/SettingsRowTest.h"

class tst_KitchenSettingsRepository final
    : public SettingsRowTestOf<KitchenSettingsRepository, KitchenSettings, &KitchenSettings::mode,
                               &KitchenSettings::ticket_print_timing,
                               &KitchenSettings::require_ready_for_checkout,
                               &KitchenSettings::allow_edit_after_send>
{
    Q_OBJECT

public:
    tst_KitchenSettingsRepository();
};

tst_KitchenSettingsRepository::tst_KitchenSettingsRepository()
    : SettingsRowTestOf(
          {QStringLiteral("kitchen_settings"),
           QStringLiteral("warning [database] Failed to save kitchen_settings: <error text>"),
           QStringLiteral("warning [database] Failed to fetch kitchen_settings: <error text>")},
          {.mode = QStringLiteral("hybrid"),
           .ticket_print_timing = QStringLiteral("order_created"),
           .require_ready_for_checkout = true,
           .allow_edit_after_send = false},
          {.mode = QStringLiteral("none"),
           .ticket_print_timing = QStringLiteral("manual"),
           .require_ready_for_checkout = false,
           .allow_edit_after_send = true})
{}

ZELVAN_TEST(tst_KitchenSettingsRepository)
#include "tst_kitchensettingsrepository.moc"
