// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/FloorPlanService.h"

#include "core/Logging.h"
#include "core/records/Reservation.h"
#include "core/records/Table.h"
#include "repositories/CanvasItemRepository.h"
#include "repositories/FloorRepository.h"
#include "repositories/ReservationRepository.h"
#include "repositories/TableRepository.h"
#include "services/TableService.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {
bool isStoredTable(const CanvasItem &item)
{
    return item.type == QLatin1String("table") && item.table_id.has_value();
}

/// "seated" is not laid over the plan either: the table itself then says "occupied".
bool isLaidOverThePlan(const QString &status)
{
    return status != QLatin1String("seated") && status != QLatin1String("cancelled") &&
           status != QLatin1String("completed") && status != QLatin1String("no_show");
}

/// The earliest such booking. No date is compared: next month's counts as much as tonight's.
std::optional<Reservation> earliestBooking(const QList<Reservation> &byTime)
{
    for (const Reservation &reservation : byTime) {
        if (isLaidOverThePlan(reservation.status)) {
            return reservation;
        }
    }
    return std::nullopt;
}

/// A display copy for the plan; its labels are English in every language.
QJsonObject displayCopy(const Reservation &reservation)
{
    const QDateTime &time = reservation.reservation_datetime;
    return {
        {QStringLiteral("id"), reservation.id},
        {QStringLiteral("customer_name"), reservation.customer_name},
        {QStringLiteral("customer_phone"), reservation.customer_phone},
        {QStringLiteral("pax"), reservation.pax},
        {QStringLiteral("reservation_datetime"), time.toString(Qt::ISODateWithMs)},
        {QStringLiteral("duration_minutes"), reservation.duration_minutes},
        {QStringLiteral("status"), reservation.status},
        {QStringLiteral("notes"), reservation.notes},
        {QStringLiteral("time_label"), time.toString(QStringLiteral("hh:mm AP"))},
        {QStringLiteral("date_label"), time.toString(QStringLiteral("dd MMM yyyy"))},
        {QStringLiteral("datetime_label"), time.toString(QStringLiteral("dd MMM yyyy hh:mm AP"))}};
}

/// Whatever is no JSON object gives an empty one.
QJsonObject parsedObject(const std::optional<QString> &metadata)
{
    return metadata ? QJsonDocument::fromJson(metadata->toUtf8()).object() : QJsonObject();
}

bool isGiven(const QVariantMap &map, const QString &key)
{
    return map.contains(key) && !map.value(key).isNull();
}

double realOf(const QVariantMap &map, const char *key, double absent = 0.0)
{
    return map.value(QLatin1String(key), absent).toDouble();
}

/// Place and looks, which both kinds of items share.
CanvasItem itemOf(const QVariantMap &map)
{
    CanvasItem item;
    item.label = map.value(QStringLiteral("label"), QStringLiteral("")).toString();
    item.x = realOf(map, "x");
    item.y = realOf(map, "y");
    item.width = realOf(map, "width");
    item.height = realOf(map, "height");
    item.rotation = realOf(map, "rotation");
    item.color = map.value(QStringLiteral("color"), QStringLiteral("#444")).toString();
    item.border_color =
        map.value(QStringLiteral("border_color"), QStringLiteral("#ffffff")).toString();
    item.opacity = realOf(map, "opacity", 1.0);
    item.z_order = map.value(QStringLiteral("z_order"), 0).toInt();
    if (isGiven(map, QStringLiteral("metadata"))) {
        item.metadata = map.value(QStringLiteral("metadata")).toString();
    }
    return item;
}

int rowOf(const QList<Floor> &floors, int floorId)
{
    for (int row = 0; row < floors.size(); ++row) {
        if (floors.at(row).id == floorId) {
            return row;
        }
    }
    return -1;
}
} // namespace

FloorPlanService::FloorPlanService(FloorRepository *floors, CanvasItemRepository *items,
                                   TableRepository *tables, ReservationRepository *reservations,
                                   TableService *tableService, QObject *parent)
    : QObject(parent)
    , m_floors(floors)
    , m_items(items)
    , m_tables(tables)
    , m_reservations(reservations)
    , m_tableService(tableService)
    , m_floorModel(new FloorModel(this))
    , m_canvasModel(new CanvasItemModel(this))
{
    loadFloors();
    connect(m_tableService, &TableService::tableStatusChanged, this,
            &FloorPlanService::onTableStatusChanged);
}

