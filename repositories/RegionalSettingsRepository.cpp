// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/RegionalSettingsRepository.h"

#include "repositories/Statement.h"

namespace {
FailureReport failure(const char *text)
{
    return {text, lcDatabase, QtWarningMsg, FailureReport::Error::Text};
}
} // namespace

RegionalSettingsRepository::RegionalSettingsRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto saveSql = R"(
    INSERT INTO regional_settings (id, locale, currency_code)
    VALUES (1, :locale, :currency_code)
    ON CONFLICT(id) DO UPDATE SET locale = excluded.locale,
        currency_code = excluded.currency_code)";

void RegionalSettingsRepository::save(const RegionalSettings &settings)
{
    Statement statement(m_database, saveSql, failure("Failed to save regional setting:"));
    statement.bind(":locale", settings.locale);
    statement.bind(":currency_code", settings.currency_code);
    // A failure is only logged: saves of settings answer nothing.
    std::ignore = statement.run();
}

constexpr auto fetchSql = "SELECT id, locale, currency_code FROM regional_settings";

std::optional<RegionalSettings> RegionalSettingsRepository::fetch() const
{
    Statement statement(m_database, fetchSql, failure("Failed to fetch regional setting:"));
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    RegionalSettings settings;
    settings.id = statement.integer(0);
    settings.locale = statement.text(1);
    settings.currency_code = statement.text(2);
    return settings;
}
