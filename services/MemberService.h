// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "models/MemberListModel.h"
#include "models/MemberTransactionModel.h"

#include <QObject>
#include <QString>
#include <QVariantMap>

class MembershipRepository;
class MembershipTransactionRepository;

/// The member directory of the administrator, which only reads.
class MemberService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(MemberListModel *membersModel READ membersModel CONSTANT)
    Q_PROPERTY(MemberTransactionModel *transactionModel READ transactionModel CONSTANT)

public:
    MemberService(MembershipRepository *members, MembershipTransactionRepository *transactions,
                  QObject *parent = nullptr);

    [[nodiscard]] MemberListModel *membersModel() const { return m_membersModel; }
    [[nodiscard]] MemberTransactionModel *transactionModel() const { return m_transactionModel; }

    /// In the order the store gives them.
    Q_INVOKABLE void loadMembers();
    /// By any part of the phone number, newest member first; an empty text loads all.
    Q_INVOKABLE void searchMembers(const QString &query);
    /// `id`, `phoneNumber`, `totalPoints`, `status`; empty for an unknown member.
    Q_INVOKABLE [[nodiscard]] QVariantMap getMemberDetails(int memberId) const;
    /// Newest first.
    Q_INVOKABLE void loadTransactions(int memberId);

private:
    MembershipRepository *m_members;
    MembershipTransactionRepository *m_transactions;
    MemberListModel *m_membersModel;
    MemberTransactionModel *m_transactionModel;
};
