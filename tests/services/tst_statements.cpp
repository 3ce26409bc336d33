// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/StatementRecorder.h"
#include "repositories/WorkingSet.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <memory>

namespace {
/// A statement is named by its start, and by what it looks for where several start alike.
const QByteArray findOpenSession = "SELECT id FROM order_sessions WHERE table_id = ?";
const QByteArray highestSession = "SELECT MAX(display_number) FROM order_sessions";
const QByteArray highestOrder = "SELECT MAX(display_number) FROM orders";
const QByteArray insertSession = "INSERT INTO order_sessions";
const QByteArray insertOrder = "INSERT INTO orders";
const QByteArray insertLine = "INSERT INTO order_items";
const QByteArray sessionById = "SELECT * FROM order_sessions WHERE id = ?";
const QByteArray openSessions = "SELECT * FROM order_sessions WHERE status = 'open'";
const QByteArray paidSessions = "SELECT * FROM order_sessions WHERE status = 'paid'";
const QByteArray lastPaid = "SELECT closed_at FROM temp.working_sessions WHERE paid = 1";
const QByteArray updateSession = "UPDATE order_sessions SET display_number";
const QByteArray markPaid = "UPDATE order_sessions SET status = 'paid'";
const QByteArray ordersOfSession = "orders WHERE order_session_id = ?";
const QByteArray ordersByStatus = "orders WHERE status = ?";
const QByteArray updateOrder = "UPDATE orders SET status";
const QByteArray linesOfOrders = "order_items WHERE order_id IN (";
const QByteArray markLines = "UPDATE order_items SET item_status = ? WHERE order_id = ?";
const QByteArray dishById = "menu WHERE id = ?";
const QByteArray updateTable = "UPDATE tables SET status = ? WHERE id = ?";
const QByteArray allTables = "SELECT id, table_name, capacity, status, created_at FROM tables";
const QByteArray tableById = "tables WHERE id = ?";
const QByteArray reservationsOfTable = "reservations WHERE table_id = ?";
const QByteArray taxSettings = "FROM tax_settings";
const QByteArray kitchenSettings = "FROM kitchen_settings";
const QByteArray membershipSettings = "FROM membership_settings";
const QByteArray memberByPhone = "memberships WHERE phone_number = ?";
const QByteArray memberById = "memberships WHERE id = ?";
const QByteArray adjustPoints = "UPDATE memberships SET total_points";
const QByteArray insertPoints = "INSERT INTO membership_transactions";
const QByteArray memberOfSession = "SELECT membership_id FROM membership_transactions";
const QByteArray sumOfPoints = "SELECT COALESCE(SUM(points), 0) FROM membership_transactions";
const QByteArray readState = "SELECT value FROM app_state WHERE key = ?";
const QByteArray writeState = "INSERT INTO app_state";
const QByteArray restaurant = "FROM restaurant";
const QByteArray insertSnapshot = "INSERT INTO receipt_snapshot";

/// Comes before each statement that the working set bounds: does it still stand?
const QByteArray workingSet = "FROM temp.working_state) FROM pragma_data_version";

const QByteArrayList totals{sessionById, ordersOfSession, linesOfOrders, taxSettings,
                            updateSession};
} // namespace

/// Which statements reach SQLite, in which order, and that there are no others.
class tst_Statements : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void anOrderOfEightLines();
    void anOrderThatJoinsAnOpenSession();
    void aPaymentWithAMember();
    void aRefreshOfTheBoard();
    void openingTheCheckoutScreen();
    void savingAFloorReplacesItsItems();
    void yearsOfHistoryAreNotRead_data();
    void yearsOfHistoryAreNotRead();

private:
    template<typename Work>
    static QByteArrayList statementsOf(Work work);
    template<typename Work>
    static qint64 stepsOf(Work work);
    void addHistory(int sessions) const;
    void doWork(const QString &what);
    static void compare(const QByteArrayList &issued, const QByteArrayList &expected);

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_table = 0;
};

template<typename Work>
QByteArrayList tst_Statements::statementsOf(Work work)
{
    // Found once a start, and not of the work.
    [&] { QVERIFY(WorkingSet::isReady(DatabaseManager::connection())); }();
    const StatementRecorder recorder(DatabaseManager::connection());
    work();
    QByteArrayList texts;
    for (const RecordedStatement &statement : recorder.statements()) {
        const QByteArray text = blanked(statement);
        if (!text.contains(workingSet)) {
            texts.append(text);
        }
    }
    return texts;
}

void tst_Statements::compare(const QByteArrayList &issued, const QByteArrayList &expected)
{
    for (qsizetype index = 0; index < qMin(issued.size(), expected.size()); ++index) {
        const QByteArray difference = issued.at(index) + " instead of " + expected.at(index) +
                                      " at " + QByteArray::number(index);
        QVERIFY2(issued.at(index).contains(expected.at(index)), difference.constData());
    }
    QCOMPARE(issued.size(), expected.size());
}