void FloorPlanService::loadFloors()
{
    m_floorModel->setFloors(m_floors->fetchAll());
}

int FloorPlanService::createFloor(const QString &name)
{
    Floor floor;
    floor.name = name;
    // Not the highest number in use: after deletions two floors can share one.
    floor.floor_number = m_floorModel->rowCount() + 1;
    floor.sort_order = floor.floor_number;
    floor.is_active = 1;
    floor.id = m_floors->create(floor);
    if (floor.id < 1) {
        return -1;
    }
    m_floorModel->addFloor(floor);
    return floor.id;
}

bool FloorPlanService::updateFloor(const Floor &floor)
{
    if (!m_floors->update(floor)) {
        return false;
    }
    m_floorModel->updateFloor(rowOf(m_floorModel->floors(), floor.id), floor);
    return true;
}

bool FloorPlanService::deleteFloor(int floorId)
{
    // No transaction: where the last step fails the tables are gone and the floor stays.
    for (const CanvasItem &item : m_items->fetchByFloor(floorId)) {
        if (isStoredTable(item)) {
            m_tableService->removeTable(*item.table_id);
        }
    }
    if (!m_floors->remove(floorId)) {
        return false;
    }
    m_floorModel->removeFloor(rowOf(m_floorModel->floors(), floorId));
    return true;
}

void FloorPlanService::loadCanvas(int floorId)
{
    m_currentFloorId = floorId;
    QList<CanvasItem> items = m_items->fetchByFloor(floorId);
    for (CanvasItem &item : items) {
        if (isStoredTable(item)) {
            mergeTable(item);
        }
    }
    m_canvasModel->setItems(items);
}

bool FloorPlanService::saveCanvas(int floorId)
{
    return m_items->saveAll(floorId, m_canvasModel->items());
}

void FloorPlanService::clearCanvas()
{
    m_canvasModel->clear();
}

void FloorPlanService::addItem(const QVariantMap &itemData)
{
    CanvasItem item = itemOf(itemData);
    item.type = itemData.value(QStringLiteral("type"), QStringLiteral("")).toString();
    if (isGiven(itemData, QStringLiteral("table_id"))) {
        item.table_id = itemData.value(QStringLiteral("table_id")).toInt();
    }
    m_canvasModel->addItem(item);
}

void FloorPlanService::createTableItem(const QVariantMap &itemData)
{
    CanvasItem item = itemOf(itemData);
    item.floor_id = itemData.value(QStringLiteral("floor_id"), 0).toInt();
    item.type = QStringLiteral("table");
    item.border_width = realOf(itemData, "border_width", 1.0);
    item.capacity = itemData.value(QStringLiteral("capacity"), 0).toInt();
    item.status = QStringLiteral("available");
    // The answer is not looked at: an item with no table fails at the save.
    item.table_id = m_tableService->addTable(*item.label, *item.capacity);
    m_canvasModel->addItem(item);
}

void FloorPlanService::deleteItem(int index)
{
    const QList<CanvasItem> items = m_canvasModel->items();
    if (index < 0 || index >= items.size()) {
        return;
    }
    const CanvasItem &item = items.at(index);
    if (isStoredTable(item)) {
        m_tableService->removeTable(*item.table_id);
    }
    m_canvasModel->removeItem(index);
}

void FloorPlanService::onTableStatusChanged(int tableId, const QString &newStatus)
{
    if (!m_canvasModel) {
        qCWarning(lcFloorPlan) << "FloorPlanService: No canvas model";
        return;
    }
    m_canvasModel->updateStatusByTable(tableId, newStatus);
    emit tableStatusUpdated(tableId, newStatus);
}

void FloorPlanService::mergeTable(CanvasItem &item) const
{
    const std::optional<Table> table = m_tables->getTableById(*item.table_id);
    if (!table) {
        return;
    }
    item.capacity = table->capacity;
    item.status = table->status;
    const std::optional<Reservation> booking =
        earliestBooking(m_reservations->fetchUnfinishedByTable(*item.table_id));
    if (!booking) {
        // A copy stored with the plan stays in the metadata until the next booking replaces it.
        return;
    }
    // Over any status, an occupied table's too.
    item.status = QStringLiteral("reserved");
    QJsonObject metadata = parsedObject(item.metadata);
    metadata.insert(QStringLiteral("reservation"), displayCopy(*booking));
    item.metadata = QString::fromUtf8(QJsonDocument(metadata).toJson(QJsonDocument::Compact));
}
