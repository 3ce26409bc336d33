// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/WorkingSetSql.h"

namespace {
/// The UTC day of a stamp; NULL where it is not written plainly: such a row is in every day's
/// bound.
QString dayOf(const QString &stamp)
{
    return QStringLiteral("CASE WHEN substr(%1, 5, 1) = '-' THEN DATE(%1) END").arg(stamp);
}

/// Whether the stamp's day may be the given one or a later one. As a text and by two comparisons,
/// so that years of rows are passed in a moment: beside plain dates SQLite also takes a day's
/// number, which may begin with any sign, and so everything that does not read like an earlier day
/// of this millennium counts as young.
QString isYoung(const QString &stamp, const QDate &youngFrom)
{
    return QStringLiteral("NOT (%1 >= '20' AND %1 < '%2')")
        .arg(stamp, youngFrom.toString(Qt::ISODate));
}

/// Of a row that hangs on another one: whether that one is held. Below the first id these are few,
/// such as the bill that was forgotten open years ago: what lies outside of these few is passed by
/// two comparisons.
QString hangsOn(const QString &column, const QString &table, qlonglong first)
{
    return QStringLiteral("(%1 >= %3 OR (%1 BETWEEN (SELECT MIN(id) FROM temp.%2)"
                          " AND (SELECT MAX(id) FROM temp.%2 WHERE id < %3)"
                          " AND %1 IN (SELECT id FROM temp.%2 WHERE id < %3)))")
        .arg(column, table)
        .arg(first);
}

/// A trigger of the connection, its first word the table's short name.
QString trigger(const QString &name, const QString &event, const QString &body)
{
    return QStringLiteral("CREATE TEMP TRIGGER IF NOT EXISTS working_%1 AFTER %2 BEGIN %3 END")
        .arg(name, event, body);
}

/// A change of a row that is held is followed; one of any other row makes the set lose track.
QString followed(const QString &table, const QString &assignments)
{
    return QStringLiteral(
               "UPDATE working_state SET lost = 1"
               " WHERE NOT EXISTS (SELECT 1 FROM working_%1 WHERE id = old.id) OR new.id <> old.id;"
               "UPDATE working_%1 SET %2 WHERE id = new.id;")
        .arg(table, assignments);
}

const QString sessionColumns = QStringLiteral("id, opened_day, closed_day, closed_at, paid");
QString sessionValues(const QString &row)
{
    return QStringLiteral("%1id, %2, %3, %1closed_at, COALESCE(%1status = 'paid', 0)")
        .arg(row, dayOf(row + QStringLiteral("opened_at")),
             dayOf(row + QStringLiteral("closed_at")));
}

const QString orderColumns = QStringLiteral("id, session_id, created_day, served");
QString orderValues(const QString &row)
{
    return QStringLiteral("%1id, %1order_session_id, %2, COALESCE(%1status = 'served', 0)")
        .arg(row, dayOf(row + QStringLiteral("created_at")));
}

QString holdsATable(const QString &row)
{
    return QStringLiteral("(%1status IS NULL OR %1status NOT IN ('cancelled', 'completed'))")
        .arg(row);
}

/// For each block of 128 ids of a table, the lowest and the highest value in it. Only blocks that
/// hold rows are listed, whatever ids a store has.
QStringList blocksOf(const QString &name, const QString &table, const QString &low,
                     const QString &high, const QString &condition)
{
    return {
        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS %1 (block INTEGER PRIMARY KEY, low, high)")
            .arg(name),
        QStringLiteral("DELETE FROM temp.%1").arg(name),
        QStringLiteral("INSERT INTO temp.%1 (block) WITH RECURSIVE blocks (block) AS ("
                       "SELECT (SELECT MIN(id) >> 7 FROM %2) UNION ALL "
                       "SELECT (SELECT id >> 7 FROM %2 WHERE id >= (block + 1) * 128"
                       " ORDER BY id LIMIT 1) FROM blocks WHERE block IS NOT NULL) "
                       "SELECT block FROM blocks WHERE block IS NOT NULL")
            .arg(name, table),
        QStringLiteral("UPDATE temp.%1 SET (low, high) = (SELECT %3, %4 FROM %2"
                       " WHERE id BETWEEN block * 128 AND block * 128 + 127 AND %5)")
            .arg(name, table, low, high, condition),
    };
}

/// Rows that hang on another one, by the column that names it: lines, points, snapshots.
QStringList followedChildren(const QString &name, const QString &table, const QString &parent)
{
    const QString body =
        QStringLiteral("INSERT OR REPLACE INTO working_%1 VALUES (new.id, new.%2);")
            .arg(name, parent);
    return {
        trigger(name + QStringLiteral("_added"), QStringLiteral("INSERT ON main.%1").arg(table),
                body),
        trigger(name + QStringLiteral("_moved"),
                QStringLiteral("UPDATE OF id, %2 ON main.%1").arg(table, parent), body),
    };
}

QStringList tables()
{
    return {

        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS working_state (lost INTEGER)"),
        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS working_sessions (id INTEGER PRIMARY KEY,"
                       " opened_day TEXT, closed_day TEXT, closed_at TEXT, paid INTEGER)"),
        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS working_orders (id INTEGER PRIMARY KEY,"
                       " session_id INTEGER, created_day TEXT, served INTEGER)"),
        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS working_lines (id INTEGER PRIMARY KEY,"
                       " order_id INTEGER)"),
        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS working_points (id INTEGER PRIMARY KEY,"
                       " session_id INTEGER)"),
        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS working_snapshots (id INTEGER PRIMARY KEY,"
                       " session_id INTEGER)"),
        QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS working_bookings (id INTEGER PRIMARY KEY,"
                       " table_id INTEGER)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_unpaid ON working_sessions (id)"
                       " WHERE paid = 0"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_paid"
                       " ON working_sessions (closed_at) WHERE paid = 1"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_opened"
                       " ON working_sessions (opened_day)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_closed"
                       " ON working_sessions (closed_day)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_ordered"
                       " ON working_orders (created_day)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_unserved ON working_orders (id)"
                       " WHERE served = 0"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_orders_of_session"
                       " ON working_orders (session_id)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_lines_of_order"
                       " ON working_lines (order_id)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_points_of_session"
                       " ON working_points (session_id)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_snapshots_of_session"
                       " ON working_snapshots (session_id)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS temp.working_bookings_of_table"
                       " ON working_bookings (table_id)"),
    };
}

QStringList triggers()
{
    const QString row = QStringLiteral("new.");
    return {
        trigger(QStringLiteral("session_added"), QStringLiteral("INSERT ON main.order_sessions"),
                QStringLiteral("INSERT OR REPLACE INTO working_sessions (%1) VALUES (%2);")
                    .arg(sessionColumns, sessionValues(row))),
        trigger(QStringLiteral("session_changed"),
                QStringLiteral("UPDATE OF id, status, opened_at, closed_at ON main.order_sessions "
                               "WHEN old.id IS NOT new.id OR old.status IS NOT new.status "
                               "OR old.opened_at IS NOT new.opened_at "
                               "OR old.closed_at IS NOT new.closed_at"),
                followed(QStringLiteral("sessions"),
                         QStringLiteral("(%1) = (%2)").arg(sessionColumns, sessionValues(row)))),
        trigger(QStringLiteral("order_added"), QStringLiteral("INSERT ON main.orders"),
                QStringLiteral("INSERT OR REPLACE INTO working_orders (%1) VALUES (%2);")
                    .arg(orderColumns, orderValues(row))),
        trigger(QStringLiteral("order_changed"),
                QStringLiteral("UPDATE OF id, status, order_session_id, created_at ON main.orders "
                               "WHEN old.id IS NOT new.id OR old.status IS NOT new.status "
                               "OR old.order_session_id IS NOT new.order_session_id "
                               "OR old.created_at IS NOT new.created_at"),
                followed(QStringLiteral("orders"),
                         QStringLiteral("(%1) = (%2)").arg(orderColumns, orderValues(row)))),
        trigger(QStringLiteral("booking_added"), QStringLiteral("INSERT ON main.reservations"),
                QStringLiteral("INSERT OR REPLACE INTO working_bookings "
                               "SELECT new.id, new.table_id WHERE %1;")
                    .arg(holdsATable(row))),
        trigger(QStringLiteral("booking_changed"),
                QStringLiteral("UPDATE OF id, table_id, status ON main.reservations"),
                QStringLiteral("DELETE FROM working_bookings WHERE id IN (old.id, new.id);"
                               "INSERT INTO working_bookings "
                               "SELECT new.id, new.table_id WHERE %1;")
                    .arg(holdsATable(row))),
    };
}

QStringList emptied()
{
    return {
        QStringLiteral("DELETE FROM temp.working_state"),
        QStringLiteral("DELETE FROM temp.working_sessions"),
        QStringLiteral("DELETE FROM temp.working_orders"),
        QStringLiteral("DELETE FROM temp.working_lines"),
        QStringLiteral("DELETE FROM temp.working_points"),
        QStringLiteral("DELETE FROM temp.working_snapshots"),
        QStringLiteral("DELETE FROM temp.working_bookings"),
        QStringLiteral("INSERT INTO temp.working_state (lost) VALUES (0)"),
    };
}
} // namespace

