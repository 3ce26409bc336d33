// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "models/UserModel.h"
#include "services/GuiRendezvous.h"

#include <QObject>
#include <QString>

#include <memory>

class UserRepository;

/// Creates, edits and deactivates users and changes their passwords. Users are never deleted, and
/// there are no rules about admins: the last one can be deactivated.
class UserService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(UserModel *userModel READ userModel CONSTANT)

public:
    explicit UserService(UserRepository *users, QObject *parent = nullptr);
    ~UserService() override;
    Q_DISABLE_COPY_MOVE(UserService)

    [[nodiscard]] UserModel *userModel() const { return m_userModel; }

    /// Returns at once and ends in `createUserFinished`. The work is done on a thread of the global
    /// pool: hashing and, while this thread stands still in its event loop, the statements, the
    /// refill of the model and `usersChanged`. What is under way when this object goes is dropped.
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
    void announceChange();

    UserRepository *m_users;
    UserModel *m_userModel;
    std::shared_ptr<GuiRendezvous> m_rendezvous;
};
