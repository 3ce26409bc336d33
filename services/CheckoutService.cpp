// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"

#include "core/Arithmetic.h"
#include "core/DatabaseManager.h"
#include "core/Logging.h"
#include "core/records/Printer.h"
#include "core/records/Table.h"
#include "core/records/TaxSettings.h"
#include "printing/ReceiptBuilder.h"
#include "repositories/OrderItemRepository.h"
#include "repositories/OrderRepository.h"
#include "repositories/OrderSessionRepository.h"
#include "repositories/PrinterRepository.h"
#include "repositories/ReceiptSnapshotRepository.h"
#include "repositories/TableRepository.h"
#include "repositories/TaxSettingsRepository.h"
#include "services/CheckoutMaps.h"
#include "services/MembershipService.h"
#include "services/OrderIds.h"
#include "services/ReceiptAssembler.h"
#include "services/ReceiptNumber.h"
#include "services/ReservationService.h"
#include "services/SettingService.h"
#include "services/TableNames.h"
#include "services/TableService.h"
#include "services/TaxCalculator.h"
#include "services/WindowsPrinterService.h"

#include <algorithm>

namespace {
constexpr int recentOrderLimit = 20;
const QString statusServed = QStringLiteral("served");
const QString keyStatus = QStringLiteral("status");
} // namespace

CheckoutService::CheckoutService(
    OrderSessionRepository *sessions, OrderRepository *orders, OrderItemRepository *items,
    RestaurantRepository *restaurant, PrinterRepository *printers, TableRepository *tables,
    MembershipRepository *memberships, MembershipTransactionRepository *membershipTransactions,
    TaxSettingsRepository *taxSettings, AppStateRepository *appState,
    ReceiptSnapshotRepository *snapshots, RegionalSettingsRepository *regional,
    ReceiptBuilder *receiptBuilder, WindowsPrinterService *printerService,
    TaxCalculator *taxCalculator, MembershipService *membershipService, SettingService *settings,
    TableService *tableService, ReservationService *reservationService, AuthService *auth,
    DatabaseManager *database, QObject *parent)
    : QObject(parent)
    , m_sessions(sessions)
    , m_orders(orders)
    , m_items(items)
    , m_printers(printers)
    , m_tables(tables)
    , m_taxSettings(taxSettings)
    , m_appState(appState)
    , m_snapshots(snapshots)
    , m_regional(regional)
    , m_receiptBuilder(receiptBuilder)
    , m_printerService(printerService)
    , m_taxCalculator(taxCalculator)
    , m_membershipService(membershipService)
    , m_settings(settings)
    , m_tableService(tableService)
    , m_reservationService(reservationService)
    , m_database(database)
    , m_snapshotAssembler(restaurant, taxSettings, memberships, membershipTransactions, settings,
                          auth)
{}

QVariantList CheckoutService::loadActiveCheckoutSessions()
{
    for (const OrderSession &session : m_sessions->getOpenSessions()) {
        recalculateTotals(session.id);
    }
    const QList<OrderSession> sessions = m_sessions->getOpenSessions();
    const TableNames tableNames(*m_tables);
    QVariantList list;
    list.reserve(sessions.size());
    for (const OrderSession &session : sessions) {
        list.append(CheckoutMaps::openSession(session, tableNames));
    }
    return list;
}

bool CheckoutService::completeCheckout(int orderSessionId, const QString &memberPhone,
                                       int pointsToRedeem)
{
    if (!m_database->beginTransaction()) {
        qCWarning(lcCheckout) << "Failed to begin transaction";
        return false;
    }
    m_announced.reset();
    if (!stillStands(recalculateTotals(orderSessionId))) {
        return abandon("Failed to recalculate totals");
    }
    std::optional<OrderSession> session = m_sessions->getSessionById(orderSessionId);
    if (!session) {
        qCWarning(lcCheckout) << "Session not found:" << orderSessionId;
        return rollbackCheckout();
    }
    if (session->status == QLatin1String("paid")) {
        // A second payment of one bill is a success that changes nothing; the rollback also undoes
        // the fresh totals above.
        qCWarning(lcCheckout) << "Session already paid";
        m_database->rollbackTransaction();
        return true;
    }
    if (!stillStands(applyMembership(*session, memberPhone, pointsToRedeem))) {
        return abandon("Failed applying membership");
    }
    if (!stillStands(markOrdersServed(orderSessionId))) {
        return abandon("Failed marking orders served");
    }
    if (!stillStands(assignReceiptNumber(*session))) {
        return abandon("Failed assigning receipt number");
    }
    if (!m_sessions->update(*session)) {
        return abandon("Failed updating session");
    }
    if (!m_sessions->markPaid(orderSessionId)) {
        return abandon("Failed marking session paid");
    }
    if (!stillStands(freeTable(*session))) {
        return abandon("Failed freeing table");
    }
    if (!stillStands(createReceiptSnapshot(*session))) {
        return abandon("Failed creating receipt snapshot");
    }
    if (!m_database->commitTransaction()) {
        qCWarning(lcCheckout) << "Commit failed";
        takeBackAnnouncement();
        return false;
    }
    return true;
}

