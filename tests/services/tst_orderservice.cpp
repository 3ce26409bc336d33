// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/OrderService.h"
#include "support/DatabaseDump.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <memory>

namespace {
const QString takeaway = QStringLiteral("takeaway");
const QString tableIdKey = QStringLiteral("tableId");
} // namespace

/// How an order comes to be: session, table, reservation, lines, numbers, signals.
class tst_OrderService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void anEmptyOrderIsRefused();
    void aDineInOrderOpensASessionAndOccupiesItsTable();
    void aReservedTableTurnsOccupied();
    void aSecondOrderJoinsTheOpenSession();
    void aPaidSessionIsNotJoined();
    void aTakeawayTouchesNoTable_data();
    void aTakeawayTouchesNoTable();
    void aDineInOrderWithoutATableIsRefused();
    void aTableStaysOccupiedWhenItsSessionFails();
    void aTakeawayWhoseSessionFailsIsRefused();
    void aFailedOrderRowIsNotDetected();
    void aBookedReservationIsSeatedHoweverFarAhead();
    void aJoiningOrderSeatsTheReservationToo();
    void aTakeawaySeatsNobody();
    void anOverlapKeepsTheReservationBooked();
    void tableThenReservationThenOrderAreTold();

private:
    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_table = 0;
};

void tst_OrderService::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({});
    m_table = m_store->addTable(QStringLiteral("T1"));
}

void tst_OrderService::anEmptyOrderIsRefused()
{
    QSignalSpy created(&m_store->services.orders, &OrderService::orderCreated);
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QCOMPARE(m_store->orderAtTable(m_table, {}), -1);

    QCOMPARE(log.lines(),
             QStringList{QStringLiteral("warning [order] createOrder failed: empty order")});
    QCOMPARE(dumpOf(m_store->database), before);
    QCOMPARE(created.count(), 0);
}

void tst_OrderService::aDineInOrderOpensASessionAndOccupiesItsTable()
{
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);

    const int order = m_store->services.orders.createOrder(
        QStringLiteral("dine_in"), {TestStore::line(m_soup)},
        {{tableIdKey, m_table}, {QStringLiteral("notes"), QStringLiteral("by the window")}});

    QCOMPARE(order, 1);
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("occupied"));
    QCOMPARE(status, QList<QVariantList>({{m_table, QStringLiteral("occupied")}}));
    const std::optional<OrderSession> session =
        m_store->repositories.orderSessions.getSessionById(m_store->sessionOf(order));
    QVERIFY(session);
    QCOMPARE(session->order_type, QStringLiteral("dine_in"));
    QCOMPARE(session->status, QStringLiteral("open"));
    QVERIFY(session->table_id == m_table);
    QVERIFY(!session->receipt_number);
    QVERIFY(!session->closed_at);
    QVERIFY(session->display_number >= 4000 && session->display_number < 8000);
    QCOMPARE(session->points_earned, 0);
    QCOMPARE(session->points_redeemed, 0);
    QCOMPARE(session->discount, 0.0);
    QCOMPARE(m_store->text("SELECT notes FROM orders"), QStringLiteral("by the window"));
}

void tst_OrderService::aReservedTableTurnsOccupied()
{
    m_store->database.run(QStringLiteral("UPDATE tables SET status = 'reserved'"));

    QVERIFY(m_store->orderAtTable(m_table, {TestStore::line(m_soup)}) > 0);

    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("occupied"));
}

void tst_OrderService::aSecondOrderJoinsTheOpenSession()
{
    const int first = m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    const qint64 sessionNumber = m_store->number("SELECT display_number FROM order_sessions");
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);

    const int second = m_store->orderAtTable(m_table, {TestStore::line(m_soup, 2)});

    QCOMPARE(m_store->sessionOf(second), m_store->sessionOf(first));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM order_sessions"), qint64(1));
    QCOMPARE(m_store->number("SELECT display_number FROM order_sessions"), sessionNumber);
    QCOMPARE(m_store->number("SELECT total FROM order_sessions"), qint64(3000));
    QCOMPARE(status.count(), 0);
    const qint64 firstNumber = m_store->number("SELECT display_number FROM orders WHERE id = 1");
    QCOMPARE(m_store->number("SELECT display_number FROM orders WHERE id = 2"), firstNumber + 1);
}

