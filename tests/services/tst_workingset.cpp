// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/WorkingSet.h"

#include "repositories/AnalyticsRepository.h"
#include "repositories/TaxReportRepository.h"
#include "support/ChildProcess.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSqlError>
#include <QSqlQuery>

#include <memory>
#include <random>

namespace {
const QString plainName = QStringLiteral("plain");
const QString strangerName = QStringLiteral("stranger");

QSqlDatabase openBeside(const QString &name, const QString &path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setDatabaseName(path);
    if (!database.open()) {
        qFatal("a second connection");
    }
    return database;
}

/// A whole answer in words, so that a difference can be read.
class Words
{
public:
    Words &operator<<(const QString &text)
    {
        m_text += text + QLatin1Char('|');
        return *this;
    }
    Words &operator<<(const std::optional<QString> &text)
    {
        return *this << text.value_or(QStringLiteral("-"));
    }
    Words &operator<<(const std::optional<int> &n) { return *this << (n ? *n : -7); }
    Words &operator<<(int number) { return *this << QString::number(number); }
    Words &operator<<(double number) { return *this << QString::number(number, 'g', 17); }
    Words &operator<<(const QDateTime &time) { return *this << time.toString(Qt::ISODate); }
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
};

QString wordsOf(const OrderSession &s)
{
    Words words;
    words << s.id << s.display_number << s.receipt_number << s.table_id << s.order_type << s.status
          << s.points_earned << s.total << s.opened_at << s.closed_at;
    return words.text();
}

QString wordsOf(const Order &o)
{
    Words words;
    words << o.id << o.order_session_id << o.display_number << o.status << o.closed_at;
    return words.text();
}

QString wordsOf(const OrderItem &i)
{
    Words words;
    words << i.id << i.order_id << i.item_name << i.quantity << i.price << i.item_status;
    return words.text();
}

QString wordsOf(const ActiveOrderRow &o)
{
    Words words;
    words << o.order_id << o.order_session_id << o.order_status << o.session_table_id;
    return words.text();
}

QString wordsOf(const Reservation &r)
{
    Words words;
    words << r.id << r.table_id << r.reservation_datetime << r.status;
    return words.text();
}

QString wordsOf(const MembershipTransaction &t)
{
    Words words;
    words << t.id << t.membership_id << t.order_session_id << t.type << t.points;
    return words.text();
}

QString wordsOf(const TaxSessionRow &s)
{
    Words words;
    words << s.id << s.receipt_number << s.table_name << s.total << s.closed_at;
    return words.text();
}

QString wordsOf(const TaxDailyRow &d)
{
    Words words;
    words << d.day << d.transaction_count << d.subtotal << d.tax_collected << d.total_sales;
    return words.text();
}

QString wordsOf(const TopItem &i)
{
    return i.name + QLatin1Char('=') + QString::number(i.quantity);
}
QString wordsOf(const HourRevenue &h)
{
    return QStringLiteral("%1=%2").arg(h.hour).arg(h.amount, 0, 'g', 17);
}
QString wordsOf(const DayRevenue &d)
{
    return QStringLiteral("%1=%2").arg(d.day).arg(d.amount);
}

template<typename Record>
QString wordsOf(const QList<Record> &records)
{
    QStringList words;
    for (const Record &record : records) {
        words.append(wordsOf(record));
    }
    return words.join(QLatin1Char('\n'));
}

/// Everything that a bounded statement answers, as one connection sees it.
struct Answers
{
    explicit Answers(const QSqlDatabase &database)
        : orderSessions(database)
        , orders(database)
        , orderItems(database)
        , membershipTransactions(database)
        , receiptSnapshots(database)
        , analytics(database)
        , taxReports(database)
        , reservations(database)
    {}

    OrderSessionRepository orderSessions;
    OrderRepository orders;
    OrderItemRepository orderItems;
    MembershipTransactionRepository membershipTransactions;
    ReceiptSnapshotRepository receiptSnapshots;
    AnalyticsRepository analytics;
    TaxReportRepository taxReports;
    ReservationRepository reservations;

