// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/UserModel.h"

#include "repositories/UserRepository.h"

#include <QThread>

#include <memory>

UserModel::UserModel(UserRepository *users, QObject *parent)
    : QAbstractListModel(parent)
    , m_users(users)
    , m_rows(new Rows)
{}

UserModel::~UserModel()
{
    delete m_rows.load();
}

int UserModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.load()->size());
}

QVariant UserModel::data(const QModelIndex &index, int role) const
{
    const Rows &rows = *m_rows.load();
    if (!index.isValid() || index.row() >= rows.size()) {
        return {};
    }
    const User &user = rows.at(index.row());
    switch (role) {
    case IdRole:
        return user.id;
    case UsernameRole:
        return user.username;
    case RoleRole:
        return user.role;
    case ActiveRole:
        return user.deactivated_at.isEmpty();
    default:
        return {};
    }
}

QHash<int, QByteArray> UserModel::roleNames() const
{
    return {{IdRole, "id"}, {UsernameRole, "username"}, {RoleRole, "role"}, {ActiveRole, "active"}};
}

void UserModel::reload()
{
    beginResetModel();
    publish(new Rows(m_users->fetchAll()));
    endResetModel();
    // Newer views follow a reset from its first signal to its last, and a queued first one comes
    // after the last one was sent. A changed layout makes them read the rows, on their own thread.
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                emit layoutAboutToBeChanged();
                emit layoutChanged();
            },
            Qt::QueuedConnection);
    }
}

void UserModel::deactivateUser(int userId)
{
    m_users->remove(userId);
    reload();
}

void UserModel::publish(const Rows *rows)
{
    // A view may be inside `data` on the GUI thread while the pool thread refills. The old rows are
    // therefore freed by the GUI thread's own event loop, when no such call can be under way.
    const std::shared_ptr<const Rows> retired(m_rows.exchange(rows));
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(
            this, [retired] {}, Qt::QueuedConnection);
    }
}
