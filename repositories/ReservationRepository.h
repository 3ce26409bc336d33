// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Reservation.h"

#include <QDate>
#include <QList>
#include <QSqlDatabase>
#include <QString>

/// The SQL of `reservations`. Times are local.
class ReservationRepository final
{
public:
    explicit ReservationRepository(const QSqlDatabase &database);

    bool create(const Reservation &reservation);
    bool update(const Reservation &reservation);
    bool updateStatus(int id, const QString &status);
    bool remove(int id);

    /// A record with id -1 for none.
    [[nodiscard]] Reservation fetchById(int id) const;
    [[nodiscard]] QList<Reservation> fetchByDate(const QDate &date) const;
    [[nodiscard]] QList<Reservation> fetchAll() const;
    /// By ascending time.
    [[nodiscard]] QList<Reservation> fetchByTable(int tableId) const;
    /// The same without those that are cancelled or completed: nobody asks for these, and in years
    /// they are nearly all.
    [[nodiscard]] QList<Reservation> fetchUnfinishedByTable(int tableId) const;

private:
    QSqlDatabase m_database;
};
