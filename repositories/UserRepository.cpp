// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/UserRepository.h"

#include "repositories/Statement.h"

namespace {
bool isRow(Statement &statement)
{
    return statement.run() && statement.next();
}

/// Of the columns id, username, password and role.
User readUser(const Statement &row)
{
    User user;
    user.id = row.integer(0);
    user.username = row.text(1);
    user.password = row.text(2);
    user.role = row.text(3);
    return user;
}
} // namespace

UserRepository::UserRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto usernameExistsSql = R"(
    SELECT 1 FROM users
    WHERE username = :username AND (deactivated_at IS NULL OR deactivated_at = '')
    LIMIT 1)";

bool UserRepository::usernameExists(const QString &username) const
{
    Statement statement(m_database, usernameExistsSql, {"usernameExists failed:"});
    statement.bind(":username", username);
    return isRow(statement);
}

constexpr auto createUserSql = R"(
    INSERT INTO users (username, password, role, deactivated_at)
    VALUES (:username, :password, :role, NULL))";

bool UserRepository::createUser(const User &user)
{
    Statement statement(m_database, createUserSql, {"createUser failed:"});
    statement.bind(":username", user.username);
    statement.bind(":password", user.password);
    statement.bind(":role", user.role);
    return statement.run();
}

constexpr auto updateSql =
    "UPDATE users SET username = :username, role = :role WHERE id = :user_id";

bool UserRepository::update(const User &user)
{
    Statement statement(m_database, updateSql, {"update failed:"});
    statement.bind(":username", user.username);
    statement.bind(":role", user.role);
    statement.bind(":user_id", user.id);
    return statement.run();
}

constexpr auto updatePasswordSql = "UPDATE users SET password = :password WHERE id = :user_id";

bool UserRepository::updatePassword(const User &user)
{
    Statement statement(m_database, updatePasswordSql, {"updatePassword failed:"});
    statement.bind(":password", user.password);
    statement.bind(":user_id", user.id);
    return statement.run();
}

constexpr auto removeSql =
    "UPDATE users SET deactivated_at = CURRENT_TIMESTAMP WHERE id = :user_id";

bool UserRepository::remove(int userId)
{
    Statement statement(m_database, removeSql, {"remove failed:"});
    statement.bind(":user_id", userId);
    return statement.run();
}

constexpr auto findByIdSql = R"(
    SELECT id, username, password, role, deactivated_at FROM users
    WHERE id = :id AND (deactivated_at IS NULL OR deactivated_at = '')
    LIMIT 1)";

std::optional<User> UserRepository::findById(int id) const
{
    Statement statement(m_database, findByIdSql, {"findById failed:"});
    statement.bind(":id", id);
    if (!isRow(statement)) {
        return std::nullopt;
    }
    User user = readUser(statement);
    user.deactivated_at = statement.text(4);
    return user;
}

constexpr auto findByUsernameSql = R"(
    SELECT id, username, password, role, deactivated_at FROM users
    WHERE username = :username AND (deactivated_at IS NULL OR deactivated_at = ''))";

std::optional<User> UserRepository::findByUsername(const QString &username) const
{
    Statement statement(m_database, findByUsernameSql, {"findByUsername failed:"});
    statement.bind(":username", username);
    if (!isRow(statement)) {
        return std::nullopt;
    }
    // The stamp is left out on purpose: the row is an active user's.
    return readUser(statement);
}

std::optional<bool> UserRepository::isEmpty() const
{
    Statement statement(m_database, "SELECT 1 FROM users LIMIT 1", {"isEmpty failed:"});
    if (!statement.run()) {
        return std::nullopt;
    }
    return !statement.next();
}

QList<User> UserRepository::fetchAll() const
{
    Statement statement(m_database, "SELECT id, username, role, deactivated_at FROM users",
                        {"Failed to fetch all users:"});
    return statement.rows([](const Statement &row) {
        User user;
        user.id = row.integer(0);
        user.username = row.text(1);
        user.role = row.text(2);
        user.deactivated_at = row.text(3);
        return user;
    });
}
