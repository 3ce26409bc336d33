// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/DatabaseDump.h"
#include "support/LogCapture.h"
#include "support/ModelRows.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <memory>

namespace {
const QString phone = QStringLiteral("0123456789");
const QString rollingBack = QStringLiteral("warning [checkout] Rolling back transaction");
} // namespace

/// Each step of a payment failing by itself: a false answer, its lines in the log, and not one row
/// changed.
class tst_CheckoutFailures : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void aFailedStepUndoesThePayment_data();
    void aFailedStepUndoesThePayment();
    void aPaymentInsideAnotherTransactionIsRefused();
    void anUnknownSessionIsRefused();
    void aRevokedMemberFailsThePaymentUntilThePhoneIsEmptied();
    void anOverlappingReservationFailsThePayment();
    void aFailedCommitLeavesNoTransactionOpen();
    void aFailedUpdateOfTheTotalsIsNotLookedAt();
    void theListsTellWhatIsStoredAfterAFailure_data();
    void theListsTellWhatIsStoredAfterAFailure();
    void aFailureBeforeTheTableTellsNobodyAnything();

private:
    std::unique_ptr<TestStore> m_store;
    int m_table = 0;
    int m_session = 0;
};

void tst_CheckoutFailures::init()
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

void tst_CheckoutFailures::aFailedStepUndoesThePayment_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *name, const char *sql, const QStringList &lines) {
        QTest::newRow(name) << QString::fromLatin1(sql) << lines;
    };
    const auto refusal = [&row](const char *name, const char *statement, const QStringList &lines) {
        const QString sql = QStringLiteral("CREATE TRIGGER refuse BEFORE %1 "
                                           "BEGIN SELECT RAISE(ABORT, 'refused'); END")
                                .arg(QString::fromLatin1(statement));
        row(name, sql.toLatin1().constData(), lines);
    };

    row("the session vanishes under the totals",
        "CREATE TRIGGER vanish AFTER UPDATE ON order_sessions "
        "BEGIN DELETE FROM order_sessions WHERE id = NEW.id; END",
        {"warning [checkout] Session not found: 1"});
    row("no membership settings", "DELETE FROM membership_settings",
        {"warning [checkout] Failed applying membership"});
    refusal("an order", "UPDATE ON orders WHEN OLD.id = 2",
            {"warning [database] update failed: <QSqlError>",
             "warning [checkout] Failed marking orders served"});
    refusal("the lines", "UPDATE ON order_items WHEN OLD.order_id = 2",
            {"warning [database] markItemsByOrderId failed: <QSqlError>",
             "warning [checkout] Failed marking orders served"});
    refusal("the session", "UPDATE ON order_sessions WHEN NEW.receipt_number IS NOT NULL",
            {"warning [database] Failed to update order session: <QSqlError>",
             "warning [checkout] Failed updating session"});
    refusal("the paid mark", "UPDATE ON order_sessions WHEN NEW.status = 'paid'",
            {"warning [database] Failed to mark order as closed: <QSqlError>",
             "warning [checkout] Failed marking session paid"});
    refusal("the reservation", "UPDATE ON reservations",
            {"warning [database] Failed to update reservation: <QSqlError>",
             "warning [checkout] Failed freeing table"});
    row("no restaurant", "DELETE FROM restaurant",
        {"warning [checkout] Failed creating receipt snapshot"});
    refusal("the snapshot", "INSERT ON receipt_snapshot",
            {"warning [database] Failed to create receipt snapshot: <QSqlError>",
             "warning [checkout] Failed creating receipt snapshot"});
}

void tst_CheckoutFailures::aFailedStepUndoesThePayment()
{
    QFETCH(QString, sql);
    QFETCH(QStringList, lines);
    m_store->database.run(sql);
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QCOMPARE(log.lines(), lines + QStringList{rollingBack});
    QCOMPARE(dumpOf(m_store->database), before);
    // The next payment can begin.
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_CheckoutFailures::aPaymentInsideAnotherTransactionIsRefused()
{
    const QStringList before = dumpOf(m_store->database);
    QVERIFY(DatabaseManager::beginTransaction());
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QCOMPARE(log.lines().size(), 2);
    QVERIFY(log.lines().at(0).startsWith("warning [database] Failed to begin transaction:"));
    QCOMPARE(log.lines().at(1), QStringLiteral("warning [checkout] Failed to begin transaction"));
    // The other transaction is not rolled back on its owner's behalf.
    QVERIFY(DatabaseManager::commitTransaction());
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_CheckoutFailures::anUnknownSessionIsRefused()
{
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(99, phone, 100));

    QCOMPARE(log.lines(),
             QStringList({"warning [checkout] Failed to recalculate totals", rollingBack}));
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_CheckoutFailures::aRevokedMemberFailsThePaymentUntilThePhoneIsEmptied()
{
    m_store->database.run("UPDATE memberships SET status = 'revoked'");
    const QStringList before = dumpOf(m_store->database);
    {
        const LogCapture log;

        QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 0));

        QCOMPARE(log.lines(),
                 QStringList({"warning [checkout] Failed applying membership", rollingBack}));
        QCOMPARE(dumpOf(m_store->database), before);
    }
    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));
}