void tst_Statements::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({});
    m_table = m_store->addTable(QStringLiteral("T1"));
    m_store->setKitchen(QStringLiteral("kds"), QStringLiteral("manual"));
    m_store->setMembershipEnabled(true);
}

void tst_Statements::anOrderOfEightLines()
{
    const QVariantList lines(8, TestStore::line(m_soup));

    const QByteArrayList issued =
        statementsOf([&] { QVERIFY(m_store->orderAtTable(m_table, lines) > 0); });

    QByteArrayList expected{findOpenSession, highestSession,      insertSession, updateTable,
                            allTables,       reservationsOfTable, highestOrder,  insertOrder};
    for (int line = 0; line < 8; ++line) {
        expected << dishById << insertLine;
    }
    expected << totals << kitchenSettings;
    compare(issued, expected);
}

void tst_Statements::anOrderThatJoinsAnOpenSession()
{
    QVERIFY(m_store->orderAtTable(m_table, {TestStore::line(m_soup)}) > 0);

    const QByteArrayList issued = statementsOf(
        [&] { QVERIFY(m_store->orderAtTable(m_table, {TestStore::line(m_soup)}) > 0); });

    // No number for the session, and nothing about its table.
    const QByteArrayList expected =
        QByteArrayList{findOpenSession, sessionById, reservationsOfTable, highestOrder,
                       insertOrder,     dishById,    insertLine} +
        totals + QByteArrayList{kitchenSettings};
    compare(issued, expected);
}

void tst_Statements::aPaymentWithAMember()
{
    m_store->addMember(QStringLiteral("0123"), 500);
    const int order = m_store->orderAtTable(m_table, {TestStore::line(m_soup, 5)});
    const int session = m_store->sessionOf(order);

    const QByteArrayList issued = statementsOf([&] {
        QVERIFY(m_store->services.checkout.completeCheckout(session, QStringLiteral("0123"), 100));
    });

    const QByteArrayList expected =
        QByteArrayList{"BEGIN"} + totals +
        QByteArrayList{sessionById,  memberByPhone,   membershipSettings,  adjustPoints,
                       insertPoints, adjustPoints,    insertPoints,        ordersOfSession,
                       updateOrder,  markLines,       readState,           readState,
                       writeState,   writeState,      updateSession,       markPaid,
                       updateTable,  allTables,       reservationsOfTable, restaurant,
                       taxSettings,  memberOfSession, memberById,          sumOfPoints,
                       sumOfPoints,  tableById,       insertSnapshot,      "COMMIT"};
    compare(issued, expected);
}

void tst_Statements::aRefreshOfTheBoard()
{
    const QVariantList lines(2, TestStore::line(m_soup));
    for (int order = 0; order < 3; ++order) {
        QVERIFY(m_store->orderTakeaway(lines) > 0);
    }

    const QByteArrayList issued = statementsOf([&] {
        for (const char *status : {"pending", "in_progress", "ready"}) {
            m_store->services.kitchenOrders.getOrdersByStatus(QLatin1String(status));
        }
    });

    // An empty column is one statement.
    compare(issued, {ordersByStatus, linesOfOrders, allTables, sessionById, sessionById,
                     sessionById, ordersByStatus, ordersByStatus});
}

void tst_Statements::openingTheCheckoutScreen()
{
    for (int order = 0; order < 2; ++order) {
        QVERIFY(m_store->orderTakeaway({TestStore::line(m_soup)}) > 0);
    }

    const QByteArrayList issued = statementsOf([&] {
        QCOMPARE(m_store->services.checkout.loadActiveCheckoutSessions().size(), 2);
        QVERIFY(m_store->services.checkout.getRecentPaidOrders().isEmpty());
    });

    compare(issued, QByteArrayList{openSessions} + totals + totals +
                        QByteArrayList{openSessions, allTables, lastPaid, paidSessions});
}

void tst_Statements::savingAFloorReplacesItsItems()
{
    const int floor = m_store->services.floorPlan.createFloor(QStringLiteral("Hall"));
    m_store->services.floorPlan.loadCanvas(floor);
    for (int wall = 0; wall < 2; ++wall) {
        m_store->services.floorPlan.addItem({{QStringLiteral("type"), QStringLiteral("wall")}});
    }

    const QByteArrayList issued =
        statementsOf([&] { QVERIFY(m_store->services.floorPlan.saveCanvas(floor)); });

    compare(issued, {"BEGIN", "DELETE FROM canvas_items WHERE floor_id = ?",
                     "INSERT INTO canvas_items", "INSERT INTO canvas_items", "COMMIT"});
}

template<typename Work>
qint64 tst_Statements::stepsOf(Work work)
{
    const StatementRecorder recorder(DatabaseManager::connection());
    work();
    return recorder.steps();
}

