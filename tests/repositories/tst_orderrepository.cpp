// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/OrderRepository.h"

#include "support/ChildProcess.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QDateTime>

namespace {
/// Session 1 is open on table 1, session 2 is a paid takeaway.
struct Fixture
{
    Fixture()
    {
        db.run(QStringLiteral("INSERT INTO tables (table_name) VALUES ('T1')"));
        db.run(QStringLiteral("INSERT INTO order_sessions (display_number, table_id, order_type, "
                              "status) VALUES (4001, 1, 'dine_in', 'open'), "
                              "(4002, NULL, 'takeaway', 'paid')"));
    }

    int order(int sessionId, const QString &createdAt, const QString &status, int number = 4000)
    {
        return db.insert(
            QStringLiteral("INSERT INTO orders (order_session_id, display_number, "
                           "status, created_at) VALUES (%1, %2, '%3', '%4')")
                .arg(QString::number(sessionId), QString::number(number), status, createdAt));
    }

    TestDatabase db;
    OrderRepository orders{db.handle()};
};

QString stamp(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QList<int> idsOf(const QList<Order> &orders)
{
    QList<int> ids;
    for (const Order &order : orders) {
        ids.append(order.id);
    }
    return ids;
}
} // namespace

class tst_OrderRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aDayWithoutOrdersHasTheHighestNumberZero();
    void theHighestNumberIsThatOfTheStoredDate();
    void aCreatedOrderGetsItsIdAndIsReadBack();
    void anUpdateChangesStatusNotesAndClosingTime();
    void anOrderThatIsOpenKeepsANullClosingTime();
    void removingAnOrderRemovesItsItems();
    void ordersOfAStatusComeOldestFirstFromAllDaysAndSessions();
    void ordersOfASessionAreListed();
    void activeOrdersAreThoseOfTheLocalDayInUnpaidSessions();
    void theEndsOfTheLocalDayBoundTheActiveOrders();
    void utcStampsAreMeasuredAgainstLocalDays_data();
    void utcStampsAreMeasuredAgainstLocalDays();
    void everyFailureIsLogged();
};

void tst_OrderRepository::aDayWithoutOrdersHasTheHighestNumberZero()
{
    Fixture f;

    QCOMPARE(f.orders.getMaxDisplayNumber(QStringLiteral("2026-03-04")), 0);
}

void tst_OrderRepository::theHighestNumberIsThatOfTheStoredDate()
{
    Fixture f;
    f.order(1, QStringLiteral("2026-03-04 00:00:00"), QStringLiteral("served"), 4711);
    f.order(1, QStringLiteral("2026-03-04 23:59:59"), QStringLiteral("served"), 4710);
    f.order(1, QStringLiteral("2026-03-05 00:00:00"), QStringLiteral("served"), 9999);

    QCOMPARE(f.orders.getMaxDisplayNumber(QStringLiteral("2026-03-04")), 4711);
}

void tst_OrderRepository::aCreatedOrderGetsItsIdAndIsReadBack()
{
    Fixture f;
    Order order;
    order.order_session_id = 1;
    order.display_number = 5000;
    order.status = QStringLiteral("pending");
    order.notes = QStringLiteral("no onions");

    const int id = f.orders.create(order);

    QCOMPARE(id, 1);
    QCOMPARE(order.id, 1);
    const std::optional<Order> found = f.orders.getOrderById(1);
    QVERIFY(found);
    QCOMPARE(found->order_session_id, 1);
    QCOMPARE(found->display_number, 5000);
    QCOMPARE(found->status, QStringLiteral("pending"));
    QCOMPARE(found->notes, QStringLiteral("no onions"));
    QVERIFY(found->closed_at.isEmpty());
    QVERIFY(!f.orders.getOrderById(2));
}

