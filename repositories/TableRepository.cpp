// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TableRepository.h"

#include "repositories/Statement.h"

namespace {
Table readTable(const Statement &row)
{
    Table table;
    table.id = row.integer(0);
    table.table_name = row.text(1);
    table.capacity = row.integer(2);
    table.status = row.text(3);
    table.created_at = row.text(4);
    return table;
}

void bindFields(Statement &statement, const Table &table)
{
    statement.bind(":table_name", table.table_name);
    statement.bind(":capacity", table.capacity);
    statement.bind(":status", table.status);
}
} // namespace

TableRepository::TableRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO tables (table_name, capacity, status) VALUES (:table_name, :capacity, :status))";

int TableRepository::create(const Table &table)
{
    Statement statement(m_database, createSql, {"create failed:"});
    bindFields(statement, table);
    return statement.run() ? statement.insertedId() : 0;
}

constexpr auto updateSql = R"(
    UPDATE tables SET table_name = :table_name, capacity = :capacity, status = :status
    WHERE id = :table_id)";

void TableRepository::update(const Table &table)
{
    Statement statement(m_database, updateSql, {"update failed:"});
    bindFields(statement, table);
    statement.bind(":table_id", table.id);
    // A failure is only logged: the caller has no use for it.
    std::ignore = statement.run();
}

bool TableRepository::setTableState(int id, const QString &status)
{
    Statement statement(m_database, "UPDATE tables SET status = :status WHERE id = :table_id",
                        {"setTableState failed:"});
    statement.bind(":status", status);
    statement.bind(":table_id", id);
    return statement.run();
}

bool TableRepository::remove(int id)
{
    Statement statement(m_database, "DELETE FROM tables WHERE id = :table_id", {"remove failed:"});
    statement.bind(":table_id", id);
    return statement.run();
}

constexpr auto getTableByIdSql =
    "SELECT id, table_name, capacity, status, created_at FROM tables WHERE id = :table_id";

std::optional<Table> TableRepository::getTableById(int id) const
{
    Statement statement(m_database, getTableByIdSql, {"getTableById failed:"});
    statement.bind(":table_id", id);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readTable(statement);
}

QList<Table> TableRepository::getAllTables() const
{
    Statement statement(m_database,
                        "SELECT id, table_name, capacity, status, created_at FROM tables",
                        {"getAllTables failed:"});
    return statement.rows(readTable);
}
