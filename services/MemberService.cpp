// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/MemberService.h"

#include "repositories/MembershipRepository.h"
#include "repositories/MembershipTransactionRepository.h"

MemberService::MemberService(MembershipRepository *members,
                             MembershipTransactionRepository *transactions, QObject *parent)
    : QObject(parent)
    , m_members(members)
    , m_transactions(transactions)
    , m_membersModel(new MemberListModel(this))
    , m_transactionModel(new MemberTransactionModel(this))
{}

void MemberService::loadMembers()
{
    m_membersModel->setMembers(m_members->getAll());
}

void MemberService::searchMembers(const QString &query)
{
    if (query.isEmpty()) {
        loadMembers();
        return;
    }
    m_membersModel->setMembers(m_members->search(query));
}

QVariantMap MemberService::getMemberDetails(int memberId) const
{
    const Membership member = m_members->getById(memberId);
    if (member.id == -1) {
        return {};
    }
    return {{QStringLiteral("id"), member.id},
            {QStringLiteral("phoneNumber"), member.phone_number},
            {QStringLiteral("totalPoints"), member.total_points},
            {QStringLiteral("status"), member.status}};
}

void MemberService::loadTransactions(int memberId)
{
    m_transactionModel->setTransactions(m_transactions->getHistory(memberId));
}
