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
const QString dineIn = QStringLiteral("dine_in");
const QString takeaway = QStringLiteral("takeaway");
const QString tableIdKey = QStringLiteral("tableId");
const QString notesKey = QStringLiteral("notes");
const QString commitFailed = QStringLiteral("critical [default] updateOrder commit failed");

/// Registers the connection that the program never registers, for as long as the object lives.
class DefaultConnection final
{
public:
    DefaultConnection()
    {
        QSqlDatabase handle = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name());
        handle.setDatabaseName(QStringLiteral(":memory:"));
        handle.open();
    }
    ~DefaultConnection() { QSqlDatabase::removeDatabase(name()); }
    Q_DISABLE_COPY_MOVE(DefaultConnection)

private:
    static QString name() { return QStringLiteral("qt_sql_default_connection"); }
};
} // namespace

class tst_OrderUpdate : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void anUpdateWithoutItemsIsRefused();
    void anUnknownOrderIsRefused();
    void anOrderWhoseSessionIsGoneIsRefused();
    void anUpdateAnswersMinusOneThoughItsWritesStand();
    void anUpdatePrintsNothing();
    void everyLineIsReplacedByAFreshSnapshot();
    void skippedLinesAreToldInTheMenusLog();
    void anUpdateMayLeaveNoLines();
    void linesArePendingWhateverTheMode();
    void statusNumberAndStampOfTheOrderStay();
    void theSameTableChangesNoTable();
    void anotherTableFreesTheOldOne();
    void theOldTableIsFreedUnderFurtherOrders();
    void awayFromDineInLeavesNoTable_data();
    void awayFromDineInLeavesNoTable();
    void aTakeawayMayMoveToATable();
    void aPaidSessionMayBeUpdated();
    void withACommitTheUpdateIsPrintedAndTold();
    void withACommitTheModeStillDecidesOnTheTicket();
    void aFailedPrintAfterACommitIsLoggedWithoutFullStop();

private:
    int update(const QVariantList &lines, const QVariantMap &options);

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_table = 0;
    int m_order = 0;
};

void tst_OrderUpdate::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({});
    m_table = m_store->addTable("T1");
    m_order = m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
}

/// Every update ends with the line about its commit.
int tst_OrderUpdate::update(const QVariantList &lines, const QVariantMap &options)
{
    expectLog(QtCriticalMsg, QStringLiteral("updateOrder commit failed"));
    return m_store->services.orders.updateOrder(m_order, dineIn, lines, options);
}

