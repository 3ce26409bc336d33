// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QVariantList>
#include <QVariantMap>

class ReservationRepository;
class TableService;

/// Books tables. Nothing here is driven by the clock: a reservation's status moves only by what the
/// staff do. Times are local. Maps have the keys `id`, `customerName`, `customerPhone`, `pax`,
/// `tableId`, `reservationDateTime`, `durationMinutes`, `status` and `notes`.
class ReservationService final : public QObject
{
    Q_OBJECT

public:
    ReservationService(ReservationRepository *reservations, TableService *tables,
                       QObject *parent = nullptr);

    /// The earliest booked or seated one, however long past; empty for none.
    Q_INVOKABLE [[nodiscard]] QVariantMap getActiveReservationByTable(int tableId) const;
    /// False for an overlap, silently, and for a failed write. Turns the table "reserved" whatever
    /// it was, for a booking of any date.
    Q_INVOKABLE bool createReservation(const QVariantMap &data);
    /// False for an overlap, silently, and for a failed write. The table's status stays.
    Q_INVOKABLE bool updateReservation(const QVariantMap &data);
    /// Neither the table's status nor anyone else learns of it.
    Q_INVOKABLE bool deleteReservation(int reservationId);
    /// Turns the table "available" whatever it was.
    Q_INVOKABLE bool cancelReservation(int reservationId);
    Q_INVOKABLE [[nodiscard]] QVariantList getReservationsByDate(const QDate &date) const;
    /// Whether the span is free of bookings that are neither cancelled nor completed.
    Q_INVOKABLE [[nodiscard]] bool isTableAvailable(int tableId, const QDateTime &start,
                                                    int durationMinutes) const;

    /// The earliest "seated" one, for the checkout; empty for none.
    [[nodiscard]] QVariantMap getSeatedReservationByTable(int tableId) const;

signals:
    void reservationChanged(int tableId);

private:
    [[nodiscard]] bool hasConflict(int tableId, const QDateTime &start, const QDateTime &end,
                                   int excludeId) const;

    ReservationRepository *m_reservations;
    TableService *m_tables;
};
