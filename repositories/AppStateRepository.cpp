// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/AppStateRepository.h"

#include "repositories/Statement.h"

AppStateRepository::AppStateRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto saveSql = R"(
    INSERT INTO app_state (key, value) VALUES (:key, :value)
    ON CONFLICT(key) DO UPDATE SET value = excluded.value, updated_at = CURRENT_TIMESTAMP)";

bool AppStateRepository::save(const AppStateEntry &entry)
{
    Statement statement(m_database, saveSql, {"Failed to save app state:"});
    statement.bind(":key", entry.key);
    statement.bind(":value", entry.value);
    return statement.run();
}

bool AppStateRepository::exists(const QString &key) const
{
    Statement statement(m_database, "SELECT 1 FROM app_state WHERE key = :key LIMIT 1",
                        {"Failed to check app state existence:"});
    statement.bind(":key", key);
    return statement.run() && statement.next();
}

bool AppStateRepository::remove(const QString &key)
{
    Statement statement(m_database, "DELETE FROM app_state WHERE key = :key",
                        {"Failed to delete app state:"});
    statement.bind(":key", key);
    return statement.run();
}

std::optional<QString> AppStateRepository::fetch(const QString &key) const
{
    Statement statement(m_database, "SELECT value FROM app_state WHERE key = :key",
                        {"Failed to get app state:"});
    statement.bind(":key", key);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return statement.text(0);
}
