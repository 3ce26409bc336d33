// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <optional>
#include <unordered_map>

/// The prepared statements of one connection that wait for their next run: most of the work of a
/// small statement is its preparation. They hold no rows and no open read, so they stand in the way
/// of no checkpoint.
///
/// They belong to the connection's driver and go when it goes. The unguarded use of a connection on
/// another thread stays clear of them.
class PreparedStatements final : public QObject
{
    Q_OBJECT

public:
    /// Those of the connection; nullptr where they must not be used: it is closed, or this is not
    /// its thread.
    [[nodiscard]] static PreparedStatements *of(const QSqlDatabase &database);

    /// A statement of exactly this text, now the caller's own; absent where none is waiting.
    [[nodiscard]] std::optional<QSqlQuery> take(const QByteArray &sql);
    /// Takes a statement back, its rows released.
    void keep(const QByteArray &sql, QSqlQuery &&query);

private:
    explicit PreparedStatements(QObject *driver);

    struct Hash
    {
        std::size_t operator()(const QByteArray &sql) const { return qHash(sql); }
    };
    /// An entry is empty while its statement is in use.
    std::unordered_map<QByteArray, std::optional<QSqlQuery>, Hash> m_waiting;
};
