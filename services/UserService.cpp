// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/UserService.h"

#include "core/PasswordHasher.h"
#include "repositories/UserRepository.h"

#include <QThreadPool>

UserService::UserService(UserRepository *users, QObject *parent)
    : QObject(parent)
    , m_users(users)
    , m_userModel(new UserModel(users, this))
{
    m_userModel->reload();
}

void UserService::createUser(const QString &username, const QString &password,
                             const QString &confirm, const QString &role)
{
    QThreadPool::globalInstance()->start([this, username, password, confirm, role] {
        const bool success = createUserChecked(username, password, confirm, role);
        if (success) {
            announceChange();
        }
        QMetaObject::invokeMethod(
            this, [this, success] { emit createUserFinished(success); }, Qt::QueuedConnection);
    });
}

bool UserService::updateUser(int userId, const QString &username, const QString &role)
{
    std::optional<User> user = m_users->findById(userId);
    if (!user) {
        return false;
    }
    const QString trimmedName = username.trimmed();
    if (trimmedName.isEmpty()) {
        return false;
    }
    user->username = trimmedName;
    user->role = role;
    // Not examined: a name already taken leaves the row as it was, and only the log tells.
    m_users->update(*user);
    announceChange();
    return true;
}

bool UserService::changePassword(int userId, const QString &oldPassword, const QString &newPassword,
                                 const QString &newPasswordConfirm)
{
    std::optional<User> user = m_users->findById(userId);
    if (!user || !verifyPassword(oldPassword, user->password)) {
        return false;
    }
    if (newPassword.isEmpty() || newPassword != newPasswordConfirm) {
        return false;
    }
    user->password = hashPassword(newPassword);
    m_users->updatePassword(*user);
    return true;
}

bool UserService::deactivateUser(int userId)
{
    if (!m_users->findById(userId)) {
        return false;
    }
    m_users->remove(userId);
    announceChange();
    return true;
}

bool UserService::createUserChecked(const QString &username, const QString &password,
                                    const QString &confirm, const QString &role)
{
    const QString trimmedName = username.trimmed();
    if (trimmedName.isEmpty() || password.isEmpty() || password != confirm) {
        return false;
    }
    const std::optional<bool> noUsersYet = m_users->isEmpty();
    if (!noUsersYet || m_users->usernameExists(trimmedName)) {
        return false;
    }
    User user;
    user.username = trimmedName;
    user.password = hashPassword(password);
    // The first user of a database is always an admin, whatever was asked for.
    user.role = *noUsersYet ? QStringLiteral("admin") : role;
    // Not examined: the name of a deactivated user is refused by the table, and only the log tells.
    m_users->createUser(user);
    return true;
}

void UserService::announceChange()
{
    m_userModel->reload();
    emit usersChanged();
}
