// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/PreparedStatements.h"

#include <QSqlDriver>
#include <QSqlResult>
#include <QThread>

#include <utility>

namespace {
/// Closing a connection takes the statements' insides away; opened again, it needs new ones.
bool isAlive(const QSqlQuery &query)
{
    const QVariant handle = query.result()->handle();
    return handle.isValid() && *static_cast<void *const *>(handle.constData()) != nullptr;
}
} // namespace

PreparedStatements *PreparedStatements::of(const QSqlDatabase &database)
{
    QSqlDriver *driver = database.driver();
    if (!database.isOpen() || driver->thread() != QThread::currentThread()) {
        return nullptr;
    }
    auto *statements = driver->findChild<PreparedStatements *>({}, Qt::FindDirectChildrenOnly);
    return statements != nullptr ? statements : new PreparedStatements(driver);
}

std::optional<QSqlQuery> PreparedStatements::take(const QByteArray &sql)
{
    const auto entry = m_waiting.find(sql);
    if (entry == m_waiting.end()) {
        return std::nullopt;
    }
    std::optional<QSqlQuery> query = std::exchange(entry->second, std::nullopt);
    return query && isAlive(*query) ? std::move(query) : std::nullopt;
}

void PreparedStatements::keep(const QByteArray &sql, QSqlQuery &&query)
{
    query.finish();
    const auto entry = m_waiting.find(sql);
    if (entry != m_waiting.end()) {
        entry->second = std::move(query);
    } else {
        m_waiting.emplace(QByteArray(sql.constData(), sql.size()), std::move(query));
    }
}

PreparedStatements::PreparedStatements(QObject *driver)
    : QObject(driver)
{}