void tst_OrderUpdate::anUpdateWithoutItemsIsRefused()
{
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QCOMPARE(m_store->services.orders.updateOrder(m_order, takeaway, {}, {}), -1);

    QCOMPARE(log.lines(), QStringList{"warning [order] updateOrder failed: empty items"});
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_OrderUpdate::anUnknownOrderIsRefused()
{
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QCOMPARE(m_store->services.orders.updateOrder(99, takeaway, {TestStore::line(m_soup)}, {}), -1);

    QCOMPARE(log.lines(), QStringList{"warning [order] updateOrder failed: order not found"});
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_OrderUpdate::anOrderWhoseSessionIsGoneIsRefused()
{
    m_store->database.run("PRAGMA foreign_keys = OFF");
    m_store->database.run("DELETE FROM order_sessions");
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QCOMPARE(m_store->services.orders.updateOrder(m_order, takeaway, {TestStore::line(m_soup)}, {}),
             -1);

    QCOMPARE(log.lines(), QStringList{"warning [order] updateOrder failed: session not found"});
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_OrderUpdate::anUpdateAnswersMinusOneThoughItsWritesStand()
{
    m_store->setTax(600);
    QSignalSpy updated(&m_store->services.orders, &OrderService::orderUpdated);
    QSignalSpy created(&m_store->services.orders, &OrderService::orderCreated);
    const LogCapture log;

    const int answer =
        m_store->services.orders.updateOrder(m_order, dineIn, {TestStore::line(m_soup, 3, "hot")},
                                             {{tableIdKey, m_table}, {notesKey, "window"}});

    QCOMPARE(answer, -1);
    QCOMPARE(log.lines(), QStringList{commitFailed});
    QCOMPARE(updated.count(), 0);
    QCOMPARE(created.count(), 0);
    QCOMPARE(m_store->number("SELECT quantity FROM order_items"), qint64(3));
    QCOMPARE(m_store->text("SELECT notes FROM order_items"), QStringLiteral("hot"));
    QCOMPARE(m_store->text("SELECT notes FROM orders"), QStringLiteral("window"));
    QCOMPARE(m_store->number("SELECT total FROM order_sessions"), qint64(3180));
    // Nothing is left begun on the working connection.
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_OrderUpdate::anUpdatePrintsNothing()
{
    m_store->addPrinter("Kitchen", "kitchen");
    m_store->setKitchen("tickets", "order_created");

    update({TestStore::line(m_soup)}, {{tableIdKey, m_table}});

    QCOMPARE(m_store->spooler.calls(), QStringList());
}

void tst_OrderUpdate::everyLineIsReplacedByAFreshSnapshot()
{
    const int other = m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    const qint64 oldLine = m_store->number("SELECT id FROM order_items WHERE order_id = 1");
    m_store->database.run("UPDATE menu SET item = 'Broth', price = 1250, portion_size = 'Cup', "
                          "is_taxable = 0");

    update({TestStore::line(m_soup)}, {{tableIdKey, m_table}});

    const QList<OrderItem> items = m_store->repositories.orderItems.getOrderItemsByOrderId(m_order);
    QCOMPARE(items.size(), 1);
    QVERIFY(items[0].id > oldLine);
    QCOMPARE(items[0].item_name, QStringLiteral("Broth"));
    QCOMPARE(items[0].price, 1250.0);
    QCOMPARE(items[0].portion_size, QStringLiteral("Cup"));
    QVERIFY(!items[0].is_taxable);
    // The session's other order keeps its own line.
    QCOMPARE(m_store->repositories.orderItems.getOrderItemsByOrderId(other).value(0).item_name,
             QStringLiteral("Soup"));
    QCOMPARE(m_store->number("SELECT total FROM order_sessions"), qint64(2250));
}

void tst_OrderUpdate::skippedLinesAreToldInTheMenusLog()
{
    const int gone = m_store->addDish({"Gone", 100, false});
    const LogCapture log;

    m_store->services.orders.updateOrder(
        m_order, dineIn, {TestStore::line(99), TestStore::line(gone), TestStore::line(m_soup)},
        {{tableIdKey, m_table}});

    QCOMPARE(log.lines(),
             QStringList({"warning [menu] Menu item not found: 99",
                          QStringLiteral("warning [menu] Menu unavailable: %1").arg(gone),
                          commitFailed}));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM order_items"), qint64(1));
}

void tst_OrderUpdate::anUpdateMayLeaveNoLines()
{
    m_store->database.run("UPDATE menu SET is_available = 0");
    expectLog(QtWarningMsg, "Menu unavailable:");

    update({TestStore::line(m_soup)}, {{tableIdKey, m_table}});

    QCOMPARE(m_store->number("SELECT COUNT(*) FROM order_items"), qint64(0));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM orders"), qint64(1));
    QCOMPARE(m_store->number("SELECT total FROM order_sessions"), qint64(0));
}

void tst_OrderUpdate::linesArePendingWhateverTheMode()
{
    QCOMPARE(m_store->text("SELECT item_status FROM order_items"), QStringLiteral("served"));

    update({TestStore::line(m_soup)}, {{tableIdKey, m_table}});

    QCOMPARE(m_store->text("SELECT item_status FROM order_items"), QStringLiteral("pending"));
    QCOMPARE(m_store->text("SELECT status FROM orders"), QStringLiteral("served"));
}

void tst_OrderUpdate::statusNumberAndStampOfTheOrderStay()
{
    m_store->setKitchen("kds", "manual");
    m_store->services.kitchenOrders.markState(m_order, "served");
    m_store->services.kitchenOrders.markState(m_order, "ready");
    const QString before =
        m_store->text("SELECT status || display_number || closed_at FROM orders");

    update({TestStore::line(m_soup)}, {{tableIdKey, m_table}});

    QVERIFY(before.startsWith("ready"));
    QCOMPARE(m_store->text("SELECT status || display_number || closed_at FROM orders"), before);
    // Absent notes are empty notes.
    QCOMPARE(m_store->text("SELECT notes FROM orders"), QString(""));
}

void tst_OrderUpdate::theSameTableChangesNoTable()
{
    m_store->database.run("UPDATE tables SET status = 'reserved'");
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);

    update({TestStore::line(m_soup)}, {{tableIdKey, m_table}});

    QCOMPARE(status.count(), 0);
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("reserved"));
}

void tst_OrderUpdate::anotherTableFreesTheOldOne()
{
    const int other = m_store->addTable("T2");
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);

    update({TestStore::line(m_soup)}, {{tableIdKey, other}});

    QCOMPARE(status, QList<QVariantList>({{m_table, "available"}, {other, "occupied"}}));
    QCOMPARE(m_store->number("SELECT table_id FROM order_sessions"), qint64(other));
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("available"));
    QCOMPARE(m_store->tableStatus(other), QStringLiteral("occupied"));
}

