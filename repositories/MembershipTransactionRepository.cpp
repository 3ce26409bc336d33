// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipTransactionRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"

namespace {
const QString earnType = QStringLiteral("earn");
const QString redeemType = QStringLiteral("redeem");

MembershipTransaction readTransaction(const Statement &row)
{
    MembershipTransaction transaction;
    transaction.id = row.integer(0);
    transaction.membership_id = row.integer(1);
    transaction.order_session_id = row.integer(2);
    transaction.type = row.text(3);
    transaction.points = row.integer(4);
    return transaction;
}

MembershipTransaction readHistoryRow(const Statement &row)
{
    MembershipTransaction transaction = readTransaction(row);
    transaction.created_at = row.text(5);
    transaction.display_number = row.integer(6);
    return transaction;
}

bool isValidId(int id, const char *refusal)
{
    if (id >= 1) {
        return true;
    }
    qCWarning(lcMembership) << refusal << id;
    return false;
}

bool isValidType(const QString &type)
{
    if (type == earnType || type == redeemType) {
        return true;
    }
    qCWarning(lcMembership) << "Invalid transaction type:" << type;
    return false;
}
} // namespace

MembershipTransactionRepository::MembershipTransactionRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO membership_transactions (membership_id, order_session_id, type, points)
    VALUES (:membership_id, :order_session_id, :type, :points))";

bool MembershipTransactionRepository::create(const MembershipTransaction &transaction)
{
    if (!isValidId(transaction.membership_id, "Invalid membership ID:")) {
        return false;
    }
    if (transaction.points < 1) {
        qCWarning(lcMembership) << "Points must be greater than zero.";
        return false;
    }
    if (!isValidType(transaction.type)) {
        return false;
    }
    Statement statement(m_database, createSql,
                        {"Failed to insert membership transaction:", lcMembership});
    statement.bind(":membership_id", transaction.membership_id);
    statement.bind(":order_session_id", transaction.order_session_id);
    statement.bind(":type", transaction.type);
    statement.bind(":points", transaction.points);
    return statement.run();
}

constexpr auto getByIdSql = R"(
    SELECT id, membership_id, order_session_id, type, points FROM membership_transactions
    WHERE id = :id)";

std::optional<MembershipTransaction> MembershipTransactionRepository::getById(int id) const
{
    if (!isValidId(id, "Invalid transaction ID:")) {
        return std::nullopt;
    }
    Statement statement(m_database, getByIdSql,
                        {"Failed to fetch membership transaction:", lcMembership});
    statement.bind(":id", id);
    if (!statement.run()) {
        return std::nullopt;
    }
    if (!statement.next()) {
        qCWarning(lcMembership) << "No membership transaction found with ID:" << id;
        return std::nullopt;
    }
    return readTransaction(statement);
}

constexpr auto ofTheSession = "AND id IN (SELECT id FROM temp.working_points"
                              " WHERE session_id = :order_session_id)";

const BoundedSql sumPointsSql(R"(
    SELECT COALESCE(SUM(points), 0) FROM membership_transactions
    WHERE order_session_id = :order_session_id AND type = :type {bound})",
                              ofTheSession);

int MembershipTransactionRepository::sumPoints(int orderSessionId, const QString &type) const
{
    Statement statement(m_database,
                        sumPointsSql.text(WorkingSet::holdsSession(m_database, orderSessionId)),
                        {"Failed to sum points:", lcMembership});
    statement.bind(":order_session_id", orderSessionId);
    statement.bind(":type", type);
    return statement.run() && statement.next() ? statement.integer(0) : 0;
}

const BoundedSql getMembershipIdBySessionSql(R"(
    SELECT membership_id FROM membership_transactions
    WHERE order_session_id = :order_session_id {bound}
    LIMIT 1)",
                                             ofTheSession);

int MembershipTransactionRepository::getMembershipIdBySession(int orderSessionId) const
{
    const bool held = WorkingSet::holdsSession(m_database, orderSessionId);
    Statement statement(m_database, getMembershipIdBySessionSql.text(held), {nullptr});
    statement.bind(":order_session_id", orderSessionId);
    return statement.run() && statement.next() ? statement.integer(0) : 0;
}

int MembershipTransactionRepository::getRedeemedPoints(int orderSessionId) const
{
    return sumPoints(orderSessionId, redeemType);
}

int MembershipTransactionRepository::getEarnedPoints(int orderSessionId) const
{
    return sumPoints(orderSessionId, earnType);
}

const BoundedSql getByOrderSessionSql(R"(
    SELECT id, membership_id, order_session_id, type, points FROM membership_transactions
    WHERE order_session_id = :order_session_id {bound}
    ORDER BY created_at DESC)",
                                      ofTheSession);

QList<MembershipTransaction>
MembershipTransactionRepository::getByOrderSession(int orderSessionId) const
{
    if (!isValidId(orderSessionId, "Invalid order session ID:")) {
        return {};
    }
    const bool held = WorkingSet::holdsSession(m_database, orderSessionId);
    Statement statement(m_database, getByOrderSessionSql.text(held),
                        {"Failed to fetch transactions for order session:", lcMembership});
    statement.bind(":order_session_id", orderSessionId);
    return statement.rows(readTransaction);
}

constexpr auto getByTypeSql = R"(
    SELECT id, membership_id, order_session_id, type, points FROM membership_transactions
    WHERE type = :type
    ORDER BY created_at DESC)";

QList<MembershipTransaction> MembershipTransactionRepository::getByType(const QString &type) const
{
    if (!isValidType(type)) {
        return {};
    }
    Statement statement(m_database, getByTypeSql,
                        {"Failed to fetch transactions by type:", lcMembership});
    statement.bind(":type", type);
    return statement.rows(readTransaction);
}

constexpr auto getByMembershipSql = R"(
    SELECT id, membership_id, order_session_id, type, points FROM membership_transactions
    WHERE membership_id = :membership_id
    ORDER BY created_at DESC)";

QList<MembershipTransaction>
MembershipTransactionRepository::getByMembership(int membershipId) const
{
    if (!isValidId(membershipId, "Invalid membership ID:")) {
        return {};
    }
    Statement statement(m_database, getByMembershipSql,
                        {"Failed to fetch transactions for membership:", lcMembership});
    statement.bind(":membership_id", membershipId);
    return statement.rows(readTransaction);
}

constexpr auto getHistorySql = R"(
    SELECT mt.id, mt.membership_id, mt.order_session_id, mt.type, mt.points, mt.created_at,
        os.display_number
    FROM membership_transactions mt
    LEFT JOIN order_sessions os ON os.id = mt.order_session_id
    WHERE mt.membership_id = :membership_id
    ORDER BY mt.created_at DESC)";

QList<MembershipTransaction> MembershipTransactionRepository::getHistory(int membershipId) const
{
    if (!isValidId(membershipId, "Invalid membership ID:")) {
        return {};
    }
    Statement statement(m_database, getHistorySql,
                        {"Failed to fetch membership transaction history:", lcMembership});
    statement.bind(":membership_id", membershipId);
    return statement.rows(readHistoryRow);
}
