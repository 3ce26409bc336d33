// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "repositories/CategoryRepository.h"
#include "repositories/MenuRepository.h"
#include "services/MenuService.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"

/// The menu's repositories on a database of their own and the service above them.
struct MenuStore
{
    [[nodiscard]] QVariantList shownItems() const
    {
        return ModelRows::column(*service.menuItemModel(), "item");
    }
    [[nodiscard]] QVariantList shownCategories() const
    {
        return ModelRows::column(*service.categoryModel(), "name");
    }
    /// An order line that names the item with id 1.
    void orderFirstItem() const
    {
        database.run("INSERT INTO order_sessions (display_number, order_type, status) "
                     "VALUES (1, 'takeaway', 'open')");
        database.run("INSERT INTO orders (order_session_id, display_number, status) "
                     "VALUES (1, 1, 'pending')");
        database.run("INSERT INTO order_items (order_id, item_id, item_name, quantity, price, "
                     "is_taxable, item_status) VALUES (1, 1, 'Broth', 1, 500, 1, 'pending')");
    }

    TestDatabase database;
    MenuRepository menu{database.handle()};
    CategoryRepository categories{database.handle()};
    MenuService service{&menu, &categories};
};