QVariantList CheckoutService::loadCheckoutDetails(int orderSessionId)
{
    if (!recalculateTotals(orderSessionId)) {
        return {};
    }
    const std::optional<OrderSession> session = m_sessions->getSessionById(orderSessionId);
    if (!session) {
        return {};
    }
    QVariantList list;
    for (const QVariant &order : orderMaps(orderSessionId)) {
        QVariantMap map = order.toMap();
        CheckoutMaps::insertAmounts(map, *session);
        list.append(map);
    }
    return list;
}

bool CheckoutService::printReceipt(int orderSessionId, bool isReprint)
{
    const std::optional<OrderSession> session = m_sessions->getSessionById(orderSessionId);
    if (!session) {
        return false;
    }
    const std::optional<ReceiptSnapshot> snapshot = m_snapshots->getByOrderSession(orderSessionId);
    if (!snapshot) {
        return false;
    }
    ReceiptData receipt = ReceiptAssembler::header(*session, *snapshot);
    receipt.isReprint = isReprint;
    receipt.tableName = tableNameOf(*session);
    if (isReprint) {
        receipt.saleTime = ReceiptAssembler::saleTime(*snapshot, *m_regional);
    }
    receipt.items =
        ReceiptAssembler::groupItems(itemsOf(m_orders->getOrdersBySession(orderSessionId)));

    bool matched = false;
    bool allPrinted = true;
    for (const Printer &printer : m_printers->fetchAll()) {
        if (printer.role != QLatin1String("receipt") && printer.role != QLatin1String("both")) {
            continue;
        }
        matched = true;
        // One printer failing does not keep the others from printing.
        if (!m_printerService->print(printer.system_name,
                                     m_receiptBuilder->build(receipt, printer))) {
            allPrinted = false;
        }
    }
    return matched && allPrinted;
}

QVariantList CheckoutService::getRecentPaidOrders()
{
    QVariantList list;
    for (const OrderSession &session : m_sessions->getRecentPaidSessions(recentOrderLimit)) {
        list.append(CheckoutMaps::recentOrder(session));
    }
    return list;
}

QVariantMap CheckoutService::loadPaidOrderDetails(int orderSessionId)
{
    const std::optional<OrderSession> session = m_sessions->getSessionById(orderSessionId);
    if (!session) {
        return {};
    }
    QVariantMap map{
        {QStringLiteral("id"), session->id},
        {QStringLiteral("display_number"), session->display_number},
        {QStringLiteral("orders"), orderMaps(orderSessionId)},
    };
    CheckoutMaps::insertAmounts(map, *session);
    return map;
}

bool CheckoutService::recalculateTotals(int orderSessionId)
{
    std::optional<OrderSession> session = m_sessions->getSessionById(orderSessionId);
    if (!session) {
        return false;
    }
    qint64 subtotal = 0;
    qint64 taxableSubtotal = 0;
    for (const OrderItem &item : itemsOf(m_orders->getOrdersBySession(orderSessionId))) {
        // Cut per line, before the sum.
        const auto line = Arithmetic::truncate<qint64>(double(item.quantity) * item.price);
        subtotal = Arithmetic::wrapAdd(subtotal, line);
        if (item.is_taxable) {
            taxableSubtotal = Arithmetic::wrapAdd(taxableSubtotal, line);
        }
    }
    const std::optional<TaxSettings> taxSettings = m_taxSettings->fetch();
    const qint64 tax = m_taxCalculator->calculateTax(
        taxableSubtotal, taxSettings ? taxSettings->rate : 0, taxSettings && taxSettings->enabled);
    session->subtotal = double(subtotal);
    session->tax = double(tax);
    // Prices are net; the discount is the one the session already has and never lowers the tax.
    session->total = std::max(0.0, double(Arithmetic::wrapAdd(subtotal, tax)) - session->discount);
    m_sessions->update(*session);
    return true;
}

