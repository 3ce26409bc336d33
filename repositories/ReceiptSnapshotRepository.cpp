// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/ReceiptSnapshotRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"

ReceiptSnapshotRepository::ReceiptSnapshotRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO receipt_snapshot (order_session_id, cashier_name, store_name, address, phone,
        email, website, tax_name, tax_rate, tax_registration_number, member_phone,
        points_balance_before, points_balance_after, order_type, table_name)
    VALUES (:order_session_id, :cashier_name, :store_name, :address, :phone,
        :email, :website, :tax_name, :tax_rate, :tax_registration_number, :member_phone,
        :points_balance_before, :points_balance_after, :order_type, :table_name))";

int ReceiptSnapshotRepository::create(const ReceiptSnapshot &snapshot)
{
    Statement statement(m_database, createSql, {"Failed to create receipt snapshot:"});
    statement.bind(":order_session_id", snapshot.order_session_id);
    statement.bind(":cashier_name", snapshot.cashier_name);
    statement.bind(":store_name", snapshot.store_name);
    statement.bind(":address", snapshot.address);
    statement.bind(":phone", snapshot.phone);
    statement.bind(":email", snapshot.email);
    statement.bind(":website", snapshot.website);
    statement.bind(":tax_name", snapshot.tax_name);
    statement.bind(":tax_rate", snapshot.tax_rate);
    statement.bind(":tax_registration_number", snapshot.tax_registration_number);
    statement.bind(":member_phone", snapshot.member_phone);
    statement.bind(":points_balance_before", snapshot.points_balance_before);
    statement.bind(":points_balance_after", snapshot.points_balance_after);
    statement.bind(":order_type", snapshot.order_type);
    statement.bind(":table_name", snapshot.table_name);
    return statement.run() ? statement.insertedId() : 0;
}

const BoundedSql getByOrderSessionSql(R"(
    SELECT id, order_session_id, cashier_name, store_name, address, phone, email, website,
        tax_name, tax_rate, tax_registration_number, member_phone, points_balance_before,
        points_balance_after, order_type, table_name, created_at
    FROM receipt_snapshot
    WHERE order_session_id = :order_session_id {bound}
    LIMIT 1)",
                                      "AND id IN (SELECT id FROM temp.working_snapshots"
                                      " WHERE session_id = :order_session_id)");

std::optional<ReceiptSnapshot>
ReceiptSnapshotRepository::getByOrderSession(int orderSessionId) const
{
    const bool held = WorkingSet::holdsSession(m_database, orderSessionId);
    Statement statement(m_database, getByOrderSessionSql.text(held),
                        {"Failed to fetch receipt snapshot:"});
    statement.bind(":order_session_id", orderSessionId);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    ReceiptSnapshot snapshot;
    snapshot.id = statement.integer(0);
    snapshot.order_session_id = statement.integer(1);
    snapshot.cashier_name = statement.optionalText(2);
    snapshot.store_name = statement.optionalText(3);
    snapshot.address = statement.optionalText(4);
    snapshot.phone = statement.optionalText(5);
    snapshot.email = statement.optionalText(6);
    snapshot.website = statement.optionalText(7);
    snapshot.tax_name = statement.optionalText(8);
    snapshot.tax_rate = statement.optionalInteger(9);
    snapshot.tax_registration_number = statement.optionalText(10);
    snapshot.member_phone = statement.optionalText(11);
    snapshot.points_balance_before = statement.optionalInteger(12);
    snapshot.points_balance_after = statement.optionalInteger(13);
    snapshot.order_type = statement.optionalText(14);
    snapshot.table_name = statement.optionalText(15);
    snapshot.created_at = statement.optionalText(16);
    return snapshot;
}
