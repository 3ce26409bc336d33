// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/CategoryRepository.h"

#include "repositories/Statement.h"

namespace {
Category readCategory(const Statement &row)
{
    Category category;
    category.id = row.integer(0);
    category.category = row.text(1);
    return category;
}
} // namespace

CategoryRepository::CategoryRepository(const QSqlDatabase &database)
    : m_database(database)
{}

void CategoryRepository::create(const Category &category)
{
    Statement statement(m_database, "INSERT INTO categories (category) VALUES (:category)",
                        {"create failed:"});
    statement.bind(":category", category.category);
    // A failure is only logged: the caller has no use for it.
    std::ignore = statement.run();
}

constexpr auto updateSql = "UPDATE categories SET category = :category WHERE id = :category_id";

void CategoryRepository::update(const Category &category)
{
    Statement statement(m_database, updateSql, {"update failed:"});
    statement.bind(":category", category.category);
    statement.bind(":category_id", category.id);
    std::ignore = statement.run();
}

void CategoryRepository::remove(int categoryId)
{
    Statement statement(m_database, "DELETE FROM categories WHERE id = :category_id",
                        {"remove failed:"});
    statement.bind(":category_id", categoryId);
    std::ignore = statement.run();
}

std::optional<Category> CategoryRepository::getCategoryById(int id) const
{
    Statement statement(m_database, "SELECT id, category FROM categories WHERE id = :id",
                        {"getCategoryById failed:"});
    statement.bind(":id", id);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readCategory(statement);
}

QList<Category> CategoryRepository::getAllCategories() const
{
    Statement statement(m_database, "SELECT id, category FROM categories",
                        {"getAllCategories failed:"});
    return statement.rows(readCategory);
}
