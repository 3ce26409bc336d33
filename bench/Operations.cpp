// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/Operations.h"

#include "bench/HistoryGenerator.h"
#include "bench/PlainDatabase.h"
#include "core/Services.h"

#include <QDateTime>

namespace {
const QString dineIn = QStringLiteral("dine_in");

void leaveAsItIs(PlainDatabase & /*file*/) {}
void nothing(Services & /*services*/) {}

/// Sessions of one order with four lines, at the first tables; their orders' words are taken in
/// turn.
void openSessions(PlainDatabase &file, int count, const QByteArrayList &orderStatuses)
{
    PlainInsert session(file, "INSERT INTO order_sessions (display_number, table_id, order_type, "
                              "status) VALUES (?, ?, 'dine_in', 'open')");
    PlainInsert order(file, "INSERT INTO orders (order_session_id, display_number, status, notes) "
                            "VALUES (?, ?, ?, '')");
    PlainInsert line(file, "INSERT INTO order_items (order_id, item_id, item_name, quantity, "
                           "portion_size, price, is_taxable, item_status, notes) "
                           "SELECT ?, id, item, 2, portion_size, price, is_taxable, 'pending', '' "
                           "FROM menu WHERE id = ?");
    file.run("BEGIN");
    for (int number = 0; number < count; ++number) {
        const qint64 sessionId = session(5000 + number, 1 + number % HistoryShape::tables);
        const qint64 orderId =
            order(sessionId, 5000 + number, orderStatuses.at(number % orderStatuses.size()));
        for (int index = 0; index < HistoryShape::linesPerOrder; ++index) {
            line(orderId, 1 + (number * 7 + index) % HistoryShape::menuItems);
        }
    }
    file.run("UPDATE tables SET status = 'occupied' WHERE id IN (SELECT table_id FROM "
             "order_sessions WHERE status = 'open')");
    file.run("COMMIT");
}

void openBoard(PlainDatabase &file)
{
    openSessions(file, 40, {"pending", "in_progress", "ready"});
}

void openBills(PlainDatabase &file)
{
    openSessions(file, 20, {"served"});
}

void openRoundBills(PlainDatabase &file)
{
    openSessions(file, maximumRounds, {"pending"});
}

bool createOrder(Services &services, int round)
{
    QVariantList lines;
    for (int index = 0; index < 8; ++index) {
        lines.append(QVariantMap{{QStringLiteral("menuItemId"), 1 + (round * 8 + index) % 200},
                                 {QStringLiteral("qty"), 1 + index % 3},
                                 {QStringLiteral("notes"), QStringLiteral("no onions")}});
    }
    const int freeTable =
        1 + HistoryShape::bookings + round % (HistoryShape::tables - HistoryShape::bookings);
    return services.orders.createOrder(dineIn, lines, {{QStringLiteral("tableId"), freeTable}}) > 0;
}

bool refreshBoard(Services &services, int /*round*/)
{
    qsizetype cards = 0;
    for (const char *status : {"pending", "in_progress", "ready"}) {
        cards += services.kitchenOrders.getOrdersByStatus(QLatin1String(status)).size();
    }
    return cards == 40;
}

/// The first open bill; each round pays one.
int firstOpenBill = 0;

/// They were opened after the last paid one; asking for the open ones would change them.
void findOpenBills(Services &services)
{
    const QVariantMap lastPaid = services.checkout.getRecentPaidOrders().constFirst().toMap();
    firstOpenBill = lastPaid.value(QStringLiteral("id")).toInt() + 1;
}

bool payBill(Services &services, int round)
{
    return services.checkout.completeCheckout(
        firstOpenBill + round, QString::fromLatin1(HistoryShape::memberPhone(1 + round)), 100);
}

bool openCheckout(Services &services, int /*round*/)
{
    return services.checkout.loadActiveCheckoutSessions().size() == 20 &&
           services.checkout.getRecentPaidOrders().size() == 20;
}

bool readDashboard(Services &services, int /*round*/)
{
    return services.analytics.getSnapshot().value(QStringLiteral("ordersToday")).toInt() > 0;
}

bool reportYear(Services &services, int /*round*/)
{
    const QDate today = QDateTime::currentDateTimeUtc().date();
    const QDate from = today.addYears(-1);
    const int count = services.taxReports.getSummary(from, today)
                          .value(QStringLiteral("transactionCount"))
                          .toInt();
    return !services.taxReports.getDailyBreakdown(from, today).isEmpty() &&
           services.taxReports.getSessions(from, today).size() == count;
}

void loadFloor(Services &services)
{
    services.floorPlan.loadCanvas(1);
}

bool loadCanvas(Services &services, int /*round*/)
{
    loadFloor(services);
    return services.floorPlan.canvasModel()->rowCount() == HistoryShape::tables;
}

bool saveCanvas(Services &services, int /*round*/)
{
    return services.floorPlan.saveCanvas(1);
}

/// Three digits, as a search narrows while they are typed.
bool searchMembers(Services &services, int round)
{
    services.members.searchMembers(QString::number(100 + round));
    return services.members.membersModel()->rowCount() > 0;
}

bool loadMembers(Services &services, int /*round*/)
{
    services.members.loadMembers();
    return services.members.membersModel()->rowCount() == HistoryShape::members;
}
} // namespace

const QList<Operation> &operations()
{
    static const QList<Operation> all{
        {"createOrder/8 lines", leaveAsItIs, nothing, createOrder},
        {"board refresh/40 orders", openBoard, nothing, refreshBoard},
        {"completeCheckout/member", openRoundBills, findOpenBills, payBill},
        {"checkout screen/20 sessions", openBills, nothing, openCheckout},
        {"dashboard", leaveAsItIs, nothing, readDashboard},
        {"tax report/year", leaveAsItIs, nothing, reportYear},
        {"loadCanvas/60 tables", leaveAsItIs, nothing, loadCanvas},
        {"saveCanvas/60 tables", leaveAsItIs, loadFloor, saveCanvas},
        {"member search/50000", leaveAsItIs, nothing, searchMembers},
        {"all members/50000", leaveAsItIs, nothing, loadMembers},
    };
    return all;
}