    QStringList all(int sessionId, int orderId, const QDate &day) const
    {
        const Answers &r = *this;
        const QString text = day.toString(Qt::ISODate);
        const auto snapshot = r.receiptSnapshots.getByOrderSession(sessionId);
        const TaxSummary sums = r.taxReports.getSummary(day.addDays(-3), day);
        Words tax;
        tax << sums.transaction_count << sums.total_sales << sums.tax_collected << sums.tax_name
            << sums.tax_rate;
        QStringList answers{
            QString::number(r.orderSessions.getMaxDisplayNumber(text)),
            QString::number(r.orders.getMaxDisplayNumber(text)),
            wordsOf(r.orderSessions.getOpenSessions()),
            wordsOf(r.orderSessions.getRecentPaidSessions(20)),
            wordsOf(r.orderSessions.getRecentPaidSessions(3)),
            wordsOf(r.orders.getActiveSessionOrders()),
            wordsOf(r.orders.getOrdersBySession(sessionId)),
            wordsOf(r.orderItems.getOrderItemsByOrderId(orderId)),
            wordsOf(r.orderItems.getOrderItemsByOrderIds({orderId, orderId - 1, 1, 2})),
            QString::number(r.membershipTransactions.getMembershipIdBySession(sessionId)),
            QString::number(r.membershipTransactions.getEarnedPoints(sessionId)),
            wordsOf(r.membershipTransactions.getByOrderSession(qMax(1, sessionId))),
            snapshot ? snapshot->created_at.value_or(QString()) : QString(),
            QString::number(r.analytics.revenueToday(), 'g', 17),
            QString::number(r.analytics.ordersCountToday()),
            QString::number(r.analytics.averageOrderToday(), 'g', 17),
            QString::number(r.analytics.itemsSoldToday()),
            wordsOf(r.analytics.topItemsToday()),
            wordsOf(r.analytics.revenueByHourToday()),
            wordsOf(r.analytics.revenueLastSevenDays()),
            tax.text(),
            wordsOf(r.taxReports.getDailyBreakdown(day.addDays(-5), day)),
            wordsOf(r.taxReports.getSessions(day.addDays(-1), day.addDays(1))),
        };
        for (const char *status : {"pending", "in_progress", "ready", "served"}) {
            answers << wordsOf(r.orders.getOrdersByStatus(QLatin1String(status)));
        }
        for (int table = 1; table <= 4; ++table) {
            answers << QString::number(r.orderSessions.findOpenDineInSession(table))
                    << wordsOf(r.reservations.fetchUnfinishedByTable(table));
        }
        return answers;
    }
};

/// A till at work, with all that may happen to it, in an order drawn by a seed.
class History
{
public:
    explicit History(unsigned seed)
        : m_random(seed)
        , m_plainDatabase(openBeside(plainName, m_store.database.path()))
        , m_stranger(openBeside(strangerName, m_store.database.path()))
        , m_bounded(DatabaseManager::connection())
        , m_plain(m_plainDatabase)
    {
        WorkingSet::turnOff(m_plainDatabase);
        for (int dish = 0; dish < 5; ++dish) {
            TestStore::Dish made;
            made.name = QStringLiteral("Dish %1").arg(dish);
            made.cents = 100 * (dish + 3);
            m_dishes.append(m_store.addDish(made));
        }
        for (int table = 1; table <= 4; ++table) {
            m_store.addTable(QStringLiteral("T%1").arg(table));
        }
        m_store.addMember(QStringLiteral("0123"), 500);
        m_store.setMembershipEnabled(true);
        m_store.setTax(825);
        m_store.setKitchen(QStringLiteral("kds"), QStringLiteral("manual"));
        setClock(QDateTime(QDate(2026, 3, 1), QTime(9, 0)));
        olderBills(int(1300 + draw(700)));
    }

