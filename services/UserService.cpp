// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/UserService.h"

#include "core/PasswordHasher.h"
#include "repositories/UserRepository.h"

#include <QThreadPool>

#include <optional>

namespace {
/// The user to store, without a hash yet; absent where none may be made.
std::optional<User> checkedUser(const UserRepository *users, GuiRendezvous &rendezvous,
                                const QString &username, const QString &password,
                                const QString &confirm, const QString &role)
{
    User user;
    user.username = username.trimmed();
    if (user.username.isEmpty() || password.isEmpty() || password != confirm) {
        return std::nullopt;
    }
    bool accepted = false;
    const bool asked = rendezvous.whileGuiStands([&] {
        const std::optional<bool> noUsersYet = users->isEmpty();
        // The first user of a database is always an admin, whatever was asked for.
        user.role = noUsersYet.value_or(false) ? QStringLiteral("admin") : role;
        accepted = noUsersYet && !users->usernameExists(user.username);
    });
    return asked && accepted ? std::optional(user) : std::nullopt;
}
} // namespace

UserService::UserService(UserRepository *users, QObject *parent)
    : QObject(parent)
    , m_users(users)
    , m_userModel(new UserModel(users, this))
    , m_rendezvous(GuiRendezvous::of(this))
{
    m_userModel->reload();
}

UserService::~UserService()
{
    m_rendezvous->close();
}

void UserService::createUser(const QString &username, const QString &password,
                             const QString &confirm, const QString &role)
{
    // This object may go while the hash is made: it is touched only while the GUI thread stands.
    QThreadPool::globalInstance()->start(
        [this, users = m_users, rendezvous = m_rendezvous, username, password, confirm, role] {
            bool success = false;
            if (std::optional<User> user =
                    checkedUser(users, *rendezvous, username, password, confirm, role)) {
                user->password = hashPassword(password);
                success = rendezvous->whileGuiStands([this, &user] {
                    // Not examined: the name of a deactivated user is refused by the table, and
                    // only the log tells.
                    m_users->createUser(*user);
                    announceChange();
                });
            }
            rendezvous->post([this, success] { emit createUserFinished(success); });
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

void UserService::announceChange()
{
    m_userModel->reload();
    emit usersChanged();
}
