// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MenuRepository.h"

#include "repositories/Statement.h"

namespace {
MenuItem readMenuItem(const Statement &row)
{
    MenuItem item;
    item.id = row.integer(0);
    item.item = row.text(1);
    item.category_id = row.integer(2);
    item.price = row.integer(3);
    item.portion_size = row.optionalText(4);
    item.is_available = row.boolean(5);
    item.is_taxable = row.boolean(6);
    return item;
}

void bindFields(Statement &statement, const MenuItem &item)
{
    statement.bind(":item", item.item);
    statement.bind(":category_id", item.category_id);
    statement.bind(":price", item.price);
    statement.bind(":portion_size", item.portion_size);
    statement.bind(":is_available", item.is_available);
    statement.bind(":is_taxable", item.is_taxable);
}
} // namespace

MenuRepository::MenuRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO menu (item, category_id, price, portion_size, is_available, is_taxable)
    VALUES (:item, :category_id, :price, :portion_size, :is_available, :is_taxable))";

void MenuRepository::create(const MenuItem &item)
{
    Statement statement(m_database, createSql, {"create failed:"});
    bindFields(statement, item);
    // A failure is only logged: the caller has no use for it.
    std::ignore = statement.run();
}

constexpr auto updateSql = R"(
    UPDATE menu SET item = :item, category_id = :category_id, price = :price,
        portion_size = :portion_size, is_available = :is_available, is_taxable = :is_taxable
    WHERE id = :menu_item_id)";

void MenuRepository::update(const MenuItem &item)
{
    Statement statement(m_database, updateSql, {"update failed:"});
    bindFields(statement, item);
    statement.bind(":menu_item_id", item.id);
    std::ignore = statement.run();
}

void MenuRepository::remove(int menuItemId)
{
    Statement statement(m_database, "DELETE FROM menu WHERE id = :menu_item_id",
                        {"remove failed:"});
    statement.bind(":menu_item_id", menuItemId);
    std::ignore = statement.run();
}

constexpr auto getMenuItemByIdSql = R"(
    SELECT id, item, category_id, price, portion_size, is_available, is_taxable FROM menu
    WHERE id = :id)";

std::optional<MenuItem> MenuRepository::getMenuItemById(int id) const
{
    Statement statement(m_database, getMenuItemByIdSql, {"getMenuItemById failed:"});
    statement.bind(":id", id);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readMenuItem(statement);
}

constexpr auto getMenuItemsByCategorySql = R"(
    SELECT id, item, category_id, price, portion_size, is_available, is_taxable FROM menu
    WHERE category_id = :category_id)";

QList<MenuItem> MenuRepository::getMenuItemsByCategory(int categoryId) const
{
    Statement statement(m_database, getMenuItemsByCategorySql, {"getMenuItemsByCategory failed:"});
    statement.bind(":category_id", categoryId);
    return statement.rows(readMenuItem);
}

constexpr auto getAllMenuItemsSql = R"(
    SELECT id, item, category_id, price, portion_size, is_available, is_taxable FROM menu)";

QList<MenuItem> MenuRepository::getAllMenuItems() const
{
    // The text names the categories; logs are searched for it, so it stays.
    Statement statement(m_database, getAllMenuItemsSql, {"getAllCategories failed:"});
    return statement.rows(readMenuItem);
}