void tst_OrderService::aPaidSessionIsNotJoined()
{
    const int first = m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    QVERIFY(m_store->services.checkout.completeCheckout(m_store->sessionOf(first), {}, 0));

    const int second = m_store->orderAtTable(m_table, {TestStore::line(m_soup)});

    QVERIFY(m_store->sessionOf(second) != m_store->sessionOf(first));
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("occupied"));
    const qint64 firstNumber =
        m_store->number("SELECT display_number FROM order_sessions WHERE id = 1");
    QCOMPARE(m_store->number("SELECT display_number FROM order_sessions WHERE id = 2"),
             firstNumber + 1);
}

void tst_OrderService::aTakeawayTouchesNoTable_data()
{
    QTest::addColumn<QString>("orderType");

    QTest::newRow("takeaway") << takeaway;
    QTest::newRow("delivery") << QStringLiteral("delivery");
    QTest::newRow("any other word") << QStringLiteral("Dine_In");
}

void tst_OrderService::aTakeawayTouchesNoTable()
{
    QFETCH(QString, orderType);
    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);

    // The screen may still hold the table of the order before.
    const int order = m_store->services.orders.createOrder(orderType, {TestStore::line(m_soup)},
                                                           {{tableIdKey, m_table}});

    QCOMPARE(m_store->sessionOf(order), 2);
    QCOMPARE(m_store->text("SELECT order_type FROM order_sessions WHERE id = 2"), orderType);
    QVERIFY(m_store->database.value("SELECT table_id FROM order_sessions WHERE id = 2").isNull());
    QCOMPARE(status.count(), 0);
}

void tst_OrderService::aDineInOrderWithoutATableIsRefused()
{
    QSignalSpy created(&m_store->services.orders, &OrderService::orderCreated);
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QCOMPARE(
        m_store->services.orders.createOrder(QStringLiteral("dine_in"), {TestStore::line(m_soup)}),
        -1);

    QCOMPARE(log.lines(),
             QStringList(
                 {QStringLiteral("warning [database] Failed to create order session: <QSqlError>"),
                  QStringLiteral("critical [default] OrderSession creation failed, "
                                 "aborting order creation")}));
    QCOMPARE(status, QList<QVariantList>({{0, QStringLiteral("occupied")}}));
    QCOMPARE(dumpOf(m_store->database), before);
    QCOMPARE(created.count(), 0);
}

void tst_OrderService::aTableStaysOccupiedWhenItsSessionFails()
{
    m_store->refuse("INSERT ON order_sessions");
    const int reservation = m_store->addReservation(m_table, "2027-01-01 18:00:00", 60);
    const LogCapture log;

    QCOMPARE(m_store->orderAtTable(m_table, {TestStore::line(m_soup)}), -1);

    QCOMPARE(log.lines().last(),
             QStringLiteral("critical [default] OrderSession creation failed, aborting order "
                            "creation"));
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("occupied"));
    QCOMPARE(m_store->reservationStatus(reservation), QStringLiteral("booked"));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM orders"), qint64(0));
}

