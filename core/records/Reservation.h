// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDateTime>
#include <QString>

/// A table booked for one customer.
struct Reservation
{
    int id = -1;
    QString customer_name;
    QString customer_phone;
    int pax = 0;
    int table_id = -1;
    /// Local time.
    QDateTime reservation_datetime;
    int duration_minutes = 0;
    /// "booked", "seated", "completed", "cancelled" or "no_show".
    QString status;
    QString notes;
};
