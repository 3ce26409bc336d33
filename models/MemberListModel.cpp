// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/MemberListModel.h"

MemberListModel::MemberListModel(QObject *parent)
    : QAbstractListModel(parent)
{}

int MemberListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant MemberListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    const Membership &member = m_rows.at(index.row());
    switch (role) {
    case IdRole:
        return member.id;
    case PhoneNumberRole:
        return member.phone_number;
    case TotalPointsRole:
        return member.total_points;
    case StatusRole:
        return member.status;
    default:
        return {};
    }
}

QHash<int, QByteArray> MemberListModel::roleNames() const
{
    return {{IdRole, "id"},
            {PhoneNumberRole, "phoneNumber"},
            {TotalPointsRole, "totalPoints"},
            {StatusRole, "status"}};
}

void MemberListModel::setMembers(const QList<Membership> &members)
{
    beginResetModel();
    m_rows = members;
    endResetModel();
}
