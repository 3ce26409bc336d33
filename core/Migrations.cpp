// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Migrations.h"

#include "core/Logging.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <optional>

namespace {
/// The script's text from the resources, else from the sources two levels above the program, which
/// serves a program run from a build folder. Absent when neither can be opened.
std::optional<QByteArray> readScript(const QString &name)
{
    QFile resource(QStringLiteral(":/migrations/") + name);
    if (resource.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return resource.readAll();
    }
    QDir folder(QCoreApplication::applicationDirPath());
    folder.cdUp();
    folder.cdUp();
    const QString baseName = name.split(QLatin1Char('/')).constLast();
    const QString fallback =
        folder.absoluteFilePath(QStringLiteral("core/database/migrations/") + baseName);
    QFile source(fallback);
    if (source.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return source.readAll();
    }
    qCCritical(lcMigration) << "Cannot open migration file:" << name << "Tried:" << fallback;
    return std::nullopt;
}

/// Runs every statement of one script. Splitting at each semicolon is all the parsing there is:
/// the scripts hold none but the last.
bool runScript(const QSqlDatabase &database, const QString &name, const QByteArray &script)
{
    const QStringList parts =
        QString::fromUtf8(script).split(QLatin1Char(';'), Qt::SkipEmptyParts, Qt::CaseSensitive);
    for (const QString &part : parts) {
        const QString statement = part.trimmed();
        if (statement.isEmpty()) {
            continue;
        }
        QSqlQuery query(database);
        if (!query.exec(statement)) {
            qCCritical(lcMigration) << "Migration failed:" << name << "\nStatement:" << statement
                                    << "\nError:" << query.lastError().text();
            return false;
        }
    }
    return true;
}

/// Applies one script and records it, unless it is recorded already.
bool applyMigration(const QSqlDatabase &database, const QString &name)
{
    {
        QSqlQuery check(database);
        check.prepare(QStringLiteral("SELECT 1 FROM applied_migrations WHERE migration_name = ?"));
        check.addBindValue(name);
        if (!check.exec()) {
            qCCritical(lcMigration) << "Failed to check migration:" << check.lastError().text();
            return false;
        }
        if (check.next()) {
            return true;
        }
    }
    const std::optional<QByteArray> script = readScript(name);
    if (!script || !runScript(database, name, *script)) {
        return false;
    }
    QSqlQuery record(database);
    record.prepare(QStringLiteral(
        "INSERT INTO applied_migrations (migration_name, applied_at) VALUES (?, ?)"));
    record.addBindValue(name);
    record.addBindValue(QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    if (!record.exec()) {
        qCCritical(lcMigration) << "Failed to record migration:" << record.lastError().text();
        return false;
    }
    qCInfo(lcMigration) << "Migration applied:" << name;
    return true;
}

bool createMigrationTable(const QSqlDatabase &database)
{
    QSqlQuery query(database);
    if (query.exec(QStringLiteral("CREATE TABLE IF NOT EXISTS applied_migrations ("
                                  "migration_name TEXT PRIMARY KEY, applied_at TEXT NOT NULL)"))) {
        return true;
    }
    qCCritical(lcMigration) << "Failed to create applied_migrations:" << query.lastError().text();
    return false;
}
} // namespace

const QStringList &migrationNames()
{
    static const QStringList names{
        QStringLiteral("core/database/migrations/001_create_users.sql"),
        QStringLiteral("core/database/migrations/002_create_categories.sql"),
        QStringLiteral("core/database/migrations/003_create_menu.sql"),
        QStringLiteral("core/database/migrations/004_create_tables.sql"),
        QStringLiteral("core/database/migrations/005_create_order_sessions.sql"),
        QStringLiteral("core/database/migrations/006_create_order_items.sql"),
        QStringLiteral("core/database/migrations/007_create_orders.sql"),
        QStringLiteral("core/database/migrations/008_create_restaurant.sql"),
        QStringLiteral("core/database/migrations/009_create_printers.sql"),
        QStringLiteral("core/database/migrations/010_create_tax_settings.sql"),
        QStringLiteral("core/database/migrations/011_create_membership_settings.sql"),
        QStringLiteral("core/database/migrations/012_create_memberships.sql"),
        QStringLiteral("core/database/migrations/013_create_membership_transactions.sql"),
        QStringLiteral("core/database/migrations/014_create_kitchen_settings.sql"),
        QStringLiteral("core/database/migrations/015_create_regional_settings.sql"),
        QStringLiteral("core/database/migrations/016_create_floors.sql"),
        QStringLiteral("core/database/migrations/017_create_canvas_items.sql"),
        QStringLiteral("core/database/migrations/018_create_table_settings.sql"),
        QStringLiteral("core/database/migrations/019_create_reservations.sql"),
        QStringLiteral("core/database/migrations/020_create_app_state.sql"),
        QStringLiteral("core/database/migrations/021_create_receipt_snapshot.sql"),
    };
    return names;
}

QStringList schemaTables()
{
    QStringList tables{QStringLiteral("applied_migrations")};
    for (const QString &name : migrationNames()) {
        // Each script makes the one table that it is named for.
        tables += name.section(QStringLiteral("_create_"), 1).section(QLatin1Char('.'), 0, 0);
    }
    return tables;
}

bool applyPendingMigrations(const QSqlDatabase &database)
{
    if (!createMigrationTable(database)) {
        return false;
    }
    for (const QString &name : migrationNames()) {
        if (!applyMigration(database, name)) {
            return false;
        }
    }
    return true;
}
