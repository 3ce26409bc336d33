// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/OrderService.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <memory>

/// What the lines of a new order are, and what they start as.
class tst_OrderLines : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void theFirstStatusFollowsTheKitchenMode_data();
    void theFirstStatusFollowsTheKitchenMode();
    void linesAreSnapshotsOfTheMenu();
    void anyQuantityIsStoredAsSent_data();
    void anyQuantityIsStoredAsSent();
    void unknownAndUnavailableItemsAreSkipped();
    void anOrderStandsWithoutASingleLine();
    void totalsAreStoredBeforeTheSignal();

private:
    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
};

void tst_OrderLines::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({});
}

void tst_OrderLines::theFirstStatusFollowsTheKitchenMode_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("status");

    QTest::newRow("kds") << QStringLiteral("kds") << QStringLiteral("pending");
    QTest::newRow("hybrid") << QStringLiteral("hybrid") << QStringLiteral("pending");
    QTest::newRow("tickets") << QStringLiteral("tickets") << QStringLiteral("served");
    QTest::newRow("none") << QStringLiteral("none") << QStringLiteral("served");
    QTest::newRow("any other") << QStringLiteral("KDS") << QStringLiteral("served");
}

void tst_OrderLines::theFirstStatusFollowsTheKitchenMode()
{
    QFETCH(QString, mode);
    QFETCH(QString, status);
    m_store->setKitchen(mode, QStringLiteral("manual"));

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(m_store->text("SELECT status FROM orders"), status);
    QCOMPARE(m_store->text("SELECT item_status FROM order_items"), status);
    // Served from the start is not served by the kitchen: no stamp.
    QVERIFY(m_store->database.value("SELECT closed_at FROM orders").isNull());
}

void tst_OrderLines::linesAreSnapshotsOfTheMenu()
{
    const int tea =
        m_store->addDish({QStringLiteral("Tea"), 250, true, false, QStringLiteral("Pot")});
    m_store->database.run(QStringLiteral("UPDATE menu SET portion_size = NULL WHERE id = 1"));
    QVariantMap lying = TestStore::line(tea, 3, QStringLiteral("no sugar"));
    lying[QStringLiteral("price")] = 1;
    lying[QStringLiteral("item_name")] = QStringLiteral("Free tea");

    const int order = m_store->orderTakeaway({lying, TestStore::line(m_soup)});
    m_store->database.run(QStringLiteral("UPDATE menu SET item = 'Later', price = 9, "
                                         "portion_size = 'later', is_taxable = 0"));

    const QList<OrderItem> items = m_store->repositories.orderItems.getOrderItemsByOrderId(order);
    QCOMPARE(items.size(), 2);
    QCOMPARE(items[0].item_id, tea);
    QCOMPARE(items[0].item_name, QStringLiteral("Tea"));
    QCOMPARE(items[0].quantity, 3);
    QCOMPARE(items[0].portion_size, QStringLiteral("Pot"));
    QCOMPARE(items[0].price, 250.0);
    QVERIFY(!items[0].is_taxable);
    QCOMPARE(items[0].notes, QStringLiteral("no sugar"));
    QCOMPARE(items[1].item_name, QStringLiteral("Soup"));
    QCOMPARE(items[1].portion_size, QString());
    QVERIFY(items[1].is_taxable);
    QCOMPARE(items[1].notes, QString());
}

void tst_OrderLines::anyQuantityIsStoredAsSent_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<double>("subtotal");

    QTest::newRow("none") << 0 << 0.0;
    QTest::newRow("negative") << -2 << -2000.0;
    QTest::newRow("many") << 2'000'000'000 << 2e12;
}

void tst_OrderLines::anyQuantityIsStoredAsSent()
{
    QFETCH(int, quantity);
    QFETCH(double, subtotal);

    m_store->orderTakeaway({TestStore::line(m_soup, quantity)});

    QCOMPARE(m_store->number("SELECT quantity FROM order_items"), qint64(quantity));
    QCOMPARE(m_store->text("SELECT subtotal FROM order_sessions").toDouble(), subtotal);
}

void tst_OrderLines::unknownAndUnavailableItemsAreSkipped()
{
    const int gone = m_store->addDish({QStringLiteral("Gone"), 100, false});
    const LogCapture log;

    const int order = m_store->orderTakeaway(
        {TestStore::line(99), TestStore::line(gone), TestStore::line(m_soup)});

    QCOMPARE(log.lines(),
             QStringList({QStringLiteral("warning [order] Menu item not found: 99"),
                          QStringLiteral("warning [order] Menu item unavailable: %1").arg(gone)}));
    const QList<OrderItem> items = m_store->repositories.orderItems.getOrderItemsByOrderId(order);
    QCOMPARE(items.size(), 1);
    QCOMPARE(items[0].item_id, m_soup);
}

void tst_OrderLines::anOrderStandsWithoutASingleLine()
{
    QSignalSpy created(&m_store->services.orders, &OrderService::orderCreated);
    expectLog(QtWarningMsg, QStringLiteral("Menu item not found: 99"));

    const int order = m_store->orderTakeaway({TestStore::line(99)});

    QCOMPARE(order, 1);
    QCOMPARE(created, QList<QVariantList>({{1}}));
    QCOMPARE(m_store->number("SELECT total FROM order_sessions"), qint64(0));
}

void tst_OrderLines::totalsAreStoredBeforeTheSignal()
{
    m_store->setTax(600);
    qint64 totalAtSignal = -1;
    connect(&m_store->services.orders, &OrderService::orderCreated, this,
            [&] { totalAtSignal = m_store->number("SELECT total FROM order_sessions"); });

    m_store->orderTakeaway({TestStore::line(m_soup, 2)});

    QCOMPARE(totalAtSignal, qint64(2120));
}

ZELVAN_TEST(tst_OrderLines)
#include "tst_orderlines.moc"
