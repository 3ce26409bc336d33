// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/DatabaseDump.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <memory>

namespace {
const QString phone = QStringLiteral("0123456789");
} // namespace

/// A payment that goes through.
class tst_CheckoutService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void aPaymentClosesSessionOrdersTableAndReservation();
    void aPaymentStoresFreshTotals();
    void closingTimeAndNotesOfTheOrdersStay();
    void aBookedReservationIsLeftAsItIs();
    void aTakeawayTouchesNoTable();
    void aSessionWithoutOrdersCanBePaid();
    void aSecondPaymentIsASuccessThatChangesNothing();
    void pointsAreRedeemedAndEarnedIntoTheSession();
    void pointsWorthMoreThanTheBillPayItWhole();
    void aRedemptionAddsToAnEarlierDiscount();
    void theCentsGivenToTheRulesAreCut();
    void pointsAreIgnoredWithoutAMember_data();
    void pointsAreIgnoredWithoutAMember();
    void twoPaymentsOfANewPhoneMakeOneMember();
    void signalsGoOutInsideTheTransaction();

private:
    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_table = 0;
    int m_session = 0;
};

void tst_CheckoutService::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_store->setKitchen("kds", "manual");
    m_table = m_store->addTable("T1");
    m_soup = m_store->addDish({});
    m_session = m_store->sessionOf(m_store->orderAtTable(m_table, {TestStore::line(m_soup, 2)}));
    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
}

void tst_CheckoutService::aPaymentClosesSessionOrdersTableAndReservation()
{
    const int reservation = m_store->addReservation(m_table, "2026-11-20 18:00:00", 60, "seated");
    QSignalSpy changed(&m_store->services.reservations, &ReservationService::reservationChanged);

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));

    QCOMPARE(m_store->text("SELECT status FROM order_sessions"), QStringLiteral("paid"));
    QVERIFY(m_store->number("SELECT closed_at BETWEEN DATETIME('now', '-1 minute') AND "
                            "DATETIME('now') FROM order_sessions") == 1);
    QVERIFY(!m_store->text("SELECT receipt_number FROM order_sessions").isEmpty());
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM orders WHERE status = 'served'"), qint64(2));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM order_items WHERE item_status = 'served'"),
             qint64(2));
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("available"));
    QCOMPARE(m_store->reservationStatus(reservation), QStringLiteral("completed"));
    QCOMPARE(changed, QList<QVariantList>({{m_table}}));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM receipt_snapshot"), qint64(1));
    // Committed: nothing is left begun.
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_CheckoutService::aPaymentStoresFreshTotals()
{
    m_store->setTax(600);
    m_store->database.run("UPDATE order_items SET price = 999");

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));

    QCOMPARE(m_store->text("SELECT subtotal || ' ' || tax || ' ' || discount || ' ' || total "
                           "FROM order_sessions"),
             QStringLiteral("2997 179 0 3176"));
}

void tst_CheckoutService::closingTimeAndNotesOfTheOrdersStay()
{
    m_store->database.run("UPDATE orders SET notes = 'quick', closed_at = '2026-11-20T12:00:00' "
                          "WHERE id = 1");

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));

    QCOMPARE(m_store->text("SELECT notes || closed_at FROM orders WHERE id = 1"),
             QStringLiteral("quick2026-11-20T12:00:00"));
    QVERIFY(m_store->database.value("SELECT closed_at FROM orders WHERE id = 2").isNull());
}

void tst_CheckoutService::aBookedReservationIsLeftAsItIs()
{
    const int reservation = m_store->addReservation(m_table, "2026-11-20 18:00:00", 60);

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));

    QCOMPARE(m_store->reservationStatus(reservation), QStringLiteral("booked"));
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("available"));
}

void tst_CheckoutService::aTakeawayTouchesNoTable()
{
    const int session = m_store->sessionOf(m_store->orderTakeaway({TestStore::line(m_soup)}));
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);

    QVERIFY(m_store->services.checkout.completeCheckout(session, {}, 0));

    QCOMPARE(status.count(), 0);
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("occupied"));
    QCOMPARE(m_store->text("SELECT status FROM order_sessions WHERE id = 1"),
             QStringLiteral("open"));
}

void tst_CheckoutService::aSessionWithoutOrdersCanBePaid()
{
    m_store->database.run("DELETE FROM orders");

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));

    QCOMPARE(m_store->text("SELECT subtotal || ' ' || tax || ' ' || total FROM order_sessions"),
             QStringLiteral("0 0 0"));
}

