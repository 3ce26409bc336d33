// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/OrderService.h"

#include "core/DefaultConnectionTransaction.h"
#include "core/Logging.h"
#include "core/records/ActiveOrderRow.h"
#include "core/records/MenuItem.h"
#include "core/records/Printer.h"
#include "core/records/Table.h"
#include "printing/KitchenTicketBuilder.h"
#include "repositories/MenuRepository.h"
#include "repositories/OrderItemRepository.h"
#include "repositories/OrderRepository.h"
#include "repositories/OrderSessionRepository.h"
#include "repositories/PrinterRepository.h"
#include "repositories/TableRepository.h"
#include "services/CheckoutService.h"
#include "services/DisplayNumber.h"
#include "services/ReservationService.h"
#include "services/SettingService.h"
#include "services/TableNames.h"
#include "services/TableService.h"
#include "services/WindowsPrinterService.h"

#include <QDate>

namespace {
const QString dineIn = QStringLiteral("dine_in");
const QString statusPending = QStringLiteral("pending");
const QString statusServed = QStringLiteral("served");
const QString keyTableId = QStringLiteral("tableId");
const QString keyNotes = QStringLiteral("notes");
const QString keyStatus = QStringLiteral("status");

/// Local, though the stored stamps it is compared with are UTC: near midnight the two days differ
/// and a number is drawn afresh or repeats. That is meant.
QString localDay()
{
    return QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd"));
}

std::optional<int> wantedTable(const QVariantMap &options)
{
    const QVariant value = options.value(keyTableId);
    if (!value.isValid() || value.isNull()) {
        return std::nullopt;
    }
    return value.toInt();
}
} // namespace

OrderService::OrderService(OrderSessionRepository *sessions, OrderRepository *orders,
                           OrderItemRepository *items, TableRepository *tables,
                           MenuRepository *menu, PrinterRepository *printers,
                           TaxCalculator * /*held by the program, used by the totals*/,
                           KitchenTicketBuilder *ticketBuilder, SettingService *settings,
                           WindowsPrinterService *printerService, TableService *tableService,
                           ReservationService *reservationService, CheckoutService *checkoutService,
                           QObject *parent)
    : QObject(parent)
    , m_sessions(sessions)
    , m_orders(orders)
    , m_items(items)
    , m_tables(tables)
    , m_menu(menu)
    , m_printers(printers)
    , m_ticketBuilder(ticketBuilder)
    , m_settings(settings)
    , m_printerService(printerService)
    , m_tableService(tableService)
    , m_reservationService(reservationService)
    , m_checkoutService(checkoutService)
{}

int OrderService::createOrder(const QString &orderType, const QVariantList &items,
                              const QVariantMap &options)
{
    if (items.isEmpty()) {
        qCWarning(lcOrder) << "createOrder failed: empty order";
        return -1;
    }

    int sessionId = 0;
    if (orderType == dineIn) {
        const int tableId = options.value(keyTableId).toInt();
        sessionId = joinOrOpenTableSession(tableId);
        if (sessionId < 1) {
            return -1;
        }
        seatBookedReservation(tableId);
    } else {
        sessionId = openSession(orderType, std::nullopt);
        if (sessionId < 1) {
            qCritical() << "OrderSession creation failed, aborting order creation";
            return -1;
        }
    }

    const QString status = firstStatus();
    Order order;
    order.order_session_id = sessionId;
    order.display_number = nextOrderDisplayNumber();
    order.status = status;
    order.notes = options.value(keyNotes).toString();
    // Deliberately not checked: without an order its lines are refused by the foreign key.
    const int orderId = m_orders->create(order);

    createLines(orderId, items,
                {status, "Menu item not found:", "Menu item unavailable:", lcOrder});
    m_checkoutService->recalculateTotals(sessionId);
    printTicketIfDue(orderId, "Kitchen print failed.");
    emit orderCreated(orderId);
    return orderId;
}

