// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/OrderService.h"
#include "support/ChildProcess.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <memory>

namespace {
constexpr auto tokyo = "Asia/Tokyo";
constexpr auto newYork = "America/New_York";

QStringList listed(const QVariantList &orders)
{
    QStringList ids;
    for (const QVariant &order : orders) {
        ids.append(order.toMap().value("id").toString());
    }
    return ids;
}
} // namespace

/// Stamps are UTC, the day of the till is local, and nothing corrects the difference.
class tst_OpenOrders : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void rowsAreNewestFirstWithTheirTable();
    void ordersOfPaidSessionsAreNotOpen();
    void aRowNamesItsTable();
    void linesAreInCurrencyUnits();
    void ordersAreListedWhereBothClocksShowTheSameDay_data();
    void ordersAreListedWhereBothClocksShowTheSameDay();
    void eastOfGreenwichTheEarlyMorningIsNotListed();
    void westOfGreenwichTheLateEveningIsNotListed();
    void numbersFollowEachOtherWhereBothClocksShowTheSameDay();
    void eastOfGreenwichEveryMorningNumberIsDrawnAfresh();
    void westOfGreenwichTheEveningsNumberRepeats();
    void theNextLocalDayStartsAfresh();

private:
    QStringList numbers(const char *table) const;

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
};

void tst_OpenOrders::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({"Soup", 1050});
}

QStringList tst_OpenOrders::numbers(const char *table) const
{
    return m_store
        ->text(QStringLiteral("SELECT GROUP_CONCAT(display_number) FROM %1")
                   .arg(QString::fromLatin1(table)))
        .split(QLatin1Char(','));
}

void tst_OpenOrders::rowsAreNewestFirstWithTheirTable()
{
    if (movedTo("2026-11-20 12:00:00", "UTC")) {
        return;
    }
    for (int i = 0; i < 4; ++i) {
        m_store->orderTakeaway({TestStore::line(m_soup)});
    }
    m_store->database.run("UPDATE orders SET created_at = '2026-11-20 0' || (4 - id) || ':00:00'");
    m_store->database.run("UPDATE orders SET created_at = '2026-11-19 23:59:59' WHERE id = 3");
    // The first and the last second of the day.
    m_store->database.run("UPDATE orders SET created_at = '2026-11-20 23:59:59' WHERE id = 2");
    m_store->database.run("UPDATE orders SET created_at = '2026-11-20 00:00:00' WHERE id = 4");

    QCOMPARE(listed(m_store->services.orders.getOpenOrders()), QStringList({"2", "1", "4"}));

    m_store->database.run("UPDATE orders SET created_at = '2026-11-21 00:00:00' WHERE id = 2");
    QCOMPARE(listed(m_store->services.orders.getOpenOrders()), QStringList({"1", "4"}));
}

void tst_OpenOrders::ordersOfPaidSessionsAreNotOpen()
{
    if (movedTo("2026-11-20 12:00:00", "UTC")) {
        return;
    }
    const int order = m_store->orderTakeaway({TestStore::line(m_soup)});
    m_store->orderTakeaway({TestStore::line(m_soup)});

    QVERIFY(m_store->services.checkout.completeCheckout(m_store->sessionOf(order), {}, 0));

    // Served ones appear all the same.
    QCOMPARE(listed(m_store->services.orders.getOpenOrders()), QStringList{"2"});
    QCOMPARE(m_store->text("SELECT status FROM orders WHERE id = 2"), QStringLiteral("served"));
}

void tst_OpenOrders::aRowNamesItsTable()
{
    if (movedTo("2026-11-20 12:00:00", "UTC")) {
        return;
    }
    const int table = m_store->addTable("T1");
    m_store->orderAtTable(table, {TestStore::line(m_soup)});
    m_store->database.run("UPDATE orders SET notes = 'window', display_number = 4711");
    QVariantMap expected{{"id", 1},           {"display_number", 4711}, {"status", "served"},
                         {"notes", "window"}, {"type", "dine_in"},      {"table_name", "T1"},
                         {"table_id", table}};
    QCOMPARE(m_store->services.orders.getOpenOrders(), QVariantList{expected});

    m_store->database.run("PRAGMA foreign_keys = OFF");
    m_store->database.run("DELETE FROM tables");
    expected["table_name"] = QString("");
    QCOMPARE(m_store->services.orders.getOpenOrders(), QVariantList{expected});

    m_store->database.run("UPDATE order_sessions SET table_id = NULL");
    expected["table_name"] = QVariant::fromValue(nullptr);
    expected.remove("table_id");
    QCOMPARE(m_store->services.orders.getOpenOrders(), QVariantList{expected});
}

