// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/StatementRecorder.h"
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

private:
    template<typename Work>
    static QByteArrayList statementsOf(Work work);
    static void compare(const QByteArrayList &issued, const QByteArrayList &expected);

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_table = 0;
};

template<typename Work>
QByteArrayList tst_Statements::statementsOf(Work work)
{
    const StatementRecorder recorder(DatabaseManager::connection());
    work();
    QByteArrayList texts;
    for (const RecordedStatement &statement : recorder.statements()) {
        texts.append(blanked(statement));
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
                        QByteArrayList{openSessions, allTables, paidSessions});
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

ZELVAN_TEST(tst_Statements)
#include "tst_statements.moc"
