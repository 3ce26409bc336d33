// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestDatabase.h"

#include "core/DatabaseManager.h"

#include <QSqlError>
#include <QSqlQuery>

namespace {
/// The rows the first run writes, told here once more so that a wrong seed cannot hide.
const char *const seedStatements[] = {
    "INSERT INTO app_state (key, value) VALUES ('app.id', 'com.zelvan.pos'), "
    "('receipt.counter', '0'), ('receipt.year', strftime('%Y', 'now', 'localtime'))",
    "INSERT INTO tax_settings (id, enabled, rate, name, registration_number) "
    "VALUES (1, 0, 100, '', '')",
    "INSERT INTO membership_settings (id, enabled, earn_points, earn_spend, redeem_points, "
    "redeem_value, earn_on) VALUES (1, 0, 1, 1000, 100, 100, 'total')",
    "INSERT INTO kitchen_settings (id, mode, ticket_print_timing, require_ready_for_checkout, "
    "allow_edit_after_send) VALUES (1, 'none', 'manual', 0, 0)",
    "INSERT INTO table_settings (id, layout_mode) VALUES (1, 'simple')",
};

[[noreturn]] void refuse(const QString &sql, const QSqlError &error)
{
    qFatal("%s: %s", qPrintable(sql), qPrintable(error.text()));
    abort();
}
} // namespace

TestDatabase::TestDatabase(Content content)
{
    if (!DatabaseManager::initialize(path())) {
        qFatal("the test database cannot be made");
    }
    if (content == Content::Seeded) {
        seed();
    }
}

TestDatabase::~TestDatabase()
{
    DatabaseManager::closeDatabase();
}

QString TestDatabase::path() const
{
    return m_folder.filePath(QStringLiteral("Zelvan.db"));
}

QSqlDatabase TestDatabase::handle() const
{
    return DatabaseManager::connection();
}

void TestDatabase::run(const QString &sql) const
{
    QSqlQuery query(handle());
    if (!query.exec(sql)) {
        refuse(sql, query.lastError());
    }
}

QVariant TestDatabase::value(const QString &sql) const
{
    QSqlQuery query(handle());
    if (!query.exec(sql)) {
        refuse(sql, query.lastError());
    }
    return query.next() ? query.value(0) : QVariant();
}

int TestDatabase::insert(const QString &sql) const
{
    QSqlQuery query(handle());
    if (!query.exec(sql)) {
        refuse(sql, query.lastError());
    }
    return query.lastInsertId().toInt();
}

void TestDatabase::reset() const
{
    run(QStringLiteral("PRAGMA foreign_keys = OFF"));
    const QStringList tables = handle().tables();
    for (const QString &table : tables) {
        if (table != QLatin1String("applied_migrations")) {
            run(QStringLiteral("DELETE FROM ") + table);
        }
    }
    run(QStringLiteral("PRAGMA foreign_keys = ON"));
    seed();
}

void TestDatabase::seed() const
{
    for (const char *statement : seedStatements) {
        run(QString::fromLatin1(statement));
    }
}
