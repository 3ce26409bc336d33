// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/DatabaseDump.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <memory>

namespace {
const QString phone = QStringLiteral("0123456789");
} // namespace

/// SQLite itself ends a transaction when the disk fails or is full at the wrong moment. Nothing of
/// what was begun may be stored then, and nothing that comes after it.
class tst_LostTransaction : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void aPaymentEndsWhereItsTransactionWasLost_data();
    void aPaymentEndsWhereItsTransactionWasLost();
    void aFullDiskUnderANewMemberLeavesTheBillUnpaid();
    void aPaymentGoesThroughOnceTheDiskIsWellAgain();
    void theStepsThatLookAtNothingGoOnWhileTheTransactionStands();
    void aLostTransactionIsNeverCommitted();
    void aFloorIsLeftAsItWas();

private:
    /// From now on this ends the whole transaction, as in "UPDATE ON orders".
    void breakAt(const QString &statement) const;

    std::unique_ptr<TestStore> m_store;
    int m_table = 0;
    int m_session = 0;
};

void tst_LostTransaction::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_store->setMembershipEnabled(true);
    m_store->setTax(600);
    m_store->setKitchen("kds", "manual");
    m_store->addMember(phone, 150);
    m_table = m_store->addTable("T1");
    m_store->addReservation(m_table, "2026-11-20 18:00:00", 60, "seated");
    const int soup = m_store->addDish({});
    m_session = m_store->sessionOf(m_store->orderAtTable(m_table, {TestStore::line(soup, 2)}));
    m_store->orderAtTable(m_table, {TestStore::line(soup)});
}

void tst_LostTransaction::breakAt(const QString &statement) const
{
    m_store->database.run(QStringLiteral("CREATE TRIGGER break BEFORE %1 "
                                         "BEGIN SELECT RAISE(ROLLBACK, 'disk I/O error'); END")
                              .arg(statement));
}

void tst_LostTransaction::aPaymentEndsWhereItsTransactionWasLost_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *statement, const char *reason) {
        QTest::newRow(name) << QString::fromLatin1(statement) << QString::fromLatin1(reason);
    };

    row("totals", "UPDATE ON order_sessions", "Failed to recalculate totals");
    row("redeemed points", "UPDATE ON memberships WHEN NEW.total_points < OLD.total_points",
        "Failed applying membership");
    row("the movement of redeemed points",
        "INSERT ON membership_transactions WHEN NEW.type = "
        "'redeem'",
        "Failed applying membership");
    row("earned points", "UPDATE ON memberships WHEN NEW.total_points > OLD.total_points",
        "Failed applying membership");
    row("the movement of earned points", "INSERT ON membership_transactions WHEN NEW.type = 'earn'",
        "Failed applying membership");
    row("an order", "UPDATE ON orders WHEN OLD.id = 2", "Failed marking orders served");
    row("the lines", "UPDATE ON order_items WHEN OLD.order_id = 2", "Failed marking orders served");
    row("the receipt's year", "UPDATE ON app_state WHEN NEW.key = 'receipt.year'",
        "Failed assigning receipt number");
    row("the receipt's counter", "UPDATE ON app_state WHEN NEW.key = 'receipt.counter'",
        "Failed assigning receipt number");
    row("the session", "UPDATE ON order_sessions WHEN NEW.receipt_number IS NOT NULL",
        "Failed updating session");
    row("the paid mark", "UPDATE ON order_sessions WHEN NEW.status = 'paid'",
        "Failed marking session paid");
    row("the table", "UPDATE ON tables", "Failed freeing table");
    row("the reservation", "UPDATE ON reservations", "Failed freeing table");
    row("the snapshot", "INSERT ON receipt_snapshot", "Failed creating receipt snapshot");
}

void tst_LostTransaction::aPaymentEndsWhereItsTransactionWasLost()
{
    QFETCH(QString, statement);
    QFETCH(QString, reason);
    breakAt(statement);
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QVERIFY2(log.lines().constFirst().endsWith("<QSqlError>"), qPrintable(log.lines().join('\n')));
    QCOMPARE(log.lines().mid(log.lines().size() - 2),
             QStringList(
                 {"warning [checkout] " + reason, "warning [checkout] Rolling back transaction"}));
    QCOMPARE(dumpOf(m_store->database), before);
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_LostTransaction::aFullDiskUnderANewMemberLeavesTheBillUnpaid()
{
    const QStringList before = dumpOf(m_store->database);
    const QString pages = m_store->text("PRAGMA page_count");
    m_store->database.run("PRAGMA max_page_count = " + pages);
    const LogCapture log;

    // The new member's row needs pages that the file may not have.
    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, QString(100'000, '7'), 0));

    QVERIFY(log.lines().contains("warning [checkout] Failed applying membership"));
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_LostTransaction::aPaymentGoesThroughOnceTheDiskIsWellAgain()
{
    breakAt("UPDATE ON order_sessions");
    {
        const LogCapture log;
        QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));
    }
    m_store->database.run("DROP TRIGGER break");

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 100));

    // Three soups of 10.00 with 6 % tax, less 1.00 for the points.
    QCOMPARE(m_store->number("SELECT total FROM order_sessions"), 3080);
    QCOMPARE(m_store->text("SELECT status FROM order_sessions"), QStringLiteral("paid"));
    QVERIFY(m_store->text("SELECT receipt_number FROM order_sessions").endsWith("-000000"));
}

void tst_LostTransaction::theStepsThatLookAtNothingGoOnWhileTheTransactionStands()
{
    m_store->refuse("INSERT ON membership_transactions");
    const LogCapture log;

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 0));

    QCOMPARE(m_store->text("SELECT status FROM order_sessions"), QStringLiteral("paid"));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM membership_transactions"), 0);
}

void tst_LostTransaction::aLostTransactionIsNeverCommitted()
{
    breakAt("UPDATE ON tables");
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;
    QVERIFY(DatabaseManager::beginTransaction());
    m_store->repositories.appState.save({"a", "1"});
    QVERIFY(DatabaseManager::transactionStands());

    QVERIFY(!m_store->repositories.tables.setTableState(m_table, "available"));
    m_store->repositories.appState.save({"b", "2"});

    QVERIFY(!DatabaseManager::transactionStands());
    QVERIFY(!DatabaseManager::commitTransaction());
    QCOMPARE(log.lines().constLast(),
             QStringLiteral("warning [database] Failed to commit transaction: "
                            "SQLite ended it when a statement failed"));
    QVERIFY(DatabaseManager::transactionStands());
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_LostTransaction::aFloorIsLeftAsItWas()
{
    FloorPlanService &plan = m_store->services.floorPlan;
    const int floor = plan.createFloor(QStringLiteral("Hall"));
    plan.loadCanvas(floor);
    for (int wall = 0; wall < 3; ++wall) {
        plan.addItem({{QStringLiteral("type"), QStringLiteral("wall")}});
    }
    QVERIFY(plan.saveCanvas(floor));
    const QStringList before = dumpOf(m_store->database);
    // The deletion and the first row are done by then.
    breakAt("INSERT ON canvas_items WHEN (SELECT COUNT(*) FROM canvas_items) = 1");
    const LogCapture log;

    QVERIFY(!plan.saveCanvas(floor));

    QCOMPARE(log.lines(), QStringList{"warning [database] Insert failed: <QSqlError>"});
    QCOMPARE(dumpOf(m_store->database), before);
}

ZELVAN_TEST(tst_LostTransaction)
#include "tst_losttransaction.moc"
