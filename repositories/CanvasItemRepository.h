// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/CanvasItem.h"

#include <QList>
#include <QSqlDatabase>

/// The SQL of `canvas_items`. Row ids change at each save; only `table_id` is stable.
class CanvasItemRepository final
{
public:
    explicit CanvasItemRepository(const QSqlDatabase &database);

    /// Replaces all items of the floor in one transaction; a failure leaves the floor as it was.
    bool saveAll(int floorId, const QList<CanvasItem> &items);
    /// By ascending draw order; `capacity` and `status` absent.
    [[nodiscard]] QList<CanvasItem> fetchByFloor(int floorId) const;
    /// False on failure, of which nothing is logged.
    bool remove(int itemId);

private:
    QSqlDatabase m_database;
};