    /// One act, then every bounded answer beside its unbounded form. Names what differs.
    [[nodiscard]] QString step()
    {
        const QString act = doSomething();
        const int session = int(1 + draw(quint32(number("SELECT MAX(id) FROM order_sessions"))));
        const int order = int(1 + draw(quint32(number("SELECT MAX(id) FROM orders"))));
        const int recentOrder = qMax(1, int(number("SELECT MAX(id) FROM orders")) - int(draw(6)));
        for (const auto &[s, o] :
             {std::pair(session, order), std::pair(m_lastSession, recentOrder)}) {
            const QDate day = m_now.date().addDays(-int(draw(3)));
            const QStringList bounded = m_bounded.all(s, o, day);
            const QStringList plain = m_plain.all(s, o, day);
            for (qsizetype at = 0; at < plain.size(); ++at) {
                if (bounded.at(at) != plain.at(at)) {
                    return QStringLiteral("after %1, answer %2 of session %3, order %4, day %5:\n"
                                          "%6\ninstead of\n%7")
                        .arg(act)
                        .arg(at)
                        .arg(s)
                        .arg(o)
                        .arg(day.toString(Qt::ISODate), bounded.at(at), plain.at(at));
                }
            }
        }
        return {};
    }

    [[nodiscard]] int readyTimes() const { return m_readyTimes; }

private:
    quint32 draw(quint32 below) { return below == 0 ? 0 : quint32(m_random() % below); }
    qint64 number(const char *sql) const { return m_store.number(QLatin1String(sql)); }

    void setClock(const QDateTime &local)
    {
        m_now = local;
        qputenv("FAKETIME", local.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toLatin1());
    }

    void olderBills(int count)
    {
        m_store.database.run(
            QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                           "WHERE i < %1) INSERT INTO order_sessions (display_number, order_type, "
                           "status, total, opened_at, closed_at) SELECT 4000 + i, 'takeaway', "
                           "'paid', i, DATETIME('2026-03-01', '-' || ((%1 - i) / 60) || ' days'), "
                           "DATETIME('2026-03-01', '-' || ((%1 - i) / 60) || ' days', '+' || "
                           "(i % 7) || ' hours') FROM n")
                .arg(count));
        m_store.database.run(QStringLiteral(
            "INSERT INTO orders (order_session_id, display_number, status, created_at) "
            "SELECT id, 4000, 'served', opened_at FROM order_sessions"));
        m_store.database.run(
            QStringLiteral("INSERT INTO order_items (order_id, item_id, item_name, quantity, "
                           "price, is_taxable, item_status) SELECT id, 1, 'Dish 0', 1, 100, 1, "
                           "'served' FROM orders"));
        m_store.database.run(QStringLiteral(
            "INSERT INTO receipt_snapshot (order_session_id, tax_name, tax_rate, created_at) "
            "SELECT id, 'VAT', id % 9, closed_at FROM order_sessions"));
        // Bills that somebody forgot.
        m_store.database.run(QStringLiteral(
            "UPDATE order_sessions SET status = 'open', closed_at = NULL WHERE id IN (3, 777)"));
        m_store.database.run(QStringLiteral("UPDATE orders SET status = 'ready' WHERE id = 9"));
    }

    QVariantList someLines()
    {
        QVariantList lines;
        for (quint32 line = 0; line <= draw(3); ++line) {
            lines.append(TestStore::line(m_dishes.at(int(draw(5))), int(1 + draw(4))));
        }
        return lines;
    }

    int someOpenSession()
    {
        return int(m_store.number(
            QStringLiteral("SELECT COALESCE((SELECT id FROM order_sessions WHERE status = 'open' "
                           "ORDER BY id %1 LIMIT 1), 0)")
                .arg(draw(5) == 0 ? QStringLiteral("ASC") : QStringLiteral("DESC"))));
    }

    void pay(int session)
    {
        m_lastSession = session;
        m_store.services.checkout.completeCheckout(
            session, draw(2) == 0 ? QStringLiteral("0123") : QString(), int(draw(3)) * 10);
    }

    void byStranger(const QString &sql)
    {
        QSqlQuery query(m_stranger);
        if (!query.exec(sql)) {
            qFatal("%s", qPrintable(query.lastError().text()));
        }
    }