void tst_OrderUpdate::theOldTableIsFreedUnderFurtherOrders()
{
    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    const int other = m_store->addTable("T2");

    update({TestStore::line(m_soup)}, {{tableIdKey, other}});

    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("available"));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM order_sessions"), qint64(1));
}

void tst_OrderUpdate::awayFromDineInLeavesNoTable_data()
{
    QTest::addColumn<QVariantMap>("options");

    QTest::newRow("no tableId") << QVariantMap{};
    QTest::newRow("a null tableId") << QVariantMap{{tableIdKey, QVariant::fromValue(nullptr)}};
    QTest::newRow("an undefined tableId") << QVariantMap{{tableIdKey, QVariant()}};
}

void tst_OrderUpdate::awayFromDineInLeavesNoTable()
{
    QFETCH(QVariantMap, options);
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);
    expectLog(QtCriticalMsg, "updateOrder commit failed");

    m_store->services.orders.updateOrder(m_order, takeaway, {TestStore::line(m_soup)}, options);

    QCOMPARE(status, QList<QVariantList>({{m_table, "available"}}));
    QVERIFY(m_store->database.value("SELECT table_id FROM order_sessions").isNull());
    QCOMPARE(m_store->text("SELECT order_type FROM order_sessions"), takeaway);

    // Absent on both sides: no table is touched a second time.
    expectLog(QtCriticalMsg, "updateOrder commit failed");
    m_store->services.orders.updateOrder(m_order, takeaway, {TestStore::line(m_soup)}, options);
    QCOMPARE(status.count(), 1);
}

void tst_OrderUpdate::aTakeawayMayMoveToATable()
{
    m_order = m_store->orderTakeaway({TestStore::line(m_soup)});
    const int other = m_store->addTable("T2");
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);

    update({TestStore::line(m_soup)}, {{tableIdKey, other}});

    QCOMPARE(status, QList<QVariantList>({{other, "occupied"}}));
    QCOMPARE(m_store->text("SELECT order_type || table_id FROM order_sessions WHERE id = 2"),
             QStringLiteral("dine_in%1").arg(other));
}

void tst_OrderUpdate::aPaidSessionMayBeUpdated()
{
    QVERIFY(m_store->services.checkout.completeCheckout(m_store->sessionOf(m_order), {}, 0));

    update({TestStore::line(m_soup, 5)}, {{tableIdKey, m_table}});

    QCOMPARE(m_store->text("SELECT status || total FROM order_sessions"),
             QStringLiteral("paid5000"));
}

void tst_OrderUpdate::withACommitTheUpdateIsPrintedAndTold()
{
    const DefaultConnection registered;
    m_store->addPrinter("Kitchen", "kitchen");
    m_store->setKitchen("tickets", "order_created");
    QSignalSpy updated(&m_store->services.orders, &OrderService::orderUpdated);
    QSignalSpy board(&m_store->services.kitchenOrders, &KitchenOrderService::ordersChanged);

    const int answer = m_store->services.orders.updateOrder(
        m_order, dineIn, {TestStore::line(m_soup, 2)}, {{tableIdKey, m_table}});

    QCOMPARE(answer, m_order);
    QCOMPARE(updated, QList<QVariantList>({{m_order}}));
    QCOMPARE(board.count(), 1);
    QCOMPARE(m_store->spooler.documentsFor("Kitchen").size(), 1);
    QVERIFY(m_store->spooler.documentsFor("Kitchen").at(0).contains("2x"));
}

void tst_OrderUpdate::withACommitTheModeStillDecidesOnTheTicket()
{
    const DefaultConnection registered;
    m_store->addPrinter("Kitchen", "kitchen");
    m_store->setKitchen("none", "order_created");

    QCOMPARE(m_store->services.orders.updateOrder(m_order, dineIn, {TestStore::line(m_soup)},
                                                  {{tableIdKey, m_table}}),
             m_order);

    QCOMPARE(m_store->spooler.calls(), QStringList());
}

void tst_OrderUpdate::aFailedPrintAfterACommitIsLoggedWithoutFullStop()
{
    const DefaultConnection registered;
    m_store->addPrinter("Kitchen", "both");
    m_store->setKitchen("hybrid", "order_created");
    m_store->spooler.losePrinter("Kitchen");
    const LogCapture log;

    const int answer = m_store->services.orders.updateOrder(
        m_order, dineIn, {TestStore::line(m_soup)}, {{tableIdKey, m_table}});

    QCOMPARE(answer, m_order);
    QCOMPARE(log.lines(),
             QStringList({"warning [printer] Failed to open printer: \"Kitchen\" error: 1801",
                          "warning [printer] Kitchen print failed"}));
}

ZELVAN_TEST(tst_OrderUpdate)
#include "tst_orderupdate.moc"
