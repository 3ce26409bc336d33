// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "models/UserModel.h"

#include <QObject>
#include <QString>

class UserRepository;

/// Creates, edits and deactivates users and changes their passwords. Users are never deleted, and
/// there are no rules about admins: the last one can be deactivated.
class UserService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(UserModel *userModel READ userModel CONSTANT)

public:
    explicit UserService(UserRepository *users, QObject *parent = nullptr);

    [[nodiscard]] UserModel *userModel() const { return m_userModel; }

    /// Returns at once and ends in `createUserFinished`. The work is done on a thread of the global
    /// pool, which this object must outlive: hashing, the statements, the refill of the model and
    /// `usersChanged`.
    Q_INVOKABLE void createUser(const QString &username, const QString &password,
                                const QString &confirm, const QString &role);
    /// False for an unknown or deactivated user and for a blank name; true says only that the
    /// input was good. The role is taken as it comes.
    Q_INVOKABLE bool updateUser(int userId, const QString &username, const QString &role);
    /// Needs the old password, whoever asks. True says only that the input was good.
    Q_INVOKABLE bool changePassword(int userId, const QString &oldPassword,
                                    const QString &newPassword, const QString &newPasswordConfirm);
    /// False for an unknown or already deactivated user.
    Q_INVOKABLE bool deactivateUser(int userId);

signals:
    /// Always on the GUI thread. True says only that the input was good: a name that a deactivated
    /// user holds is told by nothing but the log.
    void createUserFinished(bool success);
    /// On the thread of the change.
    void usersChanged();

private:
    [[nodiscard]] bool createUserChecked(const QString &username, const QString &password,
                                         const QString &confirm, const QString &role);
    void announceChange();

    UserRepository *m_users;
    UserModel *m_userModel;
};
