// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "models/CanvasItemModel.h"
#include "models/FloorModel.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

class CanvasItemRepository;
class FloorRepository;
class ReservationRepository;
class TableRepository;
class TableService;

/// The drawn floor plan. A table exists in `tables` from the moment it is placed on the canvas to
/// the moment it is deleted from it; saving only rewrites places and looks. Both models are shared
/// by the editor and the order screen: the last load wins.
class FloorPlanService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(FloorModel *floorModel READ floorModel CONSTANT)
    Q_PROPERTY(CanvasItemModel *canvasModel READ canvasModel CONSTANT)

public:
    FloorPlanService(FloorRepository *floors, CanvasItemRepository *items, TableRepository *tables,
                     ReservationRepository *reservations, TableService *tableService,
                     QObject *parent = nullptr);

    [[nodiscard]] FloorModel *floorModel() const { return m_floorModel; }
    [[nodiscard]] CanvasItemModel *canvasModel() const { return m_canvasModel; }
    /// The floor asked for last, whether or not it exists; -1 before the first.
    [[nodiscard]] int currentFloorId() const { return m_currentFloorId; }

    Q_INVOKABLE void loadFloors();
    /// The new id, or -1. Any name will do, an empty one too.
    Q_INVOKABLE int createFloor(const QString &name);
    /// Stores the floor and then shows it so; false when the store refuses.
    bool updateFloor(const Floor &floor);
    /// Takes the floor's items and their tables along.
    Q_INVOKABLE bool deleteFloor(int floorId);

    /// Shows the floor, with capacity and status of its tables and the earliest booking over them.
    Q_INVOKABLE void loadCanvas(int floorId);
    /// Replaces the floor's stored items by those shown; a failure leaves the store as it was.
    Q_INVOKABLE bool saveCanvas(int floorId);
    Q_INVOKABLE void clearCanvas();

    /// Draws anything but a table; nothing is stored until the save.
    Q_INVOKABLE void addItem(const QVariantMap &itemData);
    /// Stores the table at once; its drawing waits for the save.
    Q_INVOKABLE void createTableItem(const QVariantMap &itemData);
    /// Deletes the table at once, saved or not. A row out of range is ignored.
    Q_INVOKABLE void deleteItem(int index);

public slots:
    void onTableStatusChanged(int tableId, const QString &newStatus);

signals:
    void tableStatusUpdated(int tableId, const QString &status);

private:
    void mergeTable(CanvasItem &item) const;

    FloorRepository *m_floors;
    CanvasItemRepository *m_items;
    TableRepository *m_tables;
    ReservationRepository *m_reservations;
    TableService *m_tableService;
    FloorModel *m_floorModel;
    /// Watched, for a status may still come while the children go.
    QPointer<CanvasItemModel> m_canvasModel;
    int m_currentFloorId = -1;
};
