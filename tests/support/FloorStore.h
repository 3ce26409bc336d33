// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "repositories/CanvasItemRepository.h"
#include "repositories/FloorRepository.h"
#include "repositories/ReservationRepository.h"
#include "repositories/TableRepository.h"
#include "services/FloorPlanService.h"
#include "services/TableService.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"

/// The repositories behind the floor plan on a database of their own and the services above them.
struct FloorStore
{
    [[nodiscard]] int count(const QString &table) const
    {
        return database.value(QStringLiteral("SELECT COUNT(*) FROM %1").arg(table)).toInt();
    }

    /// Draws a table on the shown floor; its id in `tables`.
    int drawTable(const QString &label)
    {
        service.createTableItem({{"label", label}, {"capacity", 4}});
        const CanvasItemModel &model = *service.canvasModel();
        return ModelRows::value(model, model.rowCount() - 1, "table_id").toInt();
    }

    TestDatabase database;
    FloorRepository floors{database.handle()};
    CanvasItemRepository items{database.handle()};
    TableRepository tables{database.handle()};
    ReservationRepository reservations{database.handle()};
    TableService tableService{&tables};
    FloorPlanService service{&floors, &items, &tables, &reservations, &tableService};
};