int OrderService::updateOrder(int orderId, const QString &orderType, const QVariantList &items,
                              const QVariantMap &options)
{
    if (items.isEmpty()) {
        qCWarning(lcOrder) << "updateOrder failed: empty items";
        return -1;
    }
    DefaultConnectionTransaction transaction;
    transaction.begin();

    std::optional<Order> order = m_orders->getOrderById(orderId);
    if (!order) {
        qCWarning(lcOrder) << "updateOrder failed: order not found";
        transaction.rollback();
        return -1;
    }
    std::optional<OrderSession> session = m_sessions->getSessionById(order->order_session_id);
    if (!session) {
        qCWarning(lcOrder) << "updateOrder failed: session not found";
        transaction.rollback();
        return -1;
    }

    moveToTable(*session, wantedTable(options));
    session->order_type = orderType;
    order->notes = options.value(keyNotes).toString();
    m_orders->update(*order);
    m_items->removeByOrderId(orderId);
    // "pending" whatever the kitchen mode is: the order keeps its status, its lines do not.
    createLines(orderId, items,
                {statusPending, "Menu item not found:", "Menu unavailable:", lcMenu});
    m_sessions->update(*session);
    m_checkoutService->recalculateTotals(order->order_session_id);

    // The default connection is never registered, so this commit always fails and the caller gets
    // -1 while every write above stands by itself. Meant: the screens do not read the answer, and
    // the kitchen board sees the change at its next poll.
    if (!transaction.commit()) {
        qCritical() << "updateOrder commit failed";
        transaction.rollback();
        return -1;
    }
    printTicketIfDue(orderId, "Kitchen print failed");
    emit orderUpdated(orderId);
    return orderId;
}

QVariantList OrderService::getOpenOrders()
{
    const QList<ActiveOrderRow> rows = m_orders->getActiveSessionOrders();
    const TableNames tableNames(*m_tables);
    QVariantList list;
    list.reserve(rows.size());
    for (const ActiveOrderRow &row : rows) {
        QVariantMap map{
            {QStringLiteral("id"), row.order_id},
            {QStringLiteral("display_number"), row.order_display_number},
            {keyStatus, row.order_status},
            {keyNotes, row.order_notes},
            {QStringLiteral("type"), row.session_order_type},
            {QStringLiteral("table_name"), tableNames.shown(row.session_table_id)},
        };
        if (row.session_table_id) {
            map.insert(QStringLiteral("table_id"), *row.session_table_id);
        }
        list.append(map);
    }
    return list;
}

QVariantList OrderService::getOrderItems(int orderId)
{
    QVariantList list;
    for (const OrderItem &item : m_items->getOrderItemsByOrderId(orderId)) {
        list.append(QVariantMap{
            {QStringLiteral("id"), item.id},
            {QStringLiteral("item_id"), item.item_id},
            {QStringLiteral("item_name"), item.item_name},
            {QStringLiteral("quantity"), item.quantity},
            {QStringLiteral("price"), item.price / 100.0},
            {keyStatus, item.item_status},
            {keyNotes, item.notes},
        });
    }
    return list;
}

bool OrderService::printKitchenTicket(int orderId)
{
    const std::optional<Order> order = m_orders->getOrderById(orderId);
    if (!order) {
        qCWarning(lcOrder) << "order not found" << orderId;
        return false;
    }
    const std::optional<OrderSession> session = m_sessions->getSessionById(order->order_session_id);
    if (!session) {
        qCWarning(lcOrder) << "session not found" << order->order_session_id;
        return false;
    }
    const QList<OrderItem> items = m_items->getOrderItemsByOrderId(orderId);
    if (items.isEmpty()) {
        qCWarning(lcOrder) << "no items found";
        return false;
    }
    printTicket(*order, *session, items, nullptr);
    return false;
}

int OrderService::nextSessionDisplayNumber() const
{
    return DisplayNumber::after(m_sessions->getMaxDisplayNumber(localDay()));
}

int OrderService::nextOrderDisplayNumber() const
{
    return DisplayNumber::after(m_orders->getMaxDisplayNumber(localDay()));
}

int OrderService::openSession(const QString &orderType, std::optional<int> tableId)
{
    OrderSession session;
    session.display_number = nextSessionDisplayNumber();
    session.order_type = orderType;
    session.status = QStringLiteral("open");
    session.table_id = tableId;
    return m_sessions->create(session);
}

