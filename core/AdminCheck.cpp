// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/AdminCheck.h"

#include "core/DatabaseCheck.h"
#include "core/Patience.h"
#include "core/ShortLivedConnection.h"

#include <QSqlQuery>

bool AdminCheck::hasActiveAdmin(const QString &path)
{
    constexpr std::chrono::seconds longEnough{1};
    ShortLivedConnection connection(QStringLiteral("check_users"), path);
    if (!connection.handle().open()) {
        return false;
    }
    const Patience patience(connection.handle(), longEnough);
    if (!DatabaseCheck::schemaProblem(connection.handle(), {QStringLiteral("users")}).isEmpty()) {
        return false;
    }
    QSqlQuery query(connection.handle());
    return query.exec(QStringLiteral("SELECT 1 FROM users WHERE role = 'admin' "
                                     "AND deactivated_at IS NULL LIMIT 1")) &&
           query.next();
}