void tst_OpenOrders::linesAreInCurrencyUnits()
{
    const int order = m_store->orderTakeaway({TestStore::line(m_soup, 3, "hot")});

    const QVariantMap expected{{"id", 1},       {"item_id", m_soup}, {"item_name", "Soup"},
                               {"quantity", 3}, {"price", 10.5},     {"status", "served"},
                               {"notes", "hot"}};
    QCOMPARE(m_store->services.orders.getOrderItems(order), QVariantList{expected});
    QCOMPARE(m_store->services.orders.getOrderItems(99), QVariantList());
}

void tst_OpenOrders::ordersAreListedWhereBothClocksShowTheSameDay_data()
{
    QTest::addColumn<QString>("localTime");
    QTest::addColumn<QString>("zone");

    QTest::newRow("Tokyo at ten") << "2026-11-20 10:00:00" << tokyo;
    QTest::newRow("Tokyo before midnight") << "2026-11-20 23:50:00" << tokyo;
    QTest::newRow("New York after midnight") << "2026-11-20 00:10:00" << newYork;
    QTest::newRow("New York in the afternoon") << "2026-11-20 18:00:00" << newYork;
}

void tst_OpenOrders::ordersAreListedWhereBothClocksShowTheSameDay()
{
    QFETCH(QString, localTime);
    QFETCH(QString, zone);
    if (movedTo(localTime, zone)) {
        return;
    }
    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(m_store->services.orders.getOpenOrders().size(), 1);
}

void tst_OpenOrders::eastOfGreenwichTheEarlyMorningIsNotListed()
{
    if (movedTo("2026-11-20 08:00:00", tokyo)) {
        return;
    }
    m_store->orderTakeaway({TestStore::line(m_soup)});

    // Stamped the 19th, 23 o'clock.
    QCOMPARE(m_store->text("SELECT DATE(created_at) FROM orders"), QStringLiteral("2026-11-19"));
    QCOMPARE(m_store->services.orders.getOpenOrders(), QVariantList());
}

void tst_OpenOrders::westOfGreenwichTheLateEveningIsNotListed()
{
    if (movedTo("2026-11-19 22:00:00", newYork)) {
        return;
    }
    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(m_store->text("SELECT DATE(created_at) FROM orders"), QStringLiteral("2026-11-20"));
    QCOMPARE(m_store->services.orders.getOpenOrders(), QVariantList());
}

void tst_OpenOrders::numbersFollowEachOtherWhereBothClocksShowTheSameDay()
{
    if (movedTo("2026-11-20 12:00:00", tokyo)) {
        return;
    }
    for (int i = 0; i < 3; ++i) {
        m_store->orderTakeaway({TestStore::line(m_soup)});
    }

    for (const char *table : {"orders", "order_sessions"}) {
        const QStringList given = numbers(table);
        QCOMPARE(given.value(1).toInt(), given.value(0).toInt() + 1);
        QCOMPARE(given.value(2).toInt(), given.value(0).toInt() + 2);
    }
}

void tst_OpenOrders::eastOfGreenwichEveryMorningNumberIsDrawnAfresh()
{
    if (movedTo("2026-11-20 08:00:00", tokyo)) {
        return;
    }
    for (int i = 0; i < 20; ++i) {
        m_store->orderTakeaway({TestStore::line(m_soup)});
    }

    const QStringList given = numbers("orders");
    int followers = 0;
    for (int i = 1; i < given.size(); ++i) {
        followers += given[i].toInt() == given[i - 1].toInt() + 1 ? 1 : 0;
        QVERIFY(given[i].toInt() < 8000);
    }
    QVERIFY2(followers < 10, qPrintable(given.join(QLatin1Char(' '))));
}

void tst_OpenOrders::westOfGreenwichTheEveningsNumberRepeats()
{
    if (movedTo("2026-11-19 22:00:00", newYork)) {
        return;
    }
    // One of the afternoon, when both clocks still showed the 19th.
    m_store->orderTakeaway({TestStore::line(m_soup)});
    m_store->database.run(
        "UPDATE orders SET display_number = 6000, created_at = '2026-11-19 20:00:00'");
    m_store->database.run(
        "UPDATE order_sessions SET display_number = 9999, opened_at = '2026-11-19 20:00:00'");

    for (int i = 0; i < 3; ++i) {
        m_store->orderTakeaway({TestStore::line(m_soup)});
    }

    QCOMPARE(numbers("orders"), QStringList({"6000", "6001", "6001", "6001"}));
    QCOMPARE(numbers("order_sessions"), QStringList({"9999", "4000", "4000", "4000"}));
}

void tst_OpenOrders::theNextLocalDayStartsAfresh()
{
    if (movedTo("2026-11-20 12:00:00", "UTC")) {
        return;
    }
    m_store->orderTakeaway({TestStore::line(m_soup)});
    m_store->database.run(
        "UPDATE orders SET display_number = 9000, created_at = '2026-11-19 12:00:00'");

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QVERIFY(numbers("orders").value(1).toInt() < 8000);
}

ZELVAN_TEST(tst_OpenOrders)
#include "tst_openorders.moc"
