// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/ReservationService.h"

#include "core/Logging.h"
#include "core/records/Reservation.h"
#include "repositories/ReservationRepository.h"
#include "services/TableService.h"

namespace {
constexpr qint64 secondsPerMinute = 60;

QVariantMap mapOf(const Reservation &reservation)
{
    return {{QStringLiteral("id"), reservation.id},
            {QStringLiteral("customerName"), reservation.customer_name},
            {QStringLiteral("customerPhone"), reservation.customer_phone},
            {QStringLiteral("pax"), reservation.pax},
            {QStringLiteral("tableId"), reservation.table_id},
            {QStringLiteral("reservationDateTime"), reservation.reservation_datetime},
            {QStringLiteral("durationMinutes"), reservation.duration_minutes},
            {QStringLiteral("status"), reservation.status},
            {QStringLiteral("notes"), reservation.notes}};
}

/// An absent key is an empty text, 0 or an invalid time; for the ids 0 as well.
Reservation recordOf(const QVariantMap &map)
{
    Reservation reservation;
    reservation.id = map.value(QStringLiteral("id")).toInt();
    reservation.customer_name = map.value(QStringLiteral("customerName")).toString();
    reservation.customer_phone = map.value(QStringLiteral("customerPhone")).toString();
    reservation.pax = map.value(QStringLiteral("pax")).toInt();
    reservation.table_id = map.value(QStringLiteral("tableId")).toInt();
    reservation.reservation_datetime =
        map.value(QStringLiteral("reservationDateTime")).toDateTime();
    reservation.duration_minutes = map.value(QStringLiteral("durationMinutes")).toInt();
    reservation.status = map.value(QStringLiteral("status")).toString();
    reservation.notes = map.value(QStringLiteral("notes")).toString();
    return reservation;
}

QDateTime endOf(const QDateTime &start, int durationMinutes)
{
    return start.addSecs(durationMinutes * secondsPerMinute);
}

QDateTime endOf(const Reservation &reservation)
{
    return endOf(reservation.reservation_datetime, reservation.duration_minutes);
}

/// A guest who did not come still blocks the slot: only these two free it.
bool freesItsSlot(const QString &status)
{
    return status == QLatin1String("cancelled") || status == QLatin1String("completed");
}

bool isActive(const QString &status)
{
    return !freesItsSlot(status) && status != QLatin1String("no_show");
}
} // namespace

ReservationService::ReservationService(ReservationRepository *reservations, TableService *tables,
                                       QObject *parent)
    : QObject(parent)
    , m_reservations(reservations)
    , m_tables(tables)
{}

QVariantMap ReservationService::getActiveReservationByTable(int tableId) const
{
    for (const Reservation &reservation : m_reservations->fetchUnfinishedByTable(tableId)) {
        if (isActive(reservation.status)) {
            return mapOf(reservation);
        }
    }
    return {};
}

bool ReservationService::createReservation(const QVariantMap &data)
{
    const Reservation reservation = recordOf(data);
    if (hasConflict(reservation.table_id, reservation.reservation_datetime, endOf(reservation),
                    -1)) {
        return false;
    }
    if (!m_reservations->create(reservation)) {
        return false;
    }
    m_tables->setTableStatus(reservation.table_id, QStringLiteral("reserved"));
    emit reservationChanged(reservation.table_id);
    return true;
}

bool ReservationService::updateReservation(const QVariantMap &data)
{
    const Reservation reservation = recordOf(data);
    // Also for a change of status alone: one that overlaps another keeps its old status.
    if (hasConflict(reservation.table_id, reservation.reservation_datetime, endOf(reservation),
                    reservation.id)) {
        return false;
    }
    if (!m_reservations->update(reservation)) {
        return false;
    }
    emit reservationChanged(reservation.table_id);
    return true;
}

bool ReservationService::deleteReservation(int reservationId)
{
    return m_reservations->remove(reservationId);
}

bool ReservationService::cancelReservation(int reservationId)
{
    const Reservation reservation = m_reservations->fetchById(reservationId);
    if (reservation.id < 1) {
        qCWarning(lcReservation) << "Cancel failed: reservation not found";
        return false;
    }
    if (!m_reservations->updateStatus(reservation.id, QStringLiteral("cancelled"))) {
        return false;
    }
    m_tables->setTableStatus(reservation.table_id, QStringLiteral("available"));
    emit reservationChanged(reservation.table_id);
    return true;
}

QVariantList ReservationService::getReservationsByDate(const QDate &date) const
{
    QVariantList maps;
    for (const Reservation &reservation : m_reservations->fetchByDate(date)) {
        maps.append(mapOf(reservation));
    }
    return maps;
}

bool ReservationService::isTableAvailable(int tableId, const QDateTime &start,
                                          int durationMinutes) const
{
    return !hasConflict(tableId, start, endOf(start, durationMinutes), -1);
}

QVariantMap ReservationService::getSeatedReservationByTable(int tableId) const
{
    for (const Reservation &reservation : m_reservations->fetchUnfinishedByTable(tableId)) {
        if (reservation.status == QLatin1String("seated")) {
            return mapOf(reservation);
        }
    }
    return {};
}

bool ReservationService::hasConflict(int tableId, const QDateTime &start, const QDateTime &end,
                                     int excludeId) const
{
    for (const Reservation &other : m_reservations->fetchUnfinishedByTable(tableId)) {
        if (other.id == excludeId || freesItsSlot(other.status)) {
            continue;
        }
        // Both strict: one may begin in the very second another ends.
        if (start < endOf(other) && end > other.reservation_datetime) {
            return true;
        }
    }
    return false;
}
