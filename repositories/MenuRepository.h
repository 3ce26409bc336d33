// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/MenuItem.h"

#include <QList>
#include <QSqlDatabase>

#include <optional>

/// The SQL of `menu`. Prices are cents. Writes answer nothing: failures are only logged.
class MenuRepository final
{
public:
    explicit MenuRepository(const QSqlDatabase &database);

    void create(const MenuItem &item);
    void update(const MenuItem &item);
    /// Refused by the foreign key where an order names the item.
    void remove(int menuItemId);

    [[nodiscard]] std::optional<MenuItem> getMenuItemById(int id) const;
    [[nodiscard]] QList<MenuItem> getMenuItemsByCategory(int categoryId) const;
    [[nodiscard]] QList<MenuItem> getAllMenuItems() const;

private:
    QSqlDatabase m_database;
};
