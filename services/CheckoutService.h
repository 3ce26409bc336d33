// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Order.h"
#include "core/records/OrderItem.h"
#include "core/records/OrderSession.h"
#include "services/SnapshotAssembler.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

class AppStateRepository;
class AuthService;
class DatabaseManager;
class MembershipRepository;
class MembershipService;
class MembershipTransactionRepository;
class OrderItemRepository;
class OrderRepository;
class OrderSessionRepository;
class PrinterRepository;
class ReceiptBuilder;
class ReceiptSnapshotRepository;
class RegionalSettingsRepository;
class ReservationService;
class RestaurantRepository;
class SettingService;
class TableRepository;
class TableService;
class TaxCalculator;
class TaxSettingsRepository;
class WindowsPrinterService;

/// The money path: totals, payment as one transaction, receipts. Money is whole cents inside and
/// currency units (cents / 100.0) in every map handed to the screens.
class CheckoutService final : public QObject
{
    Q_OBJECT

public:
    CheckoutService(OrderSessionRepository *sessions, OrderRepository *orders,
                    OrderItemRepository *items, RestaurantRepository *restaurant,
                    PrinterRepository *printers, TableRepository *tables,
                    MembershipRepository *memberships,
                    MembershipTransactionRepository *membershipTransactions,
                    TaxSettingsRepository *taxSettings, AppStateRepository *appState,
                    ReceiptSnapshotRepository *snapshots, RegionalSettingsRepository *regional,
                    ReceiptBuilder *receiptBuilder, WindowsPrinterService *printerService,
                    TaxCalculator *taxCalculator, MembershipService *membershipService,
                    SettingService *settings, TableService *tableService,
                    ReservationService *reservationService, AuthService *auth,
                    DatabaseManager *database, QObject *parent = nullptr);

    /// Every open session. Stores fresh totals on the way: this read writes.
    Q_INVOKABLE QVariantList loadActiveCheckoutSessions();

    /// The whole payment or nothing. True also for a session that is already paid, which changes
    /// nothing; false leaves everything as it was, the reason in the log.
    Q_INVOKABLE bool completeCheckout(int orderSessionId, const QString &memberPhone,
                                      int pointsToRedeem);

    /// The session's orders with their lines, after storing fresh totals; empty for no such
    /// session.
    Q_INVOKABLE QVariantList loadCheckoutDetails(int orderSessionId);

    /// Prints on every receipt printer. True only where one matched and all answered true; changes
    /// no record.
    Q_INVOKABLE bool printReceipt(int orderSessionId, bool isReprint);

    /// The last 20 paid sessions, newest payment first.
    Q_INVOKABLE QVariantList getRecentPaidOrders();

    /// A session with its orders and lines, figures as stored; empty for no such session.
    Q_INVOKABLE QVariantMap loadPaidOrderDetails(int orderSessionId);

    /// Writes subtotal, tax and total of a session from its lines; its discount stays. False only
    /// when there is no such session.
    bool recalculateTotals(int orderSessionId);

private:
    /// What listeners heard of a payment before it was known to last.
    struct Announcement
    {
        int tableId;
        bool reservationChanged;
    };

    /// Undoes the payment; always false, so that a failed step can end with it.
    [[nodiscard]] bool rollbackCheckout();
    [[nodiscard]] bool abandon(const char *reason);
    [[nodiscard]] bool stillStands(bool done) const;
    void takeBackAnnouncement();
    [[nodiscard]] bool applyMembership(OrderSession &session, const QString &memberPhone,
                                       int pointsToRedeem);
    [[nodiscard]] bool markOrdersServed(int orderSessionId);
    [[nodiscard]] bool assignReceiptNumber(OrderSession &session);
    [[nodiscard]] bool freeTable(const OrderSession &session);
    [[nodiscard]] bool createReceiptSnapshot(const OrderSession &session);

    [[nodiscard]] QList<OrderItem> itemsOf(const QList<Order> &orders) const;
    [[nodiscard]] QVariantList orderMaps(int orderSessionId) const;
    [[nodiscard]] std::optional<QString> tableNameOf(const OrderSession &session) const;

    OrderSessionRepository *m_sessions;
    OrderRepository *m_orders;
    OrderItemRepository *m_items;
    PrinterRepository *m_printers;
    TableRepository *m_tables;
    TaxSettingsRepository *m_taxSettings;
    AppStateRepository *m_appState;
    ReceiptSnapshotRepository *m_snapshots;
    RegionalSettingsRepository *m_regional;
    ReceiptBuilder *m_receiptBuilder;
    WindowsPrinterService *m_printerService;
    TaxCalculator *m_taxCalculator;
    MembershipService *m_membershipService;
    SettingService *m_settings;
    TableService *m_tableService;
    ReservationService *m_reservationService;
    DatabaseManager *m_database;
    SnapshotAssembler m_snapshotAssembler;
    std::optional<Announcement> m_announced;
};
