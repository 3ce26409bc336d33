// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Order.h"
#include "core/records/OrderItem.h"
#include "core/records/OrderSession.h"

#include <QList>
#include <QLoggingCategory>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

class CheckoutService;
class KitchenTicketBuilder;
class MenuRepository;
class OrderItemRepository;
class OrderRepository;
class OrderSessionRepository;
class PrinterRepository;
class ReservationService;
class SettingService;
class TableRepository;
class TableService;
class TaxCalculator;
class WindowsPrinterService;

/// Turns what staff keyed in into stored orders: everything before payment. Each write stands by
/// itself; printing never fails an order.
class OrderService final : public QObject
{
    Q_OBJECT

public:
    OrderService(OrderSessionRepository *sessions, OrderRepository *orders,
                 OrderItemRepository *items, TableRepository *tables, MenuRepository *menu,
                 PrinterRepository *printers, TaxCalculator *taxCalculator,
                 KitchenTicketBuilder *ticketBuilder, SettingService *settings,
                 WindowsPrinterService *printerService, TableService *tableService,
                 ReservationService *reservationService, CheckoutService *checkoutService,
                 QObject *parent = nullptr);

    /// Stores an order and its lines; a dine-in order joins its table's open session. `items` holds
    /// maps with "menuItemId", "qty", "notes"; `options` "tableId" and "notes". Answers the order's
    /// id, or -1 when nothing was ordered or no session could be opened.
    Q_INVOKABLE int createOrder(const QString &orderType, const QVariantList &items,
                                const QVariantMap &options = {});

    /// Replaces the order's content, lines, type and table. Always answers -1 in the running
    /// program though the writes stand: see the comment at the commit.
    Q_INVOKABLE int updateOrder(int orderId, const QString &orderType, const QVariantList &items,
                                const QVariantMap &options);

    /// The orders of the current local day in unpaid sessions, newest first.
    Q_INVOKABLE QVariantList getOpenOrders();

    /// The order's lines; "price" in currency units.
    Q_INVOKABLE QVariantList getOrderItems(int orderId);

    /// Prints the ticket by hand, whatever the kitchen mode. Answers false on every path, also
    /// after a good print: callers must not read anything into it.
    Q_INVOKABLE bool printKitchenTicket(int orderId);

signals:
    void orderCreated(int orderId);
    void orderUpdated(int orderId);

private:
    [[nodiscard]] int nextSessionDisplayNumber() const;
    [[nodiscard]] int nextOrderDisplayNumber() const;

    [[nodiscard]] int openSession(const QString &orderType, std::optional<int> tableId);
    [[nodiscard]] int joinOrOpenTableSession(int tableId);
    void seatBookedReservation(int tableId);
    [[nodiscard]] QString firstStatus() const;
    void moveToTable(OrderSession &session, std::optional<int> tableId);

    struct LineRules
    {
        QString itemStatus;
        const char *missingText;
        const char *unavailableText;
        const QLoggingCategory &(*category)();
    };
    void createLines(int orderId, const QVariantList &items, const LineRules &rules);
    void createLine(int orderId, const QVariantMap &line, const LineRules &rules);

    void printTicketIfDue(int orderId, const char *failureText);
    void printTicket(const Order &order, const OrderSession &session, const QList<OrderItem> &items,
                     const char *failureText);

    OrderSessionRepository *m_sessions;
    OrderRepository *m_orders;
    OrderItemRepository *m_items;
    TableRepository *m_tables;
    MenuRepository *m_menu;
    PrinterRepository *m_printers;
    KitchenTicketBuilder *m_ticketBuilder;
    SettingService *m_settings;
    WindowsPrinterService *m_printerService;
    TableService *m_tableService;
    ReservationService *m_reservationService;
    CheckoutService *m_checkoutService;
};