    QString doSomething();
    QString clockActs();
    QString strangersActs();

    std::mt19937 m_random;
    TestStore m_store;
    QSqlDatabase m_plainDatabase;
    QSqlDatabase m_stranger;
    Answers m_bounded;
    Answers m_plain;
    QList<int> m_dishes;
    QDateTime m_now;
    int m_lastSession = 1;
    int m_readyTimes = 0;
};

QString History::doSomething()
{
    m_readyTimes += WorkingSet::isReady(DatabaseManager::connection()) ? 1 : 0;
    auto &services = m_store.services;
    const int newest = int(number("SELECT MAX(id) FROM orders"));
    setClock(m_now.addSecs(60 + draw(1800)));
    switch (draw(16)) {
    case 0:
    case 1:
    case 2:
        m_lastSession = m_store.sessionOf(m_store.orderAtTable(int(1 + draw(4)), someLines()));
        return QStringLiteral("an order at a table");
    case 3:
        m_lastSession = m_store.sessionOf(m_store.orderTakeaway(someLines()));
        return QStringLiteral("an order to take away");
    case 4:
    case 5:
    case 6:
        if (const int session = someOpenSession(); session > 0) {
            pay(session);
        }
        return QStringLiteral("a payment");
    case 7:
        services.orders.updateOrder(newest, QStringLiteral("dine_in"), someLines(),
                                    {{QStringLiteral("tableId"), int(1 + draw(4))}});
        return QStringLiteral("an edit that moves the table");
    case 8:
    case 9: {
        static const char *const states[] = {"pending", "in_progress", "ready", "served"};
        const int order = draw(6) == 0 ? int(1 + draw(quint32(newest))) : newest - int(draw(4));
        services.kitchenOrders.markState(order, QLatin1String(states[draw(4)]));
        return QStringLiteral("a step in the kitchen, order %1").arg(order);
    }
    case 10:
        m_store.addReservation(
            int(1 + draw(4)),
            m_now.addDays(int(draw(3))).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), 60);
        return QStringLiteral("a booking");
    case 11:
        if (const int booking = int(number("SELECT COALESCE(MAX(id), 0) FROM reservations"))) {
            services.reservations.cancelReservation(booking);
        }
        return QStringLiteral("a booking cancelled");
    case 12:
        m_store.database.run(
            QStringLiteral("DELETE FROM order_items WHERE id = (SELECT MAX(id) - %1 FROM "
                           "order_items)")
                .arg(draw(5)));
        return QStringLiteral("a line removed");
    case 13: {
        // A payment that is rolled back at its very end.
        DatabaseManager manager;
        const bool begun = manager.beginTransaction();
        m_store.database.run(QStringLiteral("UPDATE order_sessions SET status = 'paid', "
                                            "closed_at = CURRENT_TIMESTAMP WHERE status = 'open'"));
        const QString inside = m_bounded.all(m_lastSession, newest, m_now.date()).join(u'\n');
        if (begun) {
            manager.rollbackTransaction();
        }
        return QStringLiteral("a roll-back of %1 characters").arg(inside.size());
    }
    case 14:
        return clockActs();
    default:
        return strangersActs();
    }
}

QString History::clockActs()
{
    switch (draw(5)) {
    case 0:
        setClock(m_now.addDays(-1));
        return QStringLiteral("the clock set back a day");
    case 1:
        setClock(m_now.addDays(draw(2) == 0 ? 365 : -365));
        return QStringLiteral("the clock set a year off");
    case 2:
        setClock(QDateTime(m_now.date(), QTime(23, 58)));
        return QStringLiteral("shortly before midnight");
    default:
        setClock(m_now.addDays(int(1 + draw(4))));
        return QStringLiteral("some days later");
    }
}

