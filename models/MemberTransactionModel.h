// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/MembershipTransaction.h"

#include <QAbstractListModel>
#include <QList>

/// One member's movements of points, newest first.
class MemberTransactionModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        MembershipIdRole,
        OrderSessionIdRole,
        TypeRole,
        PointsRole,
        /// The session's number; 0 when the session is gone.
        OrderDisplayNumberRole,
        /// "yyyy-MM-dd HH:mm:ss" in local time, from the stored UTC stamp.
        CreatedAtRole,
    };

    explicit MemberTransactionModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setTransactions(const QList<MembershipTransaction> &transactions);

private:
    QList<MembershipTransaction> m_rows;
};
