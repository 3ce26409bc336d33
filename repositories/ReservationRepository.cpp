// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/ReservationRepository.h"

#include "repositories/BoundedSql.h"
#include "repositories/Statement.h"
#include "repositories/WorkingSet.h"

namespace {
const QString dateTimeFormat = QStringLiteral("yyyy-MM-dd HH:mm:ss");

/// The number in the digits from `at` on; -1 where one of them is none.
int digits(const QString &text, int at, int count)
{
    int number = 0;
    for (int index = at; index < at + count; ++index) {
        const char16_t digit = text.at(index).unicode();
        if (digit < u'0' || digit > u'9') {
            return -1;
        }
        number = number * 10 + (digit - u'0');
    }
    return number;
}

/// A table's bookings of years are read at once, and Qt's parser of free formats takes longer over
/// each than SQLite does. It keeps the last word on all that is not plain: other texts, and the
/// hours that the local clock leaves out or repeats.
QDateTime readDateTime(const QString &text)
{
    constexpr int length = 19;
    if (text.size() == length && text.at(4) == u'-' && text.at(7) == u'-' && text.at(10) == u' ' &&
        text.at(13) == u':' && text.at(16) == u':') {
        const QDate date(digits(text, 0, 4), digits(text, 5, 2), digits(text, 8, 2));
        const QTime time(digits(text, 11, 2), digits(text, 14, 2), digits(text, 17, 2));
        const QDateTime moment(date, time);
        if (date.isValid() && time.isValid() && moment.isValid() && moment.time() == time) {
            return moment;
        }
    }
    return QDateTime::fromString(text, dateTimeFormat);
}

Reservation readReservation(const Statement &row)
{
    Reservation reservation;
    reservation.id = row.integer(0);
    reservation.customer_name = row.text(1);
    reservation.customer_phone = row.text(2);
    reservation.pax = row.integer(3);
    reservation.table_id = row.integer(4);
    reservation.reservation_datetime = readDateTime(row.text(5));
    reservation.duration_minutes = row.integer(6);
    reservation.status = row.text(7);
    reservation.notes = row.text(8);
    return reservation;
}

void bindFields(Statement &statement, const Reservation &reservation)
{
    statement.bind(":customer_name", reservation.customer_name);
    statement.bind(":customer_phone", reservation.customer_phone);
    statement.bind(":pax", reservation.pax);
    statement.bind(":table_id", reservation.table_id);
    statement.bind(":reservation_datetime",
                   reservation.reservation_datetime.toString(dateTimeFormat));
    statement.bind(":duration_minutes", reservation.duration_minutes);
    statement.bind(":status", reservation.status);
    statement.bind(":notes", reservation.notes);
}
} // namespace

ReservationRepository::ReservationRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto createSql = R"(
    INSERT INTO reservations (customer_name, customer_phone, pax, table_id,
        reservation_datetime, duration_minutes, status, notes)
    VALUES (:customer_name, :customer_phone, :pax, :table_id,
        :reservation_datetime, :duration_minutes, :status, :notes))";

bool ReservationRepository::create(const Reservation &reservation)
{
    Statement statement(m_database, createSql, {"Failed to create reservation:"});
    bindFields(statement, reservation);
    return statement.run();
}

constexpr auto updateSql = R"(
    UPDATE reservations SET customer_name = :customer_name, customer_phone = :customer_phone,
        pax = :pax, table_id = :table_id, reservation_datetime = :reservation_datetime,
        duration_minutes = :duration_minutes, status = :status, notes = :notes,
        updated_at = CURRENT_TIMESTAMP
    WHERE id = :id)";

bool ReservationRepository::update(const Reservation &reservation)
{
    Statement statement(m_database, updateSql, {"Failed to update reservation:"});
    bindFields(statement, reservation);
    statement.bind(":id", reservation.id);
    return statement.run();
}

constexpr auto updateStatusSql = R"(
    UPDATE reservations SET status = :status, updated_at = CURRENT_TIMESTAMP WHERE id = :id)";

bool ReservationRepository::updateStatus(int id, const QString &status)
{
    Statement statement(m_database, updateStatusSql, {"Failed to update status:"});
    statement.bind(":status", status);
    statement.bind(":id", id);
    return statement.run();
}

bool ReservationRepository::remove(int id)
{
    Statement statement(m_database, "DELETE FROM reservations WHERE id = :id",
                        {"Failed to delete reservation:"});
    statement.bind(":id", id);
    return statement.run();
}

constexpr auto fetchByIdSql = R"(
    SELECT id, customer_name, customer_phone, pax, table_id, reservation_datetime,
        duration_minutes, status, notes
    FROM reservations WHERE id = :id)";

Reservation ReservationRepository::fetchById(int id) const
{
    Statement statement(m_database, fetchByIdSql, {"Failed to get reservation:"});
    statement.bind(":id", id);
    return statement.run() && statement.next() ? readReservation(statement) : Reservation();
}

constexpr auto fetchByDateSql = R"(
    SELECT id, customer_name, customer_phone, pax, table_id, reservation_datetime,
        duration_minutes, status, notes
    FROM reservations
    WHERE DATE(reservation_datetime) = :date
    ORDER BY reservation_datetime ASC)";

QList<Reservation> ReservationRepository::fetchByDate(const QDate &date) const
{
    Statement statement(m_database, fetchByDateSql, {"Failed to get reservations by date:"});
    statement.bind(":date", date.toString(QStringLiteral("yyyy-MM-dd")));
    return statement.rows(readReservation);
}

constexpr auto fetchAllSql = R"(
    SELECT id, customer_name, customer_phone, pax, table_id, reservation_datetime,
        duration_minutes, status, notes
    FROM reservations
    ORDER BY reservation_datetime ASC)";

QList<Reservation> ReservationRepository::fetchAll() const
{
    Statement statement(m_database, fetchAllSql, {"Failed to get reservations:"});
    return statement.rows(readReservation);
}

constexpr auto fetchByTableSql = R"(
    SELECT id, customer_name, customer_phone, pax, table_id, reservation_datetime,
        duration_minutes, status, notes
    FROM reservations
    WHERE table_id = ?
    ORDER BY reservation_datetime ASC)";

QList<Reservation> ReservationRepository::fetchByTable(int tableId) const
{
    Statement statement(m_database, fetchByTableSql, {"Failed to get reservations by table:"});
    statement.addBind(tableId);
    return statement.rows(readReservation);
}

const BoundedSql fetchUnfinishedByTableSql(R"(
    SELECT id, customer_name, customer_phone, pax, table_id, reservation_datetime,
        duration_minutes, status, notes
    FROM reservations
    WHERE table_id = ? AND (status IS NULL OR status NOT IN ('cancelled', 'completed')) {bound}
    ORDER BY reservation_datetime ASC)",
                                           "AND id IN (SELECT id FROM temp.working_bookings"
                                           " WHERE table_id = ?)");

QList<Reservation> ReservationRepository::fetchUnfinishedByTable(int tableId) const
{
    const bool held = WorkingSet::isReady(m_database);
    Statement statement(m_database, fetchUnfinishedByTableSql.text(held),
                        {"Failed to get reservations by table:"});
    statement.addBind(tableId);
    if (held) {
        statement.addBind(tableId);
    }
    return statement.rows(readReservation);
}