QString History::strangersActs()
{
    static const char *const acts[] = {
        "INSERT INTO order_sessions (display_number, order_type, status, table_id) "
        "VALUES (4711, 'dine_in', 'open', 2)",
        "UPDATE order_sessions SET status = 'open', closed_at = NULL WHERE id = 11",
        "UPDATE order_sessions SET status = 'paid', closed_at = CURRENT_TIMESTAMP "
        "WHERE id IN (3, 11, 40)",
        "DELETE FROM orders WHERE id = (SELECT MAX(id) FROM orders)",
        "UPDATE orders SET status = 'pending' WHERE id IN (5, 6)",
        "UPDATE order_items SET order_id = 5 WHERE id = (SELECT MAX(id) FROM order_items)",
        "UPDATE order_sessions SET closed_at = ' 2461100.5' WHERE id = 21",
        "UPDATE order_sessions SET closed_at = '2.4611e6' WHERE id = 22",
        "INSERT INTO order_sessions (id, display_number, order_type, status, total, closed_at) "
        "VALUES ((SELECT MAX(id) + 500 FROM order_sessions), 1, 'takeaway', 'paid', 7, "
        "CURRENT_TIMESTAMP)",
        "UPDATE reservations SET status = 'booked' WHERE id % 3 = 0",
    };
    const quint32 act = draw(std::size(acts));
    byStranger(QLatin1String(acts[act]));
    return QStringLiteral("another program's act %1").arg(act);
}
} // namespace

/// That the bound is never felt: every bounded statement answers what its unbounded form does.
class tst_WorkingSet : public ZelvanTest
{
    Q_OBJECT

private slots:
    void longHistoriesAnswerAlike_data();
    void longHistoriesAnswerAlike();
    void aStepOfAnOrderOfYearsAgoIsFollowed();
};

void tst_WorkingSet::longHistoriesAnswerAlike_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<unsigned>("seed");
    // Others by hand: ZELVAN_SEEDS="5 6 7" ctest -R tst_workingset
    const QStringList given = qEnvironmentVariable("ZELVAN_SEEDS", QStringLiteral("1 2"))
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &seed : given) {
        for (const char *zone : {"Asia/Shanghai", "America/Los_Angeles"}) {
            QTest::addRow("%s, seed %s", zone, qPrintable(seed))
                << QString::fromLatin1(zone) << seed.toUInt();
        }
    }
}

void tst_WorkingSet::longHistoriesAnswerAlike()
{
    QFETCH(const QString, zone);
    QFETCH(const unsigned, seed);
    if (movedTo(QStringLiteral("2026-03-01 09:00:00"), zone)) {
        return;
    }
    const int acts = qEnvironmentVariableIntValue("ZELVAN_ACTS") > 0
                         ? qEnvironmentVariableIntValue("ZELVAN_ACTS")
                         : 60;
    {
        History history(seed);
        for (int act = 0; act < acts; ++act) {
            const QString difference = history.step();
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
        }
        // Or nothing was compared at all.
        QVERIFY(history.readyTimes() > acts * 9 / 10);
    }
    QSqlDatabase::removeDatabase(plainName);
    QSqlDatabase::removeDatabase(strangerName);
}

void tst_WorkingSet::aStepOfAnOrderOfYearsAgoIsFollowed()
{
    TestStore store;
    store.database.run(QStringLiteral(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1500) "
        "INSERT INTO order_sessions (display_number, order_type, status, opened_at, closed_at) "
        "SELECT i, 'takeaway', 'paid', '2020-01-01 10:00:00', '2020-01-01 11:00:00' FROM n"));
    store.database.run(
        QStringLiteral("INSERT INTO orders (order_session_id, display_number, status, created_at) "
                       "SELECT id, id, 'served', opened_at FROM order_sessions"));
    QVERIFY(WorkingSet::isReady(DatabaseManager::connection()));
    QVERIFY(!WorkingSet::holdsOrder(DatabaseManager::connection(), 5));

    QVERIFY(store.services.kitchenOrders.markState(5, QStringLiteral("pending")));

    const QList<Order> pending =
        store.repositories.orders.getOrdersByStatus(QStringLiteral("pending"));
    QCOMPARE(pending.size(), 1);
    QCOMPARE(pending.constFirst().id, 5);
}

ZELVAN_TEST(tst_WorkingSet)
#include "tst_workingset.moc"
