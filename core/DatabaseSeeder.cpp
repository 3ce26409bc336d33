// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseSeeder.h"

#include "core/Identity.h"
#include "core/Logging.h"
#include "repositories/RegionalSettingsRepository.h"

#include <QDate>
#include <QLocale>
#include <QSqlError>
#include <QSqlQuery>

#include <array>
#include <utility>

namespace {
struct SettingsInsert
{
    const char *sql;
    const char *failureText;
};

constexpr std::array<SettingsInsert, 4> settingsInserts{{
    {R"(INSERT OR IGNORE INTO tax_settings (id, enabled, rate, name, registration_number)
        VALUES (1, 0, 100, '', ''))",
     "Failed to seed tax settings:"},
    {R"(INSERT OR IGNORE INTO membership_settings
            (id, enabled, earn_points, earn_spend, redeem_points, redeem_value, earn_on)
        VALUES (1, 0, 1, 1000, 100, 100, 'total'))",
     "Failed to seed membership settings:"},
    {R"(INSERT OR IGNORE INTO kitchen_settings
            (id, mode, ticket_print_timing, require_ready_for_checkout, allow_edit_after_send)
        VALUES (1, 'none', 'manual', 0, 0))",
     "Failed to seed kitchen settings:"},
    {R"(INSERT OR IGNORE INTO table_settings (id, layout_mode) VALUES (1, 'simple'))",
     "Failed to seed table settings:"},
}};

/// For systems whose locale names no currency; empty for any other country.
QString currencyOfTerritory(QLocale::Territory territory)
{
    switch (territory) {
    case QLocale::Malaysia:
        return QStringLiteral("MYR");
    case QLocale::China:
        return QStringLiteral("CNY");
    case QLocale::UnitedStates:
        return QStringLiteral("USD");
    case QLocale::France:
    case QLocale::Germany:
    case QLocale::Italy:
    case QLocale::Spain:
        return QStringLiteral("EUR");
    default:
        // Not a null text: the column is NOT NULL and an empty code is what it then holds.
        return QStringLiteral("");
    }
}
} // namespace

DatabaseSeeder::DatabaseSeeder(const QSqlDatabase &database)
    : m_database(database)
{}

bool DatabaseSeeder::seedAll()
{
    return seedAppState() && seedSettings();
}

bool DatabaseSeeder::seedAppState()
{
    QSqlQuery query(m_database);
    query.prepare(
        QStringLiteral("INSERT OR IGNORE INTO app_state (key, value) VALUES (:key, :value)"));
    const std::array<std::pair<QString, QString>, 3> rows{{
        {Identity::appIdKey, Identity::appId},
        {QStringLiteral("receipt.counter"), QStringLiteral("0")},
        {QStringLiteral("receipt.year"), QString::number(QDate::currentDate().year())},
    }};
    for (const auto &[key, value] : rows) {
        query.bindValue(QStringLiteral(":key"), key);
        query.bindValue(QStringLiteral(":value"), value);
        if (!query.exec()) {
            qCWarning(lcSeeder) << "Failed to seed app state:" << query.lastError();
            return false;
        }
    }
    return true;
}

bool DatabaseSeeder::seedSettings()
{
    if (!m_database.transaction()) {
        qCWarning(lcSeeder) << "Failed to start seed transaction:" << m_database.lastError();
        return false;
    }
    for (const SettingsInsert &insert : settingsInserts) {
        if (!runSettingsInsert(insert.sql, insert.failureText)) {
            m_database.rollback();
            return false;
        }
    }
    if (!m_database.commit()) {
        qCWarning(lcSeeder) << "Failed to commit settings seed:" << m_database.lastError();
        m_database.rollback();
        return false;
    }
    return true;
}

bool DatabaseSeeder::runSettingsInsert(const char *sql, const char *failureText)
{
    QSqlQuery query(m_database);
    if (query.exec(QString::fromLatin1(sql))) {
        return true;
    }
    qCWarning(lcSeeder) << failureText << query.lastError();
    return false;
}

RegionalSettings DatabaseSeeder::detectRegionalDefaults()
{
    const QLocale system = QLocale::system();
    RegionalSettings settings;
    settings.locale = system.name();
    settings.currency_code = system.currencySymbol(QLocale::CurrencyIsoCode);
    if (settings.currency_code.isEmpty()) {
        settings.currency_code = currencyOfTerritory(system.territory());
    }
    return settings;
}

void DatabaseSeeder::seedRegionalSettings(RegionalSettingsRepository &repository)
{
    if (repository.fetch()) {
        return;
    }
    repository.save(detectRegionalDefaults());
}
