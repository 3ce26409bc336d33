// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/KitchenSettingsRepository.h"

#include "repositories/Statement.h"

namespace {
FailureReport failure(const char *text)
{
    return {text, lcDatabase, QtWarningMsg, FailureReport::Error::Text};
}
} // namespace

KitchenSettingsRepository::KitchenSettingsRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto saveSql = R"(
    INSERT INTO kitchen_settings (id, mode, ticket_print_timing, require_ready_for_checkout,
        allow_edit_after_send)
    VALUES (1, :mode, :ticket_print_timing, :require_ready_for_checkout, :allow_edit_after_send)
    ON CONFLICT(id) DO UPDATE SET mode = excluded.mode,
        ticket_print_timing = excluded.ticket_print_timing,
        require_ready_for_checkout = excluded.require_ready_for_checkout,
        allow_edit_after_send = excluded.allow_edit_after_send)";

void KitchenSettingsRepository::save(const KitchenSettings &settings)
{
    Statement statement(m_database, saveSql, failure("Failed to save kitchen_settings:"));
    statement.bind(":mode", settings.mode);
    statement.bind(":ticket_print_timing", settings.ticket_print_timing);
    statement.bind(":require_ready_for_checkout", settings.require_ready_for_checkout);
    statement.bind(":allow_edit_after_send", settings.allow_edit_after_send);
    // A failure is only logged: saves of settings answer nothing.
    std::ignore = statement.run();
}

constexpr auto fetchSql = R"(
    SELECT id, mode, ticket_print_timing, require_ready_for_checkout, allow_edit_after_send
    FROM kitchen_settings
    LIMIT 1)";

std::optional<KitchenSettings> KitchenSettingsRepository::fetch() const
{
    Statement statement(m_database, fetchSql, failure("Failed to fetch kitchen_settings:"));
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    KitchenSettings settings;
    settings.id = statement.integer(0);
    settings.mode = statement.text(1);
    settings.ticket_print_timing = statement.text(2);
    settings.require_ready_for_checkout = statement.boolean(3);
    settings.allow_edit_after_send = statement.boolean(4);
    return settings;
}
