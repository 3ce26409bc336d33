// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipRepository.h"

#include "repositories/Statement.h"

namespace {
Membership readMembership(const Statement &row)
{
    Membership membership;
    membership.id = row.integer(0);
    membership.phone_number = row.text(1);
    membership.total_points = row.integer(2);
    membership.status = row.text(3);
    return membership;
}

Membership readOne(Statement &statement)
{
    return statement.run() && statement.next() ? readMembership(statement) : Membership();
}
} // namespace

MembershipRepository::MembershipRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO memberships (phone_number, total_points, status)
    VALUES (:phone_number, :total_points, :status))";

bool MembershipRepository::create(const Membership &membership)
{
    Statement statement(m_database, createSql, {"Failed to insert membership:", lcMembership});
    statement.bind(":phone_number", membership.phone_number);
    statement.bind(":total_points", membership.total_points);
    statement.bind(":status", membership.status);
    return statement.run();
}

constexpr auto getByPhoneSql = R"(
    SELECT id, phone_number, total_points, status FROM memberships
    WHERE phone_number = :phone_number)";

Membership MembershipRepository::getByPhone(const QString &phone)
{
    Statement statement(m_database, getByPhoneSql, {"Failed to fetch membership:", lcMembership});
    statement.bind(":phone_number", phone);
    return readOne(statement);
}

constexpr auto addPointsSql = R"(
    UPDATE memberships
    SET total_points = total_points + :points, updated_at = CURRENT_TIMESTAMP
    WHERE id = :id)";
constexpr auto subtractPointsSql = R"(
    UPDATE memberships
    SET total_points = MAX(total_points - :points, 0), updated_at = CURRENT_TIMESTAMP
    WHERE id = :id)";

bool MembershipRepository::adjustPoints(int id, const QString &operation, int points)
{
    if (points < 0) {
        qCWarning(lcMembership) << "Points to adjust must be non-negative.";
        return false;
    }
    const bool adds = operation == QLatin1String("add");
    if (!adds && operation != QLatin1String("subtract")) {
        qCWarning(lcMembership) << "Invalid points adjustment operation:" << operation;
        return false;
    }
    Statement statement(m_database, adds ? addPointsSql : subtractPointsSql,
                        {"Failed to adjust points:", lcMembership});
    statement.bind(":points", points);
    statement.bind(":id", id);
    return statement.run();
}

constexpr auto getByIdSql =
    "SELECT id, phone_number, total_points, status FROM memberships WHERE id = :id";

Membership MembershipRepository::getById(int id) const
{
    Statement statement(m_database, getByIdSql, {"Failed to fetch membership:", lcMembership});
    statement.bind(":id", id);
    return readOne(statement);
}

constexpr auto updateSql = R"(
    UPDATE memberships
    SET phone_number = :phone_number, status = :status, updated_at = CURRENT_TIMESTAMP
    WHERE id = :id)";

bool MembershipRepository::update(const Membership &membership)
{
    Statement statement(m_database, updateSql, {"Failed to update membership:", lcMembership});
    statement.bind(":phone_number", membership.phone_number);
    statement.bind(":status", membership.status);
    statement.bind(":id", membership.id);
    return statement.run();
}

bool MembershipRepository::remove(int id)
{
    Statement statement(m_database, "DELETE FROM memberships WHERE id = :id",
                        {"Failed to delete membership:", lcMembership});
    statement.bind(":id", id);
    return statement.run();
}

constexpr auto searchSql = R"(
    SELECT id, phone_number, total_points, status FROM memberships
    WHERE phone_number LIKE :search
    ORDER BY id DESC)";

QList<Membership> MembershipRepository::search(const QString &text) const
{
    Statement statement(m_database, searchSql, {"Failed to search memberships:", lcMembership});
    statement.bind(":search", QLatin1Char('%') + text + QLatin1Char('%'));
    return statement.rows(readMembership);
}

QList<Membership> MembershipRepository::getAll() const
{
    Statement statement(m_database,
                        "SELECT id, phone_number, total_points, status FROM memberships",
                        {"Failed to fetch all memberships:", lcMembership});
    return statement.rows(readMembership);
}

constexpr auto getByStatusSql =
    "SELECT id, phone_number, total_points, status FROM memberships WHERE status = :status";

QList<Membership> MembershipRepository::getByStatus(const QString &status) const
{
    Statement statement(m_database, getByStatusSql,
                        {"Failed to fetch memberships by status:", lcMembership});
    statement.bind(":status", status);
    return statement.rows(readMembership);
}
