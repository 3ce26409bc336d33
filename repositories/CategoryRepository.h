// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Category.h"

#include <QList>
#include <QSqlDatabase>

#include <optional>

/// The SQL of `categories`. Writes answer nothing: failures are only logged.
class CategoryRepository final
{
public:
    explicit CategoryRepository(const QSqlDatabase &database);

    void create(const Category &category);
    void update(const Category &category);
    /// Takes the items of the category along, by the foreign key.
    void remove(int categoryId);

    [[nodiscard]] std::optional<Category> getCategoryById(int id) const;
    [[nodiscard]] QList<Category> getAllCategories() const;

private:
    QSqlDatabase m_database;
};
