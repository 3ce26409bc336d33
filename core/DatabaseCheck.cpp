// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DatabaseCheck.h"

#include "core/Logging.h"
#include "core/Migrations.h"
#include "core/Patience.h"
#include "core/ShortLivedConnection.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

namespace {
/// A second, and one more for each MiB: a slow stick takes no longer, what takes longer has no end.
std::chrono::milliseconds patienceFor(const QString &path)
{
    return std::chrono::milliseconds(1000 + QFileInfo(path).size() * 1000 / (1 << 20));
}

/// Nothing is written, and the schema may call no function that does more than compute.
void distrust(const QSqlDatabase &database)
{
    QSqlQuery query(database);
    query.exec(QStringLiteral("PRAGMA trusted_schema = OFF"));
    query.exec(QStringLiteral("PRAGMA cell_size_check = ON"));
    query.exec(QStringLiteral("PRAGMA query_only = ON"));
}

/// Empty for none.
QString damage(const QSqlDatabase &database)
{
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("PRAGMA quick_check(1)")) || !query.next()) {
        return query.lastError().text();
    }
    const QString answer = query.value(0).toString();
    return answer == QLatin1String("ok") ? QString() : answer;
}

QString problemOf(const QSqlDatabase &database)
{
    const QString problem = DatabaseCheck::schemaProblem(database, schemaTables());
    return problem.isEmpty() ? damage(database) : problem;
}
} // namespace

bool DatabaseCheck::isSound(const QString &path)
{
    ShortLivedConnection connection(QStringLiteral("structure_check"), path);
    QString problem;
    if (connection.handle().open()) {
        const Patience patience(connection.handle(), patienceFor(path));
        distrust(connection.handle());
        problem = problemOf(connection.handle());
    } else {
        problem = connection.handle().lastError().text();
    }
    if (!problem.isEmpty()) {
        qCWarning(lcDatabase) << "Failed to check database structure:" << problem;
    }
    return problem.isEmpty();
}

QString DatabaseCheck::schemaProblem(const QSqlDatabase &database, const QStringList &tables)
{
    // SQLite itself holds the columns to what the texts of the schema say.
    QSqlQuery query(database);
    const QString sql = QStringLiteral(R"(
        SELECT name FROM sqlite_master
        WHERE type <> 'index' AND lower(tbl_name) IN ('%1')
          AND NOT (type = 'table' AND rootpage > 0 AND sql LIKE 'CREATE TABLE %')
        LIMIT 1)");
    if (!query.exec(sql.arg(tables.join(QLatin1String("','"))))) {
        return query.lastError().text();
    }
    return query.next() ? query.value(0).toString() + QStringLiteral(" is no ordinary table")
                        : QString();
}
