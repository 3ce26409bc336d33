// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/MemberTransactionModel.h"

#include <QDateTime>

namespace {
QString localTimeText(const QString &storedUtc)
{
    // Read as UTC from the start: as a local time it would lose the hour that the local clock
    // leaves out in spring.
    const QDateTime time = QDateTime::fromString(storedUtc + QLatin1Char('Z'), Qt::ISODate);
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}
} // namespace

MemberTransactionModel::MemberTransactionModel(QObject *parent)
    : QAbstractListModel(parent)
{}

int MemberTransactionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant MemberTransactionModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    const MembershipTransaction &transaction = m_rows.at(index.row());
    switch (role) {
    case IdRole:
        return transaction.id;
    case MembershipIdRole:
        return transaction.membership_id;
    case OrderSessionIdRole:
        return transaction.order_session_id;
    case TypeRole:
        return transaction.type;
    case PointsRole:
        return transaction.points;
    case OrderDisplayNumberRole:
        return transaction.display_number;
    case CreatedAtRole:
        return localTimeText(transaction.created_at);
    default:
        return {};
    }
}

QHash<int, QByteArray> MemberTransactionModel::roleNames() const
{
    return {{IdRole, "id"},
            {MembershipIdRole, "membershipId"},
            {OrderSessionIdRole, "orderSessionId"},
            {TypeRole, "type"},
            {PointsRole, "points"},
            {OrderDisplayNumberRole, "orderDisplayNumber"},
            {CreatedAtRole, "createdAt"}};
}

void MemberTransactionModel::setTransactions(const QList<MembershipTransaction> &transactions)
{
    beginResetModel();
    m_rows = transactions;
    endResetModel();
}