/// Paid bills, 200 a day, of one order with four lines each, and as many finished bookings.
void tst_Statements::addHistory(int sessions) const
{
    m_store->database.run(
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT %1 UNION ALL SELECT i - 1 FROM n WHERE i > "
                       "1) INSERT INTO order_sessions (display_number, order_type, status, total, "
                       "opened_at, closed_at) SELECT 4000 + i % 200, 'takeaway', 'paid', 900, "
                       "DATETIME('now', '-' || (i / 200) || ' days', '-1 minute'), "
                       "DATETIME('now', '-' || (i / 200) || ' days', '-1 minute') FROM n")
            .arg(sessions));
    for (const char *sql :
         {"INSERT INTO orders (order_session_id, display_number, status, created_at) "
          "SELECT id, display_number, 'served', opened_at FROM order_sessions",
          "INSERT INTO order_items (order_id, item_id, item_name, quantity, price, is_taxable, "
          "item_status) SELECT orders.id, 1, 'Soup', 1, 225, 1, 'served' FROM orders, "
          "(VALUES (1), (2), (3), (4))",
          "INSERT INTO receipt_snapshot (order_session_id, tax_rate, created_at) "
          "SELECT id, 825, closed_at FROM order_sessions",
          "INSERT INTO membership_transactions (membership_id, order_session_id, type, points) "
          "SELECT 1, id, 'earn', 1 FROM order_sessions WHERE id % 4 = 0",
          "INSERT INTO reservations (table_id, reservation_datetime, duration_minutes, status) "
          "SELECT 1, opened_at, 60, 'completed' FROM order_sessions"}) {
        m_store->database.run(QLatin1String(sql));
    }
    m_store->database.run(
        QStringLiteral("UPDATE order_sessions SET status = 'open', closed_at = NULL WHERE id = 5"));
}

void tst_Statements::doWork(const QString &what)
{
    Services &services = m_store->services;
    const auto openBill = [&] {
        return int(m_store->number(
            QStringLiteral("SELECT MAX(id) FROM order_sessions WHERE status = 'open'")));
    };
    if (what == QLatin1String("order")) {
        QVERIFY(m_store->orderAtTable(m_table, QVariantList(8, TestStore::line(m_soup))) > 0);
    } else if (what == QLatin1String("payment")) {
        QVERIFY(services.checkout.completeCheckout(openBill(), QStringLiteral("0123"), 1));
    } else if (what == QLatin1String("receipt")) {
        const bool printed = services.checkout.printReceipt(openBill(), true);
        QVERIFY(!printed);
    } else if (what == QLatin1String("board")) {
        for (const char *status : {"pending", "in_progress", "ready"}) {
            services.kitchenOrders.getOrdersByStatus(QLatin1String(status));
        }
    } else if (what == QLatin1String("checkout")) {
        QCOMPARE(services.checkout.loadActiveCheckoutSessions().size(), 22);
        QCOMPARE(services.checkout.getRecentPaidOrders().size(), 20);
    } else if (what == QLatin1String("dashboard")) {
        QCOMPARE(services.analytics.getSnapshot().value(QStringLiteral("ordersToday")).toInt(),
                 199);
    } else {
        const QDate today = QDateTime::currentDateTimeUtc().date();
        QVERIFY(services.taxReports.getSessions(today.addDays(-1), today).size() > 300);
        QVERIFY(services.taxReports.getSummary(today.addDays(-1), today).size() > 5);
    }
}

void tst_Statements::yearsOfHistoryAreNotRead_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what :
         {"order", "payment", "receipt", "board", "checkout", "dashboard", "tax of two days"}) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

/// A bill that was forgotten at the very beginning is among the open ones.
void tst_Statements::yearsOfHistoryAreNotRead()
{
    QFETCH(const QString, what);
    QList<qint64> steps;
    for (const int sessions : {3000, 20000}) {
        cleanup();
        init();
        m_store->addMember(QStringLiteral("0123"), 50000);
        addHistory(sessions);
        for (int bill = 0; bill < 20; ++bill) {
            QVERIFY(m_store->orderTakeaway({TestStore::line(m_soup)}) > 0);
        }
        QVERIFY(m_store->orderAtTable(m_table, {TestStore::line(m_soup)}) > 0);
        // What is learned once a start.
        QVERIFY(WorkingSet::hasCalendar(DatabaseManager::connection()));
        steps.append(stepsOf([&] { doWork(what); }));
    }
    QVERIFY2(double(steps.at(1)) <= 1.1 * double(steps.at(0)),
             qPrintable(QStringLiteral("%1 steps after 3000 sessions, %2 after 20000")
                            .arg(steps.at(0))
                            .arg(steps.at(1))));
}

ZELVAN_TEST(tst_Statements)
#include "tst_statements.moc"
