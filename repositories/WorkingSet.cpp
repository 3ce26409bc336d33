// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/WorkingSet.h"

#include "repositories/Statement.h"
#include "repositories/WorkingSetSql.h"

#include <QDateTime>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QThread>
#include <QVariant>

#include <algorithm>

namespace {
/// The dashboard looks back over six days.
constexpr int daysLookedBack = 6;
/// A stamp may name a day that its month does not have, and a zone: by so many days SQLite's DATE
/// may stand behind the stamp's own first characters.
constexpr int daysOfDoubt = 4;
constexpr int youngDays = daysLookedBack + daysOfDoubt + 1;
/// A till that is never closed drops what has grown old once in a while.
constexpr int longestDays = 14;

QDate todayUtc()
{
    return QDateTime::currentDateTimeUtc().date();
}

bool runs(const QSqlDatabase &database, const QString &sql)
{
    QSqlQuery query(database);
    return query.exec(sql);
}

bool allRun(const QSqlDatabase &database, const QStringList &steps)
{
    return std::all_of(steps.cbegin(), steps.cend(),
                       [&](const QString &sql) { return runs(database, sql); });
}

/// Everything of the set is made in a transaction of its own: within another one the tables would
/// go with its roll-back, and so there nothing is made.
template<typename Steps>
bool inTransaction(const QSqlDatabase &database, Steps steps, bool *failed = nullptr)
{
    if (!runs(database, QStringLiteral("BEGIN"))) {
        return false;
    }
    if (steps() && runs(database, QStringLiteral("COMMIT"))) {
        return true;
    }
    runs(database, QStringLiteral("ROLLBACK"));
    if (failed != nullptr) {
        *failed = true;
    }
    return false;
}

QVariant valueOf(const QSqlDatabase &database, const QString &sql)
{
    QSqlQuery query(database);
    return query.exec(sql) && query.next() ? query.value(0) : QVariant();
}

bool has(const QSqlDatabase &database, const char *sql, int id)
{
    Statement statement(database, sql, {nullptr});
    statement.bind(":id", id);
    return statement.run() && statement.next();
}
} // namespace

WorkingSet::WorkingSet(QObject *driver)
    : QObject(driver)
{}

WorkingSet *WorkingSet::of(const QSqlDatabase &database)
{
    QSqlDriver *driver = database.driver();
    if (!database.isOpen() || driver->thread() != QThread::currentThread()) {
        return nullptr;
    }
    auto *set = driver->findChild<WorkingSet *>({}, Qt::FindDirectChildrenOnly);
    return set != nullptr ? set : new WorkingSet(driver);
}

WorkingSet *WorkingSet::standing(const QSqlDatabase &database)
{
    WorkingSet *set = of(database);
    if (set == nullptr || set->m_off) {
        return nullptr;
    }
    return set->isCurrent(database) || set->make(database) ? set : nullptr;
}

void WorkingSet::turnOff(const QSqlDatabase &database)
{
    if (WorkingSet *set = of(database)) {
        set->m_off = true;
    }
}

bool WorkingSet::isReady(const QSqlDatabase &database)
{
    return standing(database) != nullptr;
}

bool WorkingSet::holdsDay(const QSqlDatabase &database, const QString &day)
{
    const WorkingSet *set = standing(database);
    const QDate date = QDate::fromString(day, Qt::ISODate);
    return set != nullptr && date.isValid() && date.addDays(-daysOfDoubt) >= set->m_youngFrom;
}

bool WorkingSet::holdsSession(const QSqlDatabase &database, int sessionId)
{
    const WorkingSet *set = standing(database);
    return set != nullptr &&
           (sessionId >= set->m_firstSession ||
            has(database, "SELECT 1 FROM temp.working_sessions WHERE id = :id", sessionId));
}

bool WorkingSet::holdsOrder(const QSqlDatabase &database, int orderId)
{
    return holdsOrders(database, {orderId});
}

bool WorkingSet::holdsOrders(const QSqlDatabase &database, const QList<int> &orderIds)
{
    const WorkingSet *set = standing(database);
    return set != nullptr && std::all_of(orderIds.cbegin(), orderIds.cend(), [&](int id) {
               return id >= set->m_firstOrder ||
                      has(database, "SELECT 1 FROM temp.working_orders WHERE id = :id", id);
           });
}