void tst_CheckoutService::aSecondPaymentIsASuccessThatChangesNothing()
{
    m_store->setMembershipEnabled(true);
    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 0));
    // The recalculation inside the second payment would store another total.
    m_store->database.run("UPDATE order_items SET price = 5000");
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 0));

    QCOMPARE(log.lines(), QStringList{"warning [checkout] Session already paid"});
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_CheckoutService::pointsAreRedeemedAndEarnedIntoTheSession()
{
    m_store->setMembershipEnabled(true);
    m_store->setTax(600);
    m_store->addMember(phone, 250);

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 200));

    // 3000 and 180 of tax, less 200; 2980 earn 2.
    QCOMPARE(m_store->text("SELECT subtotal || ' ' || tax || ' ' || discount || ' ' || total || "
                           "' ' || points_earned || ' ' || points_redeemed FROM order_sessions"),
             QStringLiteral("3000 180 200 2980 2 200"));
    QCOMPARE(m_store->number("SELECT total_points FROM memberships"), qint64(52));
}

void tst_CheckoutService::pointsWorthMoreThanTheBillPayItWhole()
{
    m_store->setMembershipEnabled(true);
    m_store->addMember(phone, 9000);

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 9000));

    QCOMPARE(m_store->text("SELECT discount || ' ' || total || ' ' || points_earned || ' ' || "
                           "points_redeemed FROM order_sessions"),
             QStringLiteral("3000 0 0 3000"));
    QCOMPARE(m_store->number("SELECT total_points FROM memberships"), qint64(6000));
}

void tst_CheckoutService::aRedemptionAddsToAnEarlierDiscount()
{
    m_store->setMembershipEnabled(true);
    m_store->addMember(phone, 100);
    m_store->database.run("UPDATE order_sessions SET discount = 500");

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QCOMPARE(m_store->text("SELECT discount || ' ' || total FROM order_sessions"),
             QStringLiteral("600 2400"));
}

void tst_CheckoutService::theCentsGivenToTheRulesAreCut()
{
    m_store->setMembershipEnabled(true);
    m_store->database.run("UPDATE membership_settings SET earn_spend = 1");
    m_store->database.run("UPDATE order_sessions SET discount = 0.25");

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 0));

    // 2999.75 count as 2999.
    QCOMPARE(m_store->text("SELECT total || ' ' || points_earned FROM order_sessions"),
             QStringLiteral("2999.75 2999"));
}

void tst_CheckoutService::pointsAreIgnoredWithoutAMember_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("phoneGiven");

    QTest::newRow("no phone") << true << QString();
    QTest::newRow("membership off") << false << phone;
}

void tst_CheckoutService::pointsAreIgnoredWithoutAMember()
{
    QFETCH(bool, enabled);
    QFETCH(QString, phoneGiven);
    m_store->setMembershipEnabled(enabled);
    m_store->addMember(phone, 250);

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phoneGiven, 200));

    QCOMPARE(m_store->text("SELECT discount || ' ' || total || ' ' || points_earned || ' ' || "
                           "points_redeemed FROM order_sessions"),
             QStringLiteral("0 3000 0 0"));
    QCOMPARE(m_store->number("SELECT total_points FROM memberships"), qint64(250));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM membership_transactions"), qint64(0));
}

void tst_CheckoutService::twoPaymentsOfANewPhoneMakeOneMember()
{
    m_store->setMembershipEnabled(true);
    const int second = m_store->sessionOf(m_store->orderTakeaway({TestStore::line(m_soup)}));

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, phone, 0));
    QVERIFY(m_store->services.checkout.completeCheckout(second, phone, 0));

    QCOMPARE(m_store->number("SELECT COUNT(*) FROM memberships"), qint64(1));
    QCOMPARE(m_store->number("SELECT total_points FROM memberships"), qint64(4));
}

void tst_CheckoutService::signalsGoOutInsideTheTransaction()
{
    QString seen;
    connect(&m_store->services.tables, &TableService::tableStatusChanged, this, [&] {
        seen = m_store->text("SELECT status || (SELECT COUNT(*) FROM receipt_snapshot) "
                             "FROM order_sessions");
        QVERIFY(!DatabaseManager::beginTransaction());
    });
    expectLog(QtWarningMsg, "Failed to begin transaction:");

    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));

    // Paid already, the snapshot not yet there.
    QCOMPARE(seen, QStringLiteral("paid0"));
}

ZELVAN_TEST(tst_CheckoutService)
#include "tst_checkoutservice.moc"
