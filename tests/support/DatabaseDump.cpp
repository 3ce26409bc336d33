// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/DatabaseDump.h"

#include "support/TestDatabase.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace {
QStringList tableNames(const TestDatabase &database)
{
    QSqlQuery query(database.handle());
    query.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"));
    QStringList names;
    while (query.next()) {
        names.append(query.value(0).toString());
    }
    return names;
}

QString rowText(const QSqlQuery &query, const QString &table)
{
    QString text = table;
    const QSqlRecord row = query.record();
    for (int i = 0; i < row.count(); ++i) {
        const QString value = row.isNull(i) ? QStringLiteral("NULL") : row.value(i).toString();
        text += QStringLiteral(" %1=%2").arg(row.fieldName(i), value);
    }
    return text;
}
} // namespace

QStringList dumpOf(const TestDatabase &database)
{
    QStringList lines;
    for (const QString &table : tableNames(database)) {
        QSqlQuery query(database.handle());
        query.exec(QStringLiteral("SELECT * FROM \"%1\" ORDER BY rowid").arg(table));
        while (query.next()) {
            lines.append(rowText(query, table));
        }
    }
    return lines;
}