bool WorkingSet::holdsLastPaid(const QSqlDatabase &database, int count)
{
    WorkingSet *set = standing(database);
    return set != nullptr && count > 0 && set->lastPaidAreHeld(database, count);
}

bool WorkingSet::hasCalendar(const QSqlDatabase &database)
{
    WorkingSet *set = standing(database);
    if (set == nullptr) {
        return false;
    }
    if (!set->m_calendarMade) {
        // What is outside of the set never changes while it stands, and so neither does this map.
        set->m_calendarMade =
            inTransaction(database, [&] { return allRun(database, WorkingSetSql::calendar); });
    }
    return set->m_calendarMade;
}

bool WorkingSet::narrows(const QSqlDatabase &database, const QDate &from, const QDate &to)
{
    if (!hasCalendar(database)) {
        return false;
    }
    Statement statement(database, WorkingSetSql::isNarrow, {nullptr});
    statement.bind(":from", from.toString(Qt::ISODate));
    statement.bind(":to", to.toString(Qt::ISODate));
    return statement.run() && statement.next() && statement.boolean(0);
}

/// It no longer stands after a write of another program, after a change of this one that it cannot
/// follow, and after a clock that went back further than it reaches.
bool WorkingSet::isCurrent(const QSqlDatabase &database) const
{
    if (!m_made) {
        return false;
    }
    const QDate today = todayUtc();
    if (today.addDays(-daysLookedBack - daysOfDoubt) < m_youngFrom ||
        today > m_madeOn.addDays(longestDays)) {
        return false;
    }
    // Fails on a connection that was closed and opened again: its temporary tables are gone.
    Statement statement(database, WorkingSetSql::state, {nullptr});
    return statement.run() && statement.next() && statement.integer(0) == m_version &&
           !statement.boolean(1);
}

bool WorkingSet::make(const QSqlDatabase &database)
{
    m_calendarMade = false;
    m_latestOutside = QString();
    // After a failure, in a store that lacks a table or on a disk without room, it is not tried
    // again at every tap.
    m_made = inTransaction(
        database, [&] { return fill(database); }, &m_off);
    return m_made;
}

bool WorkingSet::fill(const QSqlDatabase &database)
{
    m_madeOn = todayUtc();
    m_youngFrom = m_madeOn.addDays(-youngDays);
    if (!allRun(database, WorkingSetSql::schema)) {
        return false;
    }
    m_firstSession = valueOf(database, WorkingSetSql::firstSession(m_youngFrom)).toLongLong();
    if (!runs(database, WorkingSetSql::sessions(m_firstSession, m_youngFrom))) {
        return false;
    }
    m_firstOrder = valueOf(database, WorkingSetSql::firstOrder(m_firstSession)).toLongLong();
    const QStringList rest{
        WorkingSetSql::orders(m_firstSession, m_firstOrder, m_youngFrom),
        WorkingSetSql::lines(m_firstOrder),
        WorkingSetSql::points(m_firstSession),
        WorkingSetSql::snapshots(m_firstSession),
        WorkingSetSql::bookings(),
    };
    if (!allRun(database, rest)) {
        return false;
    }
    const QVariant version = valueOf(database, QStringLiteral("PRAGMA data_version"));
    m_version = version.toInt();
    return version.isValid();
}

/// The last of those that were paid last among the held ones must be later than anything outside.
bool WorkingSet::lastPaidAreHeld(const QSqlDatabase &database, int count)
{
    Statement statement(database, WorkingSetSql::lastPaid, {nullptr});
    statement.bind(":place", count - 1);
    if (!statement.run() || !statement.next()) {
        return false;
    }
    const QString last = statement.text(0);
    if (last >= m_youngFrom.toString(Qt::ISODate)) {
        return true;
    }
    if (m_latestOutside.isNull()) {
        const QString latest =
            valueOf(database, QString::fromLatin1(WorkingSetSql::latestOutside)).toString();
        m_latestOutside = latest.isNull() ? QStringLiteral("") : latest;
    }
    return last > m_latestOutside;
}
