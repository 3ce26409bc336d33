// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/User.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include <optional>

class UserRepository;

/// Who is logged in, for this run of the program and in memory only. Rights are expressed by the
/// home screen that a role reaches and by nothing else.
class AuthService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString currentUsername READ currentUsername NOTIFY currentUserChanged)
    Q_PROPERTY(QString currentUserRole READ currentUserRole NOTIFY currentUserChanged)

public:
    explicit AuthService(UserRepository *users, QObject *parent = nullptr);

    /// Case-sensitive, active users only. Takes a noticeable moment. A refusal does not say why and
    /// keeps whoever was logged in.
    Q_INVOKABLE bool login(const QString &username, const QString &password);
    Q_INVOKABLE void logout();
    /// Whether `users` has no row at all; false when that could not be asked.
    Q_INVOKABLE [[nodiscard]] bool isFirstAdminSetupNeeded() const;

    /// Empty when logged out.
    [[nodiscard]] QString currentUsername() const;
    /// Empty when logged out.
    [[nodiscard]] QString currentUserRole() const;
    [[nodiscard]] std::optional<User> currentUser() const { return m_currentUser; }

    /// Numbers of permissions by role. Held for later: nothing consults it.
    [[nodiscard]] static const QHash<QString, QSet<int>> &rolePermissions();

signals:
    /// Never emitted: screens read the properties at the moment they need them.
    void currentUserChanged();

private:
    UserRepository *m_users;
    std::optional<User> m_currentUser;
};