void tst_OrderRepository::anUpdateChangesStatusNotesAndClosingTime()
{
    Fixture f;
    const int id = f.order(1, QStringLiteral("2026-03-04 00:00:00"), QStringLiteral("ready"), 4711);
    Order changed;
    changed.id = id;
    changed.order_session_id = 2;
    changed.display_number = 1;
    changed.status = QStringLiteral("served");
    changed.notes = QStringLiteral("hot");
    changed.closed_at = QStringLiteral("2026-03-04T12:00:00");

    QVERIFY(f.orders.update(changed));

    const std::optional<Order> found = f.orders.getOrderById(id);
    QCOMPARE(found->status, QStringLiteral("served"));
    QCOMPARE(found->notes, QStringLiteral("hot"));
    QCOMPARE(found->closed_at, QStringLiteral("2026-03-04T12:00:00"));
    QCOMPARE(found->order_session_id, 1);
    QCOMPARE(found->display_number, 4711);
}

void tst_OrderRepository::anOrderThatIsOpenKeepsANullClosingTime()
{
    Fixture f;
    const int id = f.order(1, QStringLiteral("2026-03-04 00:00:00"), QStringLiteral("pending"));
    Order changed = *f.orders.getOrderById(id);
    changed.status = QStringLiteral("in_progress");

    QVERIFY(f.orders.update(changed));

    QVERIFY(f.db.value(QStringLiteral("SELECT closed_at IS NULL FROM orders")).toBool());
}

void tst_OrderRepository::removingAnOrderRemovesItsItems()
{
    Fixture f;
    const int id = f.order(1, QStringLiteral("2026-03-04 00:00:00"), QStringLiteral("pending"));
    f.db.run(
        QStringLiteral("INSERT INTO order_items (order_id, is_taxable) VALUES (%1, 1)").arg(id));

    f.orders.remove(id);

    QVERIFY(!f.orders.getOrderById(id));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM order_items")).toInt(), 0);
}

void tst_OrderRepository::ordersOfAStatusComeOldestFirstFromAllDaysAndSessions()
{
    Fixture f;
    const int later = f.order(1, QStringLiteral("2026-03-04 12:00:00"), QStringLiteral("pending"));
    const int earlier =
        f.order(2, QStringLiteral("2025-01-01 12:00:00"), QStringLiteral("pending"));
    f.order(1, QStringLiteral("2026-03-04 11:00:00"), QStringLiteral("ready"));

    const QList<Order> pending = f.orders.getOrdersByStatus(QStringLiteral("pending"));

    QCOMPARE(idsOf(pending), (QList<int>{earlier, later}));
}

void tst_OrderRepository::ordersOfASessionAreListed()
{
    Fixture f;
    const int first = f.order(1, QStringLiteral("2026-03-04 12:00:00"), QStringLiteral("served"));
    f.order(2, QStringLiteral("2026-03-04 12:00:00"), QStringLiteral("served"));
    const int third = f.order(1, QStringLiteral("2026-03-04 11:00:00"), QStringLiteral("ready"));

    QCOMPARE(idsOf(f.orders.getOrdersBySession(1)), (QList<int>{first, third}));
    QVERIFY(f.orders.getOrdersBySession(3).isEmpty());
}

