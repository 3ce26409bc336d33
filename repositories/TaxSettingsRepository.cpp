// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TaxSettingsRepository.h"

#include "repositories/Statement.h"

namespace {
FailureReport failure(const char *text)
{
    return {text, lcDatabase, QtWarningMsg, FailureReport::Error::Text};
}
} // namespace

TaxSettingsRepository::TaxSettingsRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto saveSql = R"(
    INSERT INTO tax_settings (id, enabled, rate, registration_number, name)
    VALUES (1, :enabled, :rate, :registration_number, :name)
    ON CONFLICT(id) DO UPDATE SET enabled = excluded.enabled, rate = excluded.rate,
        registration_number = excluded.registration_number, name = excluded.name)";

void TaxSettingsRepository::save(const TaxSettings &settings)
{
    Statement statement(m_database, saveSql, failure("Failed to save tax_settings:"));
    statement.bind(":enabled", settings.enabled);
    statement.bind(":rate", settings.rate);
    statement.bind(":registration_number", settings.registration_number);
    statement.bind(":name", settings.name);
    // A failure is only logged: saves of settings answer nothing.
    std::ignore = statement.run();
}

constexpr auto fetchSql = R"(
    SELECT id, enabled, rate, registration_number, name, created_at FROM tax_settings
    LIMIT 1)";

std::optional<TaxSettings> TaxSettingsRepository::fetch() const
{
    Statement statement(m_database, fetchSql, failure("Failed to fetch tax_settings:"));
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    TaxSettings settings;
    settings.id = statement.integer(0);
    settings.enabled = statement.boolean(1);
    settings.rate = statement.integer(2);
    settings.registration_number = statement.optionalText(3);
    settings.name = statement.text(4);
    settings.created_at = statement.text(5);
    return settings;
}
