// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Membership.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

/// The SQL of `memberships`. The loyalty rules use only the virtual operations.
class MembershipRepository
{
public:
    explicit MembershipRepository(const QSqlDatabase &database);
    virtual ~MembershipRepository() = default;
    Q_DISABLE_COPY_MOVE(MembershipRepository)

    virtual bool create(const Membership &membership);
    /// Exact match; a record with id -1 for none.
    [[nodiscard]] virtual Membership getByPhone(const QString &phone);
    /// `operation` is "add" or "subtract"; a balance never falls below zero. Negative points are
    /// refused.
    virtual bool adjustPoints(int id, const QString &operation, int points);

    /// A record with id -1 for none.
    [[nodiscard]] Membership getById(int id) const;
    /// Phone and status; never the points.
    bool update(const Membership &membership);
    bool remove(int id);
    /// Any part of the phone number, newest member first.
    [[nodiscard]] QList<Membership> search(const QString &text) const;
    [[nodiscard]] QList<Membership> getAll() const;
    [[nodiscard]] QList<Membership> getByStatus(const QString &status) const;

private:
    QSqlDatabase m_database;
};