namespace WorkingSetSql {
const char *const state =
    "SELECT data_version, (SELECT lost FROM temp.working_state) FROM pragma_data_version";

const char *const lastPaid = R"(
    SELECT closed_at FROM temp.working_sessions
    WHERE paid = 1
    ORDER BY closed_at DESC
    LIMIT 1 OFFSET :place)";

const char *const latestOutside = R"(
    SELECT MAX(closed_at) FROM order_sessions
    WHERE id NOT IN (SELECT id FROM temp.working_sessions))";

const char *const isNarrow =
    "SELECT 2 * TOTAL(" ZELVAN_BLOCK_OF_THE_PERIOD("") ") < COUNT(*) FROM temp.working_calendar";

const QStringList calendar =
    // A stamp that is not written plainly may be of any day: its block is in every period.
    blocksOf(QStringLiteral("working_calendar"), QStringLiteral("order_sessions"),
             QStringLiteral("CASE WHEN MAX(substr(closed_at, 5, 1) IS NOT '-') THEN '' "
                            "ELSE MIN(closed_at) END"),
             QStringLiteral("CASE WHEN MAX(substr(closed_at, 5, 1) IS NOT '-') THEN x'' "
                            "ELSE MAX(closed_at) END"),
             QStringLiteral("closed_at IS NOT NULL")) +
    blocksOf(QStringLiteral("working_receipts"), QStringLiteral("receipt_snapshot"),
             QStringLiteral("MIN(order_session_id)"), QStringLiteral("MAX(order_session_id)"),
             QStringLiteral("TRUE"));