int OrderService::joinOrOpenTableSession(int tableId)
{
    const int openId = m_sessions->findOpenDineInSession(tableId);
    if (openId >= 1) {
        // Joined as it stands: its number stays, and its table's status is not touched.
        const std::optional<OrderSession> session = m_sessions->getSessionById(openId);
        return session ? session->id : openId;
    }
    const int sessionId = openSession(dineIn, tableId);
    // Before the check, and not undone after it: a table whose session failed stays occupied.
    m_tableService->setTableStatus(tableId, QStringLiteral("occupied"));
    if (sessionId < 1) {
        qCritical() << "OrderSession creation failed, aborting order creation";
    }
    return sessionId;
}

void OrderService::seatBookedReservation(int tableId)
{
    QVariantMap reservation = m_reservationService->getActiveReservationByTable(tableId);
    if (reservation.isEmpty() ||
        reservation.value(keyStatus).toString() != QLatin1String("booked")) {
        return;
    }
    reservation[keyStatus] = QStringLiteral("seated");
    m_reservationService->updateReservation(reservation);
}

QString OrderService::firstStatus() const
{
    const QString mode = m_settings->kitchenMode();
    const bool hasBoard = mode == QLatin1String("kds") || mode == QLatin1String("hybrid");
    return hasBoard ? statusPending : statusServed;
}

void OrderService::moveToTable(OrderSession &session, std::optional<int> tableId)
{
    if (session.table_id == tableId) {
        return;
    }
    // No look at what else sits on either table: the old one is freed even with further orders on
    // it.
    if (session.table_id) {
        m_tableService->setTableStatus(*session.table_id, QStringLiteral("available"));
    }
    if (tableId) {
        m_tableService->setTableStatus(*tableId, QStringLiteral("occupied"));
    }
    session.table_id = tableId;
}

void OrderService::createLines(int orderId, const QVariantList &items, const LineRules &rules)
{
    for (const QVariant &item : items) {
        createLine(orderId, item.toMap(), rules);
    }
}

void OrderService::createLine(int orderId, const QVariantMap &line, const LineRules &rules)
{
    const int menuItemId = line.value(QStringLiteral("menuItemId")).toInt();
    const std::optional<MenuItem> menuItem = m_menu->getMenuItemById(menuItemId);
    if (!menuItem) {
        qCWarning(rules.category) << rules.missingText << menuItemId;
        return;
    }
    if (!menuItem->is_available) {
        qCWarning(rules.category) << rules.unavailableText << menuItemId;
        return;
    }
    OrderItem item;
    item.order_id = orderId;
    item.item_id = menuItem->id;
    item.item_name = menuItem->item;
    item.quantity = line.value(QStringLiteral("qty")).toInt();
    item.portion_size = menuItem->portion_size.value_or(QString());
    item.price = menuItem->price;
    item.is_taxable = menuItem->is_taxable;
    item.item_status = rules.itemStatus;
    item.notes = line.value(keyNotes).toString();
    m_items->create(item);
}

/// Reads the stored mode, not the cached one that chose the first status.
void OrderService::printTicketIfDue(int orderId, const char *failureText)
{
    const QVariantMap kitchen = m_settings->getKitchenSettings();
    const QString mode = kitchen.value(QStringLiteral("mode")).toString();
    const bool hasTickets = mode == QLatin1String("tickets") || mode == QLatin1String("hybrid");
    const bool atCreation = kitchen.value(QStringLiteral("ticket_print_timing")).toString() ==
                            QLatin1String("order_created");
    if (!hasTickets || !atCreation) {
        return;
    }
    const std::optional<Order> order = m_orders->getOrderById(orderId);
    if (!order) {
        return;
    }
    const std::optional<OrderSession> session = m_sessions->getSessionById(order->order_session_id);
    if (!session) {
        return;
    }
    printTicket(*order, *session, m_items->getOrderItemsByOrderId(orderId), failureText);
}

/// Without a failure text a failed print is not told here; the spool's own line stands.
void OrderService::printTicket(const Order &order, const OrderSession &session,
                               const QList<OrderItem> &items, const char *failureText)
{
    for (const Printer &printer : m_printers->fetchAll()) {
        if (printer.role != QLatin1String("kitchen") && printer.role != QLatin1String("both")) {
            continue;
        }
        const QByteArray ticket = m_ticketBuilder->build(order, session, items, printer);
        const bool printed = m_printerService->print(printer.system_name, ticket);
        if (!printed && failureText != nullptr) {
            qCWarning(lcPrinter) << failureText;
        }
    }
}
