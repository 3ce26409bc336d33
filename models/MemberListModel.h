// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Membership.h"

#include <QAbstractListModel>
#include <QList>

/// Members as they were last loaded or searched.
class MemberListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        PhoneNumberRole,
        TotalPointsRole,
        StatusRole,
    };

    explicit MemberListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setMembers(const QList<Membership> &members);

private:
    QList<Membership> m_rows;
};
