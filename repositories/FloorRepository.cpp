// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/FloorRepository.h"

#include "repositories/Statement.h"

namespace {
Floor readFloor(const Statement &row)
{
    Floor floor;
    floor.id = row.integer(0);
    floor.name = row.text(1);
    floor.floor_number = row.integer(2);
    floor.sort_order = row.integer(3);
    floor.is_active = row.integer(4);
    return floor;
}

void bindFields(Statement &statement, const Floor &floor)
{
    statement.bind(":name", floor.name);
    statement.bind(":floor_number", floor.floor_number);
    statement.bind(":sort_order", floor.sort_order);
    statement.bind(":is_active", floor.is_active);
}
} // namespace

FloorRepository::FloorRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO floors (name, floor_number, sort_order, is_active)
    VALUES (:name, :floor_number, :sort_order, :is_active))";

int FloorRepository::create(const Floor &floor)
{
    Statement statement(m_database, createSql, {"Failed to create floor:"});
    bindFields(statement, floor);
    return statement.run() ? statement.insertedId() : -1;
}

constexpr auto updateSql = R"(
    UPDATE floors SET name = :name, floor_number = :floor_number, sort_order = :sort_order,
        is_active = :is_active
    WHERE id = :id)";

bool FloorRepository::update(const Floor &floor)
{
    Statement statement(m_database, updateSql, {nullptr});
    bindFields(statement, floor);
    statement.bind(":id", floor.id);
    return statement.run();
}

bool FloorRepository::remove(int floorId)
{
    Statement statement(m_database, "DELETE FROM floors WHERE id = :id", {nullptr});
    statement.bind(":id", floorId);
    return statement.run();
}

constexpr auto fetchByIdSql =
    "SELECT id, name, floor_number, sort_order, is_active FROM floors WHERE id = :id";

std::optional<Floor> FloorRepository::fetchById(int floorId) const
{
    Statement statement(m_database, fetchByIdSql, {"Failed to fetch floor:"});
    statement.bind(":id", floorId);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readFloor(statement);
}

constexpr auto fetchAllSql = R"(
    SELECT id, name, floor_number, sort_order, is_active FROM floors
    ORDER BY sort_order ASC)";

QList<Floor> FloorRepository::fetchAll() const
{
    Statement statement(m_database, fetchAllSql, {"Failed to fetch floors:"});
    return statement.rows(readFloor);
}
