// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/User.h"

#include <QAbstractListModel>
#include <QList>

#include <atomic>

class UserRepository;

/// Every user, deactivated ones too, without password hashes. Rows are read on the GUI thread only;
/// `reload` may run on any thread.
class UserModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        UsernameRole,
        RoleRole,
        ActiveRole,
    };

    explicit UserModel(UserRepository *users, QObject *parent = nullptr);
    ~UserModel() override;
    Q_DISABLE_COPY_MOVE(UserModel)

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Refills from the store inside one model reset, on the calling thread. A view on the GUI
    /// thread learns of a reset made elsewhere by queued signals and meanwhile reads whole rows,
    /// old or new.
    Q_INVOKABLE void reload();
    /// Deactivates without asking whether the user exists or is active.
    Q_INVOKABLE void deactivateUser(int userId);

private:
    using Rows = QList<User>;

    void publish(const Rows *rows);

    UserRepository *m_users;
    /// Never null and never changed in place: a refill exchanges the whole list.
    std::atomic<const Rows *> m_rows;
};