void tst_OrderRepository::activeOrdersAreThoseOfTheLocalDayInUnpaidSessions()
{
    Fixture f;
    const QDate today = QDate::currentDate();
    const int early = f.order(1, stamp(today.startOfDay()), QStringLiteral("served"), 4100);
    f.db.run(QStringLiteral("UPDATE orders SET notes = 'quick' WHERE id = %1").arg(early));
    const int late = f.order(1, stamp(today.endOfDay()), QStringLiteral("pending"), 4101);
    f.order(2, stamp(today.startOfDay()), QStringLiteral("pending"));
    f.db.run(QStringLiteral("INSERT INTO order_sessions (display_number, order_type) "
                            "VALUES (4003, 'delivery')"));
    const int delivery =
        f.order(3, stamp(today.startOfDay().addSecs(3600)), QStringLiteral("ready"));

    const QList<ActiveOrderRow> active = f.orders.getActiveSessionOrders();

    QCOMPARE(active.size(), 3);
    QCOMPARE(active.at(0).order_id, late);
    QCOMPARE(active.at(1).order_id, delivery);
    QCOMPARE(active.at(1).session_order_type, QStringLiteral("delivery"));
    QVERIFY(!active.at(1).session_table_id.has_value());
    QCOMPARE(active.at(2).order_id, early);
    QCOMPARE(active.at(2).order_display_number, 4100);
    QCOMPARE(active.at(2).order_session_id, 1);
    QCOMPARE(active.at(2).order_status, QStringLiteral("served"));
    QCOMPARE(active.at(2).order_notes, QStringLiteral("quick"));
    QCOMPARE(active.at(2).session_order_type, QStringLiteral("dine_in"));
    QCOMPARE(active.at(2).session_table_id, std::optional(1));
}

void tst_OrderRepository::theEndsOfTheLocalDayBoundTheActiveOrders()
{
    Fixture f;
    const QDate today = QDate::currentDate();
    f.order(1, stamp(today.addDays(-1).endOfDay()), QStringLiteral("pending"));
    f.order(1, stamp(today.addDays(1).startOfDay()), QStringLiteral("pending"));

    QVERIFY(f.orders.getActiveSessionOrders().isEmpty());
}

void tst_OrderRepository::utcStampsAreMeasuredAgainstLocalDays_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("localTime");
    QTest::addColumn<bool>("seen");

    QTest::newRow("same day") << "Asia/Tokyo"
                              << "2026-03-05 12:00:00" << true;
    // Meant: while the two dates differ, a new order is not seen again.
    QTest::newRow("east after midnight") << "Asia/Tokyo"
                                         << "2026-03-05 00:30:00" << false;
    QTest::newRow("west before midnight") << "America/New_York"
                                          << "2026-03-04 22:00:00" << false;
}

void tst_OrderRepository::utcStampsAreMeasuredAgainstLocalDays()
{
    QFETCH(QString, zone);
    QFETCH(QString, localTime);
    QFETCH(bool, seen);
    if (movedTo(localTime, zone)) {
        return;
    }
    Fixture f;
    Order order;
    order.order_session_id = 1;
    order.display_number = 4711;
    order.status = QStringLiteral("pending");

    f.orders.create(order);

    QCOMPARE(f.orders.getActiveSessionOrders().size(), seen ? 1 : 0);
    QCOMPARE(f.orders.getMaxDisplayNumber(QDate::currentDate().toString(Qt::ISODate)),
             seen ? 4711 : 0);
}

void tst_OrderRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE orders RENAME TO elsewhere"));
    Order order;

    QCOMPARE(
        logOf([&] { QCOMPARE(f.orders.getMaxDisplayNumber(QStringLiteral("2026-01-01")), 0); }),
        line("Failed to get max display number:"));
    QCOMPARE(logOf([&] { QCOMPARE(f.orders.create(order), 0); }),
             QStringLiteral("critical [default] Failed to create order: <error text>"));
    QCOMPARE(order.id, -1);
    QCOMPARE(logOf([&] { QVERIFY(!f.orders.update(order)); }), line("update failed:"));
    QCOMPARE(logOf([&] { f.orders.remove(1); }), line("remove failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.orders.getOrderById(1)); }), line("getOrderById failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.orders.getOrdersByStatus(QString()).isEmpty()); }),
             line("getOrdersByStatus failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.orders.getOrdersBySession(1).isEmpty()); }),
             line("Failed to get orders for session:"));
    QCOMPARE(logOf([&] { QVERIFY(f.orders.getActiveSessionOrders().isEmpty()); }),
             QStringLiteral(
                 "critical [default] Failed to get active order session orders: <QSqlError>"));
}

ZELVAN_TEST(tst_OrderRepository)
#include "tst_orderrepository.moc"