void tst_OrderService::aTakeawayWhoseSessionFailsIsRefused()
{
    m_store->refuse("INSERT ON order_sessions");
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QCOMPARE(m_store->orderTakeaway({TestStore::line(m_soup)}), -1);

    QCOMPARE(log.lines(),
             QStringList(
                 {QStringLiteral("warning [database] Failed to create order session: <QSqlError>"),
                  QStringLiteral("critical [default] OrderSession creation failed, "
                                 "aborting order creation")}));
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_OrderService::aFailedOrderRowIsNotDetected()
{
    m_store->refuse("INSERT ON orders");
    QSignalSpy created(&m_store->services.orders, &OrderService::orderCreated);
    const LogCapture log;

    const int order = m_store->orderTakeaway({TestStore::line(m_soup), TestStore::line(m_soup)});

    QCOMPARE(order, 0);
    const QString line =
        QStringLiteral("warning [database] [OrderItemRepository] create failed: <QSqlError>");
    QCOMPARE(log.lines(),
             QStringList({QStringLiteral("critical [default] Failed to create order: <error text>"),
                          line, line}));
    QCOMPARE(created, QList<QVariantList>({{0}}));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM order_sessions"), qint64(1));
}

void tst_OrderService::aBookedReservationIsSeatedHoweverFarAhead()
{
    const int later = m_store->addReservation(m_table, "2031-05-01 18:00:00", 60);
    const int first = m_store->addReservation(m_table, "2030-05-01 18:00:00", 60);
    const int cancelled = m_store->addReservation(m_table, "2029-05-01 18:00:00", 60, "cancelled");
    QSignalSpy changed(&m_store->services.reservations, &ReservationService::reservationChanged);

    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});

    QCOMPARE(m_store->reservationStatus(first), QStringLiteral("seated"));
    QCOMPARE(m_store->reservationStatus(later), QStringLiteral("booked"));
    QCOMPARE(m_store->reservationStatus(cancelled), QStringLiteral("cancelled"));
    QCOMPARE(changed, QList<QVariantList>({{m_table}}));
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("occupied"));
}

void tst_OrderService::aJoiningOrderSeatsTheReservationToo()
{
    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    const int reservation = m_store->addReservation(m_table, "2030-05-01 18:00:00", 60);

    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    QCOMPARE(m_store->reservationStatus(reservation), QStringLiteral("seated"));

    // One already seated is left as it is.
    QSignalSpy changed(&m_store->services.reservations, &ReservationService::reservationChanged);
    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    QCOMPARE(changed.count(), 0);
}

void tst_OrderService::aTakeawaySeatsNobody()
{
    const int reservation = m_store->addReservation(m_table, "2030-05-01 18:00:00", 60);

    m_store->services.orders.createOrder(takeaway, {TestStore::line(m_soup)},
                                         {{tableIdKey, m_table}});

    QCOMPARE(m_store->reservationStatus(reservation), QStringLiteral("booked"));
}

void tst_OrderService::anOverlapKeepsTheReservationBooked()
{
    const int first = m_store->addReservation(m_table, "2030-05-01 18:00:00", 60);
    m_store->addReservation(m_table, "2030-05-01 18:30:00", 60);

    QVERIFY(m_store->orderAtTable(m_table, {TestStore::line(m_soup)}) > 0);

    QCOMPARE(m_store->reservationStatus(first), QStringLiteral("booked"));
}

void tst_OrderService::tableThenReservationThenOrderAreTold()
{
    m_store->addReservation(m_table, "2030-05-01 18:00:00", 60);
    QStringList told;
    const auto note = [&told](const char *what) {
        return [&told, what] { told.append(QString::fromLatin1(what)); };
    };
    connect(&m_store->services.tables, &TableService::tableStatusChanged, this, note("table"));
    connect(&m_store->services.reservations, &ReservationService::reservationChanged, this,
            note("reservation"));
    connect(&m_store->services.kitchenOrders, &KitchenOrderService::ordersChanged, this,
            note("board"));
    connect(&m_store->services.orders, &OrderService::orderCreated, this, note("order"));

    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});

    // The board was connected to the order first.
    QCOMPARE(told, QStringList({"table", "reservation", "board", "order"}));
}

ZELVAN_TEST(tst_OrderService)
#include "tst_orderservice.moc"