void tst_CheckoutFailures::anOverlappingReservationFailsThePayment()
{
    m_store->addReservation(m_table, "2026-11-20 18:30:00", 60);
    const QStringList before = dumpOf(m_store->database);
    QSignalSpy status(&m_store->services.tables, &TableService::tableStatusChanged);
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QCOMPARE(log.lines(), QStringList({"warning [checkout] Failed freeing table", rollingBack}));
    QCOMPARE(dumpOf(m_store->database), before);
    // The first signal went out before anything was decided.
    QCOMPARE(status, QList<QVariantList>({{m_table, "available"}, {m_table, "occupied"}}));
}

void tst_CheckoutFailures::aFailedCommitLeavesNoTransactionOpen()
{
    // A broken reference that SQLite looks at no sooner than at the commit.
    m_store->database.run("CREATE TABLE late (id INTEGER REFERENCES tables(id) "
                          "DEFERRABLE INITIALLY DEFERRED)");
    m_store->database.run("CREATE TRIGGER breaks AFTER INSERT ON receipt_snapshot "
                          "BEGIN INSERT INTO late (id) VALUES (99); END");
    const QStringList before = dumpOf(m_store->database);
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QCOMPARE(log.lines().size(), 2);
    QVERIFY(log.lines().at(0).startsWith("warning [database] Failed to commit transaction:"));
    QCOMPARE(log.lines().at(1), QStringLiteral("warning [checkout] Commit failed"));
    QCOMPARE(dumpOf(m_store->database), before);
    // The next one can begin, and what is written outside of any lasts.
    QVERIFY(DatabaseManager::beginTransaction());
    QVERIFY(DatabaseManager::rollbackTransaction());
}

void tst_CheckoutFailures::aFailedUpdateOfTheTotalsIsNotLookedAt()
{
    m_store->refuse("UPDATE ON order_sessions");
    const LogCapture log;

    QVERIFY(m_store->services.checkout.recalculateTotals(m_session));

    QCOMPARE(log.lines(),
             QStringList{"warning [database] Failed to update order session: <QSqlError>"});
}

void tst_CheckoutFailures::theListsTellWhatIsStoredAfterAFailure_data()
{
    QTest::addColumn<QString>("sql");

    QTest::newRow("at the snapshot") << "CREATE TRIGGER refuse BEFORE INSERT ON receipt_snapshot "
                                        "BEGIN SELECT RAISE(ABORT, 'refused'); END";
    QTest::newRow("at the reservation") << "CREATE TRIGGER refuse BEFORE UPDATE ON reservations "
                                           "BEGIN SELECT RAISE(ABORT, 'refused'); END";
    QTest::newRow("by SQLite itself") << "CREATE TRIGGER refuse BEFORE INSERT ON receipt_snapshot "
                                         "BEGIN SELECT RAISE(ROLLBACK, 'disk I/O error'); END";
    QTest::newRow("at the commit") << "CREATE TRIGGER refuse AFTER INSERT ON receipt_snapshot "
                                      "BEGIN INSERT INTO late (id) VALUES (99); END";
}

void tst_CheckoutFailures::theListsTellWhatIsStoredAfterAFailure()
{
    QFETCH(QString, sql);
    m_store->database.run("CREATE TABLE late (id INTEGER REFERENCES tables(id) "
                          "DEFERRABLE INITIALLY DEFERRED)");
    m_store->database.run(sql);
    FloorPlanService &plan = m_store->services.floorPlan;
    const int floor = plan.createFloor(QStringLiteral("Hall"));
    m_store->database.run(QStringLiteral("INSERT INTO canvas_items "
                                         "(floor_id, table_id, type, x, y, width, height) "
                                         "VALUES (%1, %2, 'table', 0, 0, 9, 9)")
                              .arg(floor)
                              .arg(m_table));
    plan.loadCanvas(floor);
    const QVariantList occupied{"occupied"};
    QCOMPARE(ModelRows::column(*plan.canvasModel(), "status"), occupied);
    QSignalSpy tables(&m_store->services.tables, &TableService::tablesChanged);
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QCOMPARE(ModelRows::column(*m_store->services.tables.tableModel(), "status"), occupied);
    QCOMPARE(ModelRows::column(*plan.canvasModel(), "status"), occupied);
    QCOMPARE(tables.count(), 2);
}

void tst_CheckoutFailures::aFailureBeforeTheTableTellsNobodyAnything()
{
    m_store->refuse("UPDATE ON orders");
    QSignalSpy tables(&m_store->services.tables, &TableService::tablesChanged);
    const LogCapture log;

    QVERIFY(!m_store->services.checkout.completeCheckout(m_session, phone, 100));

    QCOMPARE(tables.count(), 0);
}

ZELVAN_TEST(tst_CheckoutFailures)
#include "tst_checkoutfailures.moc"
