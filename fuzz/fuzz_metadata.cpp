// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "fuzz/FuzzStore.h"
#include "fuzz/FuzzTarget.h"
#include "models/CanvasItemModel.h"

#include <QJsonDocument>
#include <QJsonObject>

/// What a floor plan keeps about an item. A booked table's is read and written anew at every load.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzStore &store = FuzzStore::instance();
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    store.write(QStringLiteral("UPDATE canvas_items SET metadata = CAST(? AS TEXT)"), input);

    FloorPlanService &plan = store.services.floorPlan;
    plan.loadCanvas(FuzzStore::floor);
    const CanvasItemModel &items = *plan.canvasModel();
    if (items.rowCount() != 2) {
        qFatal("an item went missing");
    }
    const QString booked = items.data(items.index(0, 0), CanvasItemModel::MetadataRole).toString();
    if (!QJsonDocument::fromJson(booked.toUtf8())
             .object()
             .contains(QStringLiteral("reservation"))) {
        qFatal("the booking is not shown");
    }
    if (!plan.saveCanvas(FuzzStore::floor)) {
        qFatal("the plan cannot be saved");
    }
    return 0;
}
