// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/AuthService.h"

#include "core/Logging.h"
#include "core/PasswordHasher.h"
#include "repositories/UserRepository.h"

AuthService::AuthService(UserRepository *users, QObject *parent)
    : QObject(parent)
    , m_users(users)
{}

bool AuthService::login(const QString &username, const QString &password)
{
    const std::optional<User> user = m_users->findByUsername(username);
    if (!user || !verifyPassword(password, user->password)) {
        return false;
    }
    // Neither this nor the logout tells anyone: bindings keep what they read.
    m_currentUser = user;
    return true;
}

void AuthService::logout()
{
    m_currentUser.reset();
}

bool AuthService::isFirstAdminSetupNeeded() const
{
    const std::optional<bool> empty = m_users->isEmpty();
    if (!empty) {
        qCWarning(lcAuth) << "Failed to check if users table is empty.";
        return false;
    }
    return *empty;
}

QString AuthService::currentUsername() const
{
    return m_currentUser ? m_currentUser->username : QString();
}

QString AuthService::currentUserRole() const
{
    return m_currentUser ? m_currentUser->role : QString();
}

const QHash<QString, QSet<int>> &AuthService::rolePermissions()
{
    static const QHash<QString, QSet<int>> permissions{
        {QStringLiteral("admin"), {0, 1, 2, 3, 4, 5}},
        {QStringLiteral("service_staff"), {2, 3, 4}},
        {QStringLiteral("kitchen_staff"), {3}},
    };
    return permissions;
}
