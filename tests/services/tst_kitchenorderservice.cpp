// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/KitchenOrderService.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <memory>

class tst_KitchenOrderService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void aCardShowsTheOrderWithItsLines();
    void aStatusWithoutOrdersIsEmpty();
    void ordersStandOldestFirstOverAllDays();
    void aTakeawayHasNoTable();
    void aDeletedTableLeavesNoName();
    void anUnknownTableHasAnEmptyName();
    void anOrderWithoutASessionKeepsItsCard();
    void servedFromTheStartNeverShows_data();
    void servedFromTheStartNeverShows();
    void anUnknownOrderCannotBeMarked();
    void theMiddleStatesMoveTheOrderAlone();
    void servingStampsTheOrderAndServesItsLines();
    void servingTwiceRewritesTheStamp();
    void anyWordIsStored();
    void aFailedUpdateIsStillTold();
    void servingIsNotPaying();
    void aNewOrderRefreshesTheBoardAtOnce();

private:
    [[nodiscard]] QVariantList pending()
    {
        return m_store->services.kitchenOrders.getOrdersByStatus("pending");
    }

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_table = 0;
    int m_order = 0;
};

void tst_KitchenOrderService::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_store->setKitchen("kds", "manual");
    m_soup = m_store->addDish({"Soup", 1050, true, true, "Cup"});
    m_table = m_store->addTable("T1");
    m_order = m_store->orderAtTable(m_table, {TestStore::line(m_soup, 3, "hot")});
    m_store->database.run("UPDATE orders SET display_number = 4711, notes = 'window'");
}

void tst_KitchenOrderService::aCardShowsTheOrderWithItsLines()
{
    const QVariantMap soup{{"id", 1},        {"item_name", "Soup"},
                           {"quantity", 3},  {"portion_size", "Cup"},
                           {"notes", "hot"}, {"item_status", "pending"}};
    const QVariantMap card{{"id", m_order},
                           {"display_number", 4711},
                           {"status", "pending"},
                           {"notes", "window"},
                           {"table_name", "T1"},
                           {"order_type", "dine_in"},
                           {"items", QVariantList{soup}}};

    QCOMPARE(pending(), QVariantList{card});
}

void tst_KitchenOrderService::aStatusWithoutOrdersIsEmpty()
{
    QCOMPARE(m_store->services.kitchenOrders.getOrdersByStatus("ready"), QVariantList());
}

void tst_KitchenOrderService::ordersStandOldestFirstOverAllDays()
{
    const int today = m_store->orderTakeaway({TestStore::line(m_soup)});
    const int earlier =
        m_store->orderTakeaway({TestStore::line(m_soup, 2), TestStore::line(m_soup)});
    m_store->database.run(
        QStringLiteral("UPDATE orders SET created_at = '2026-01-01 10:00:00' WHERE id = %1")
            .arg(earlier));
    m_store->database.run(
        QStringLiteral("UPDATE orders SET created_at = '2099-01-01 10:00:00' WHERE id = %1")
            .arg(today));
    // Even a paid session's order stays until somebody serves it.
    m_store->database.run("UPDATE order_sessions SET status = 'paid'");

    QList<int> ids;
    for (const QVariant &card : pending()) {
        ids.append(card.toMap().value("id").toInt());
    }

    QCOMPARE(ids, QList<int>({earlier, m_order, today}));
    QCOMPARE(pending()[0].toMap().value("items").toList().size(), 2);
    QCOMPARE(pending()[1].toMap().value("items").toList().size(), 1);
}

void tst_KitchenOrderService::aTakeawayHasNoTable()
{
    m_store->orderTakeaway({TestStore::line(m_soup)});

    const QVariantMap card = pending().value(1).toMap();
    QVERIFY(card.contains("table_name"));
    QVERIFY(card.value("table_name").isNull());
    QCOMPARE(card.value("order_type"), QVariant("takeaway"));
}

void tst_KitchenOrderService::aDeletedTableLeavesNoName()
{
    m_store->services.tables.removeTable(m_table);

    QVERIFY(pending().value(0).toMap().value("table_name").isNull());
}

void tst_KitchenOrderService::anUnknownTableHasAnEmptyName()
{
    m_store->database.run("PRAGMA foreign_keys = OFF");
    m_store->database.run("DELETE FROM tables");

    QCOMPARE(pending().value(0).toMap().value("table_name"), QVariant(QString("")));
}

void tst_KitchenOrderService::anOrderWithoutASessionKeepsItsCard()
{
    m_store->database.run("PRAGMA foreign_keys = OFF");
    m_store->database.run("DELETE FROM order_sessions");

    const QVariantMap card = pending().value(0).toMap();
    QCOMPARE(card.keys(), QStringList({"display_number", "id", "items", "notes", "status"}));
}

void tst_KitchenOrderService::servedFromTheStartNeverShows_data()
{
    QTest::addColumn<QString>("mode");

    QTest::newRow("none") << QStringLiteral("none");
    QTest::newRow("tickets") << QStringLiteral("tickets");
}