const QStringList schema =
    tables() + triggers() +
    followedChildren(QStringLiteral("lines"), QStringLiteral("order_items"),
                     QStringLiteral("order_id")) +
    followedChildren(QStringLiteral("points"), QStringLiteral("membership_transactions"),
                     QStringLiteral("order_session_id")) +
    followedChildren(QStringLiteral("snapshots"), QStringLiteral("receipt_snapshot"),
                     QStringLiteral("order_session_id")) +
    emptied();

QString firstSession(const QDate &youngFrom)
{
    constexpr int fewest = 1000;
    constexpr int searched = 20000;
    return QStringLiteral("SELECT COALESCE(MIN(last - %1, COALESCE((SELECT id FROM order_sessions "
                          "WHERE id > last - %2 AND opened_at >= '%3' ORDER BY id LIMIT 1), last)),"
                          " 0) FROM (SELECT MAX(id) AS last FROM order_sessions)")
        .arg(fewest)
        .arg(searched)
        .arg(youngFrom.toString(Qt::ISODate));
}

QString firstOrder(qlonglong firstSession)
{
    constexpr int searched = 40000;
    return QStringLiteral("SELECT COALESCE((SELECT id FROM orders WHERE id > last - %1 AND "
                          "order_session_id >= %2 ORDER BY id LIMIT 1), last + 1, 0) "
                          "FROM (SELECT MAX(id) AS last FROM orders)")
        .arg(searched)
        .arg(firstSession);
}

QString sessions(qlonglong firstSession, const QDate &youngFrom)
{
    return QStringLiteral("INSERT INTO temp.working_sessions (%1) SELECT %2 FROM order_sessions "
                          "WHERE id >= %3 OR status IS NOT 'paid' OR %4 OR %5")
        .arg(sessionColumns, sessionValues({}))
        .arg(firstSession)
        .arg(isYoung(QStringLiteral("closed_at"), youngFrom),
             isYoung(QStringLiteral("opened_at"), youngFrom));
}

QString orders(qlonglong firstSession, qlonglong firstOrder, const QDate &youngFrom)
{
    return QStringLiteral("INSERT INTO temp.working_orders (%1) SELECT %2 FROM orders "
                          "WHERE id >= %3 OR status IS NOT 'served' OR %4 OR %5")
        .arg(orderColumns, orderValues({}))
        .arg(firstOrder)
        .arg(hangsOn(QStringLiteral("order_session_id"), QStringLiteral("working_sessions"),
                     firstSession),
             isYoung(QStringLiteral("created_at"), youngFrom));
}

QString lines(qlonglong firstOrder)
{
    return QStringLiteral("INSERT INTO temp.working_lines SELECT id, order_id FROM order_items "
                          "WHERE %1")
        .arg(hangsOn(QStringLiteral("order_id"), QStringLiteral("working_orders"), firstOrder));
}

QString points(qlonglong firstSession)
{
    return QStringLiteral("INSERT INTO temp.working_points SELECT id, order_session_id FROM "
                          "membership_transactions WHERE %1")
        .arg(hangsOn(QStringLiteral("order_session_id"), QStringLiteral("working_sessions"),
                     firstSession));
}

QString snapshots(qlonglong firstSession)
{
    return QStringLiteral("INSERT INTO temp.working_snapshots SELECT id, order_session_id FROM "
                          "receipt_snapshot WHERE %1")
        .arg(hangsOn(QStringLiteral("order_session_id"), QStringLiteral("working_sessions"),
                     firstSession));
}

QString bookings()
{
    return QStringLiteral("INSERT INTO temp.working_bookings SELECT id, table_id FROM reservations "
                          "WHERE %1")
        .arg(holdsATable({}));
}
} // namespace WorkingSetSql
