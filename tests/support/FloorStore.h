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

#include <QSqlDatabase>

/// The repositories behind the floor plan on one handle and the services above them.
struct FloorStore
{
    explicit FloorStore(const QSqlDatabase &database)
        : floors(database)
        , items(database)
        , tables(database)
        , reservations(database)
        , tableService(&tables)
        , service(&floors, &items, &tables, &reservations, &tableService)
    {}

    /// Draws a table on the shown floor; its id in `tables`.
    int drawTable(const QString &label)
    {
        service.createTableItem({{"label", label}, {"capacity", 4}});
        const CanvasItemModel &model = *service.canvasModel();
        return ModelRows::value(model, model.rowCount() - 1, "table_id").toInt();
    }

    FloorRepository floors;
    CanvasItemRepository items;
    TableRepository tables;
    ReservationRepository reservations;
    TableService tableService;
    FloorPlanService service;
};
