// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TableSettingsRepository.h"

#include "repositories/Statement.h"

namespace {
FailureReport failure(const char *text)
{
    return {text, lcDatabase, QtWarningMsg, FailureReport::Error::Text};
}
} // namespace

TableSettingsRepository::TableSettingsRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto saveSql = R"(
    INSERT INTO table_settings (id, layout_mode) VALUES (1, :layout_mode)
    ON CONFLICT(id) DO UPDATE SET layout_mode = excluded.layout_mode)";

void TableSettingsRepository::save(const TableSettings &settings)
{
    Statement statement(m_database, saveSql, failure("Failed to save table_settings:"));
    statement.bind(":layout_mode", settings.layout_mode);
    // A failure is only logged: saves of settings answer nothing.
    std::ignore = statement.run();
}

constexpr auto fetchSql = "SELECT id, layout_mode FROM table_settings LIMIT 1";

std::optional<TableSettings> TableSettingsRepository::fetch() const
{
    Statement statement(m_database, fetchSql, failure("Failed to fetch table_settings:"));
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    TableSettings settings;
    settings.id = statement.integer(0);
    settings.layout_mode = statement.text(1);
    return settings;
}
