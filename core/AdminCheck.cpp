// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/AdminCheck.h"

#include <QSqlDatabase>
#include <QSqlQuery>

namespace {
const QString connectionName = QStringLiteral("check_users");

bool findAdmin(const QString &path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
    database.setDatabaseName(path);
    if (!database.open()) {
        return false;
    }
    bool found = false;
    {
        QSqlQuery query(database);
        found = query.exec(QStringLiteral("SELECT 1 FROM users WHERE role = 'admin' "
                                          "AND deactivated_at IS NULL LIMIT 1")) &&
                query.next();
    }
    database.close();
    return found;
}
} // namespace

bool AdminCheck::hasActiveAdmin(const QString &path)
{
    if (QSqlDatabase::contains(connectionName)) {
        QSqlDatabase::removeDatabase(connectionName);
    }
    const bool found = findAdmin(path);
    QSqlDatabase::removeDatabase(connectionName);
    return found;
}
