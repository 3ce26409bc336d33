// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/MembershipTransaction.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The SQL of `membership_transactions`.
class MembershipTransactionRepository
{
public:
    explicit MembershipTransactionRepository(const QSqlDatabase &database);
    virtual ~MembershipTransactionRepository() = default;
    Q_DISABLE_COPY_MOVE(MembershipTransactionRepository)

    /// Refuses a bad member, points below 1 and an unknown type.
    virtual bool create(const MembershipTransaction &transaction);

    [[nodiscard]] std::optional<MembershipTransaction> getById(int id) const;
    [[nodiscard]] int sumPoints(int orderSessionId, const QString &type) const;
    /// The member of any movement of the session; 0 for none or on failure.
    [[nodiscard]] int getMembershipIdBySession(int orderSessionId) const;
    [[nodiscard]] int getRedeemedPoints(int orderSessionId) const;
    [[nodiscard]] int getEarnedPoints(int orderSessionId) const;
    [[nodiscard]] QList<MembershipTransaction> getByOrderSession(int orderSessionId) const;
    [[nodiscard]] QList<MembershipTransaction> getByType(const QString &type) const;
    [[nodiscard]] QList<MembershipTransaction> getByMembership(int membershipId) const;
    /// With the time and the session's display number, newest first.
    [[nodiscard]] QList<MembershipTransaction> getHistory(int membershipId) const;

private:
    QSqlDatabase m_database;
};
