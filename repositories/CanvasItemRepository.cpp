// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/CanvasItemRepository.h"

#include "repositories/Statement.h"

#include <optional>

namespace {
/// Where the columns of a "SELECT *" stand, looked up once a result.
struct ItemColumns
{
    explicit ItemColumns(const Statement &statement)
        : id(statement.column("id"))
        , floorId(statement.column("floor_id"))
        , tableId(statement.column("table_id"))
        , type(statement.column("type"))
        , label(statement.column("label"))
        , x(statement.column("x"))
        , y(statement.column("y"))
        , width(statement.column("width"))
        , height(statement.column("height"))
        , rotation(statement.column("rotation"))
        , color(statement.column("color"))
        , borderColor(statement.column("border_color"))
        , borderWidth(statement.column("border_width"))
        , opacity(statement.column("opacity"))
        , zOrder(statement.column("z_order"))
        , metadata(statement.column("metadata"))
    {}

    int id, floorId, tableId, type, label, x, y, width, height, rotation, color, borderColor;
    int borderWidth, opacity, zOrder, metadata;
};

CanvasItem readItem(const Statement &row, const ItemColumns &at)
{
    CanvasItem item;
    item.id = row.integer(at.id);
    item.floor_id = row.integer(at.floorId);
    item.table_id = row.optionalInteger(at.tableId);
    item.type = row.text(at.type);
    item.label = row.optionalText(at.label);
    item.x = row.real(at.x);
    item.y = row.real(at.y);
    item.width = row.real(at.width);
    item.height = row.real(at.height);
    item.rotation = row.real(at.rotation);
    item.color = row.text(at.color);
    item.border_color = row.text(at.borderColor);
    item.border_width = row.real(at.borderWidth);
    item.opacity = row.real(at.opacity);
    item.z_order = row.integer(at.zOrder);
    item.metadata = row.optionalText(at.metadata);
    return item;
}

bool deleteItemsOf(const QSqlDatabase &database, int floorId)
{
    Statement statement(database, "DELETE FROM canvas_items WHERE floor_id = :floor_id",
                        {"Delete failed:"});
    statement.bind(":floor_id", floorId);
    return statement.run();
}

constexpr auto insertSql = R"(
    INSERT INTO canvas_items (floor_id, table_id, type, label, x, y, width, height, rotation,
        color, border_color, border_width, opacity, z_order, metadata)
    VALUES (:floor_id, :table_id, :type, :label, :x, :y, :width, :height, :rotation,
        :color, :border_color, :border_width, :opacity, :z_order, :metadata))";

/// The floor is the argument, whatever the items say; their ids are not kept.
bool insertItems(const QSqlDatabase &database, int floorId, const QList<CanvasItem> &items)
{
    Statement statement(database, insertSql, {"Insert failed:"});
    for (const CanvasItem &item : items) {
        statement.bind(":floor_id", floorId);
        statement.bind(":table_id", item.table_id);
        statement.bind(":type", item.type);
        statement.bind(":label", item.label);
        statement.bind(":x", item.x);
        statement.bind(":y", item.y);
        statement.bind(":width", item.width);
        statement.bind(":height", item.height);
        statement.bind(":rotation", item.rotation);
        statement.bind(":color", item.color);
        statement.bind(":border_color", item.border_color);
        statement.bind(":border_width", item.border_width);
        statement.bind(":opacity", item.opacity);
        statement.bind(":z_order", item.z_order);
        statement.bind(":metadata", item.metadata);
        if (!statement.run()) {
            return false;
        }
    }
    return true;
}
} // namespace

CanvasItemRepository::CanvasItemRepository(const QSqlDatabase &database)
    : m_database(database)
{}

bool CanvasItemRepository::saveAll(int floorId, const QList<CanvasItem> &items)
{
    if (!m_database.transaction()) {
        qCWarning(lcDatabase) << "Failed to begin transaction for saveAll";
        return false;
    }
    if (!deleteItemsOf(m_database, floorId) ||
        (!items.isEmpty() && !insertItems(m_database, floorId, items))) {
        m_database.rollback();
        return false;
    }
    if (!m_database.commit()) {
        qCWarning(lcDatabase) << "Commit failed";
        m_database.rollback();
        return false;
    }
    return true;
}

constexpr auto fetchByFloorSql = R"(
    SELECT * FROM canvas_items
    WHERE floor_id = :floor_id
    ORDER BY z_order ASC)";

QList<CanvasItem> CanvasItemRepository::fetchByFloor(int floorId) const
{
    Statement statement(m_database, fetchByFloorSql, {"Failed to fetch canvas items:"});
    statement.bind(":floor_id", floorId);
    std::optional<ItemColumns> at;
    return statement.rows([&at](const Statement &row) {
        if (!at) {
            at.emplace(row);
        }
        return readItem(row, *at);
    });
}

bool CanvasItemRepository::remove(int itemId)
{
    Statement statement(m_database, "DELETE FROM canvas_items WHERE id = :id", {nullptr});
    statement.bind(":id", itemId);
    return statement.run();
}
