// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Migrations.h"

const QStringList &migrationNames()
{
    static const QStringList names{
        QStringLiteral("core/database/migrations/001_create_users.sql"),
        QStringLiteral("core/database/migrations/002_create_categories.sql"),
        QStringLiteral("core/database/migrations/003_create_menu.sql"),
        QStringLiteral("core/database/migrations/004_create_tables.sql"),
        QStringLiteral("core/database/migrations/005_create_order_sessions.sql"),
        QStringLiteral("core/database/migrations/006_create_order_items.sql"),
        QStringLiteral("core/database/migrations/007_create_orders.sql"),
        QStringLiteral("core/database/migrations/008_create_restaurant.sql"),
        QStringLiteral("core/database/migrations/009_create_printers.sql"),
        QStringLiteral("core/database/migrations/010_create_tax_settings.sql"),
        QStringLiteral("core/database/migrations/011_create_membership_settings.sql"),
        QStringLiteral("core/database/migrations/012_create_memberships.sql"),
        QStringLiteral("core/database/migrations/013_create_membership_transactions.sql"),
        QStringLiteral("core/database/migrations/014_create_kitchen_settings.sql"),
        QStringLiteral("core/database/migrations/015_create_regional_settings.sql"),
        QStringLiteral("core/database/migrations/016_create_floors.sql"),
        QStringLiteral("core/database/migrations/017_create_canvas_items.sql"),
        QStringLiteral("core/database/migrations/018_create_table_settings.sql"),
        QStringLiteral("core/database/migrations/019_create_reservations.sql"),
        QStringLiteral("core/database/migrations/020_create_app_state.sql"),
        QStringLiteral("core/database/migrations/021_create_receipt_snapshot.sql"),
    };
    return names;
}