void tst_KitchenOrderService::servedFromTheStartNeverShows()
{
    QFETCH(QString, mode);
    m_store->setKitchen(mode, "manual");

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(pending().size(), 1);
}

void tst_KitchenOrderService::anUnknownOrderCannotBeMarked()
{
    QSignalSpy changed(&m_store->services.kitchenOrders, &KitchenOrderService::ordersChanged);
    const LogCapture log;

    QVERIFY(!m_store->services.kitchenOrders.markState(99, "ready"));

    QCOMPARE(log.lines(), QStringList{"warning [order] markState failed: order not found, id= 99"});
    QCOMPARE(changed.count(), 0);
}

void tst_KitchenOrderService::theMiddleStatesMoveTheOrderAlone()
{
    QSignalSpy changed(&m_store->services.kitchenOrders, &KitchenOrderService::ordersChanged);

    QVERIFY(m_store->services.kitchenOrders.markState(m_order, "in_progress"));
    QVERIFY(m_store->services.kitchenOrders.markState(m_order, "ready"));

    QCOMPARE(changed.count(), 2);
    QCOMPARE(m_store->text("SELECT status || notes FROM orders"), QStringLiteral("readywindow"));
    QCOMPARE(m_store->text("SELECT item_status FROM order_items"), QStringLiteral("pending"));
    QVERIFY(m_store->database.value("SELECT closed_at FROM orders").isNull());
    QCOMPARE(m_store->services.kitchenOrders.getOrdersByStatus("ready").size(), 1);
}

void tst_KitchenOrderService::servingStampsTheOrderAndServesItsLines()
{
    const int other = m_store->orderTakeaway({TestStore::line(m_soup)});
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);

    QVERIFY(m_store->services.kitchenOrders.markState(m_order, "served"));

    const QString stamp = m_store->text("SELECT closed_at FROM orders WHERE id = 1");
    // ISO, to the second, local and without a zone.
    QVERIFY2(
        QRegularExpression("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d$").match(stamp).hasMatch(),
        qPrintable(stamp));
    const QDateTime served = QDateTime::fromString(stamp, Qt::ISODate);
    QVERIFY(served >= before && served <= QDateTime::currentDateTime());
    QCOMPARE(m_store->text("SELECT item_status FROM order_items WHERE order_id = 1"),
             QStringLiteral("served"));
    QCOMPARE(
        m_store->text(
            QStringLiteral("SELECT item_status FROM order_items WHERE order_id = %1").arg(other)),
        QStringLiteral("pending"));
}

void tst_KitchenOrderService::servingTwiceRewritesTheStamp()
{
    m_store->services.kitchenOrders.markState(m_order, "served");
    m_store->database.run("UPDATE orders SET closed_at = '2020-01-01T00:00:00'");

    m_store->services.kitchenOrders.markState(m_order, "served");

    QVERIFY(m_store->text("SELECT closed_at FROM orders") > QStringLiteral("2026"));
}

void tst_KitchenOrderService::anyWordIsStored()
{
    m_store->services.kitchenOrders.markState(m_order, "served");

    QVERIFY(m_store->services.kitchenOrders.markState(m_order, "burnt"));

    QCOMPARE(m_store->text("SELECT status FROM orders"), QStringLiteral("burnt"));
    QVERIFY(!m_store->text("SELECT closed_at FROM orders").isEmpty());
    QCOMPARE(pending(), QVariantList());
}

void tst_KitchenOrderService::aFailedUpdateIsStillTold()
{
    m_store->refuse("UPDATE ON orders");
    QSignalSpy changed(&m_store->services.kitchenOrders, &KitchenOrderService::ordersChanged);
    const LogCapture log;

    QVERIFY(m_store->services.kitchenOrders.markState(m_order, "served"));

    QCOMPARE(log.lines(), QStringList{"warning [database] update failed: <QSqlError>"});
    QCOMPARE(changed.count(), 1);
    // The lines went first.
    QCOMPARE(m_store->text("SELECT item_status FROM order_items"), QStringLiteral("served"));
}

void tst_KitchenOrderService::servingIsNotPaying()
{
    m_store->services.kitchenOrders.markState(m_order, "served");

    QCOMPARE(m_store->text("SELECT status || total FROM order_sessions"),
             QStringLiteral("open3150"));
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("occupied"));
}

void tst_KitchenOrderService::aNewOrderRefreshesTheBoardAtOnce()
{
    QSignalSpy changed(&m_store->services.kitchenOrders, &KitchenOrderService::ordersChanged);
    bool toldInside = false;
    connect(&m_store->services.kitchenOrders, &KitchenOrderService::ordersChanged, this,
            [&] { toldInside = pending().size() == 2; });

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(changed.count(), 1);
    QVERIFY(toldInside);
}

ZELVAN_TEST(tst_KitchenOrderService)
#include "tst_kitchenorderservice.moc"
