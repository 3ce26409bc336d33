// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipSettingsRepository.h"

#include "repositories/Statement.h"

MembershipSettingsRepository::MembershipSettingsRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto getSql = R"(
    SELECT id, enabled, earn_points, earn_spend, redeem_points, redeem_value, earn_on
    FROM membership_settings
    LIMIT 1)";

std::optional<MembershipSettings> MembershipSettingsRepository::get()
{
    Statement statement(m_database, getSql,
                        {"Failed to fetch membership_settings:", lcMembership, QtWarningMsg,
                         FailureReport::Error::Text});
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    MembershipSettings settings;
    settings.id = statement.integer(0);
    settings.enabled = statement.boolean(1);
    settings.earn_points = statement.integer(2);
    settings.earn_spend = statement.integer(3);
    settings.redeem_points = statement.integer(4);
    settings.redeem_value = statement.integer(5);
    settings.earn_on = statement.text(6);
    return settings;
}

constexpr auto saveSql = R"(
    INSERT INTO membership_settings
        (id, enabled, earn_points, earn_spend, redeem_points, redeem_value, earn_on)
    VALUES (1, :enabled, :earn_points, :earn_spend, :redeem_points, :redeem_value, :earn_on)
    ON CONFLICT(id) DO UPDATE SET enabled = excluded.enabled,
        earn_points = excluded.earn_points, earn_spend = excluded.earn_spend,
        redeem_points = excluded.redeem_points, redeem_value = excluded.redeem_value,
        earn_on = excluded.earn_on)";

void MembershipSettingsRepository::save(const MembershipSettings &settings)
{
    Statement statement(m_database, saveSql,
                        {"Failed to save membership_settings:", lcMembership, QtWarningMsg,
                         FailureReport::Error::Text});
    statement.bind(":enabled", settings.enabled);
    statement.bind(":earn_points", settings.earn_points);
    statement.bind(":earn_spend", settings.earn_spend);
    statement.bind(":redeem_points", settings.redeem_points);
    statement.bind(":redeem_value", settings.redeem_value);
    statement.bind(":earn_on", settings.earn_on);
    // A failure is only logged: saves of settings answer nothing.
    std::ignore = statement.run();
}
