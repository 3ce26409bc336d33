// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/User.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The SQL of `users`. Failures are warnings in the log.
class UserRepository final
{
public:
    explicit UserRepository(const QSqlDatabase &database);

    /// Whether an active user has that name; case-sensitive. False on failure.
    [[nodiscard]] bool usernameExists(const QString &username) const;
    /// Inserts an active user.
    bool createUser(const User &user);
    /// Name and role by id; `updated_at` stays, as it is meant.
    bool update(const User &user);
    bool updatePassword(const User &user);
    /// Deactivates: users are never deleted.
    bool remove(int userId);

    /// Active users only.
    [[nodiscard]] std::optional<User> findById(int id) const;
    /// Active users only; `deactivated_at` is left empty.
    [[nodiscard]] std::optional<User> findByUsername(const QString &username) const;
    /// Whether the table has no row at all; absent when the query failed.
    [[nodiscard]] std::optional<bool> isEmpty() const;
    /// Every user, deactivated ones too, without passwords.
    [[nodiscard]] QList<User> fetchAll() const;

private:
    QSqlDatabase m_database;
};
