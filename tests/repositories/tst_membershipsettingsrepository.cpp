// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipSettingsRepository.h"
#include "support/SettingsRowTest.h"

class tst_MembershipSettingsRepository final
    : public SettingsRowTestOf<MembershipSettingsRepository, MembershipSettings,
                               &MembershipSettings::enabled, &MembershipSettings::earn_points,
                               &MembershipSettings::earn_spend, &MembershipSettings::redeem_points,
                               &MembershipSettings::redeem_value, &MembershipSettings::earn_on>
{
    Q_OBJECT

public:
    tst_MembershipSettingsRepository();
};

tst_MembershipSettingsRepository::tst_MembershipSettingsRepository()
    : SettingsRowTestOf(
          {QStringLiteral("membership_settings"),
           QStringLiteral("warning [membership] Failed to save membership_settings: <error text>"),
           QStringLiteral(
               "warning [membership] Failed to fetch membership_settings: <error text>")},
          {.enabled = true,
           .earn_points = 2,
           .earn_spend = 1500,
           .redeem_points = 50,
           .redeem_value = 70,
           .earn_on = QStringLiteral("subtotal")},
          {.enabled = false,
           .earn_points = 3,
           .earn_spend = 1600,
           .redeem_points = 60,
           .redeem_value = 80,
           .earn_on = QStringLiteral("total")})
{}

ZELVAN_TEST(tst_MembershipSettingsRepository)
#include "tst_membershipsettingsrepository.moc"