bool CheckoutService::rollbackCheckout()
{
    qCWarning(lcCheckout) << "Rolling back transaction";
    m_database->rollbackTransaction();
    takeBackAnnouncement();
    return false;
}

/// Steps that do not look at what they wrote go on after any failure, but not on their own.
bool CheckoutService::stillStands(bool done) const
{
    return done && m_database->transactionStands();
}

/// The table was told to be free, and the floor was read, while the payment was under way.
void CheckoutService::takeBackAnnouncement()
{
    if (!m_announced) {
        return;
    }
    m_tableService->announceStoredStatus(m_announced->tableId);
    if (m_announced->reservationChanged) {
        emit m_reservationService->reservationChanged(m_announced->tableId);
    }
    m_announced.reset();
}

bool CheckoutService::abandon(const char *reason)
{
    qCWarning(lcCheckout) << reason;
    return rollbackCheckout();
}

bool CheckoutService::applyMembership(OrderSession &session, const QString &memberPhone,
                                      int pointsToRedeem)
{
    if (!m_settings->membershipEnabled() || memberPhone.isEmpty()) {
        return true;
    }
    const MembershipResult result = m_membershipService->applyCheckout(
        session.id, memberPhone, Arithmetic::truncate<int>(session.subtotal),
        Arithmetic::truncate<int>(session.total), pointsToRedeem);
    if (!result.success) {
        return false;
    }
    session.discount += result.redeemDiscountCents;
    session.total -= result.redeemDiscountCents;
    session.points_earned = result.earnedPoints;
    session.points_redeemed = result.redeemedPoints;
    return true;
}

bool CheckoutService::markOrdersServed(int orderSessionId)
{
    for (Order order : m_orders->getOrdersBySession(orderSessionId)) {
        // Notes and closing time stay: payment is not serving.
        order.status = statusServed;
        if (!m_orders->update(order) || !m_items->markItemsByOrderId(order.id, statusServed)) {
            return false;
        }
    }
    return true;
}

/// Has no failing path of its own: the writes of the counter are not looked at.
bool CheckoutService::assignReceiptNumber(OrderSession &session)
{
    session.receipt_number = ReceiptNumber::take(*m_appState);
    return true;
}

bool CheckoutService::freeTable(const OrderSession &session)
{
    if (!session.table_id) {
        return true;
    }
    m_announced = Announcement{*session.table_id, false};
    m_tableService->setTableStatus(*session.table_id, QStringLiteral("available"));
    QVariantMap reservation = m_reservationService->getSeatedReservationByTable(*session.table_id);
    if (reservation.isEmpty()) {
        return true;
    }
    reservation[keyStatus] = QStringLiteral("completed");
    m_announced->reservationChanged = m_reservationService->updateReservation(reservation);
    return m_announced->reservationChanged;
}

bool CheckoutService::createReceiptSnapshot(const OrderSession &session)
{
    std::optional<ReceiptSnapshot> snapshot = m_snapshotAssembler.assemble(session);
    if (!snapshot) {
        return false;
    }
    snapshot->table_name = tableNameOf(session);
    return m_snapshots->create(*snapshot) != 0;
}

QList<OrderItem> CheckoutService::itemsOf(const QList<Order> &orders) const
{
    return m_items->getOrderItemsByOrderIds(idsOf(orders));
}

QVariantList CheckoutService::orderMaps(int orderSessionId) const
{
    const QList<Order> orders = m_orders->getOrdersBySession(orderSessionId);
    return CheckoutMaps::orders(orders, itemsOf(orders));
}

std::optional<QString> CheckoutService::tableNameOf(const OrderSession &session) const
{
    if (!session.table_id) {
        return std::nullopt;
    }
    const std::optional<Table> table = m_tables->getTableById(*session.table_id);
    return table ? std::optional(table->table_name) : std::nullopt;
}
