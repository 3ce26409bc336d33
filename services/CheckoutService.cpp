// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"

#include "core/Arithmetic.h"
#include "core/DatabaseManager.h"
#include "core/Logging.h"
#include "core/records/Membership.h"
#include "core/records/Printer.h"
#include "core/records/Restaurant.h"
#include "core/records/Table.h"
#include "core/records/TaxSettings.h"
#include "printing/ReceiptBuilder.h"
#include "repositories/MembershipRepository.h"
#include "repositories/MembershipTransactionRepository.h"
#include "repositories/OrderItemRepository.h"
#include "repositories/OrderRepository.h"
#include "repositories/OrderSessionRepository.h"
#include "repositories/PrinterRepository.h"
#include "repositories/ReceiptSnapshotRepository.h"
#include "repositories/RestaurantRepository.h"
#include "repositories/TableRepository.h"
#include "repositories/TaxSettingsRepository.h"
#include "services/AuthService.h"
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
    , m_restaurant(restaurant)
    , m_printers(printers)
    , m_tables(tables)
    , m_memberships(memberships)
    , m_membershipTransactions(membershipTransactions)
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
    , m_auth(auth)
    , m_database(database)
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
    if (!recalculateTotals(orderSessionId)) {
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
    if (!applyMembership(*session, memberPhone, pointsToRedeem)) {
        return abandon("Failed applying membership");
    }
    if (!markOrdersServed(orderSessionId)) {
        return abandon("Failed marking orders served");
    }
    if (!assignReceiptNumber(*session)) {
        return abandon("Failed assigning receipt number");
    }
    if (!m_sessions->update(*session)) {
        return abandon("Failed updating session");
    }
    if (!m_sessions->markPaid(orderSessionId)) {
        return abandon("Failed marking session paid");
    }
    if (!freeTable(*session)) {
        return abandon("Failed freeing table");
    }
    if (!createReceiptSnapshot(*session)) {
        return abandon("Failed creating receipt snapshot");
    }
    if (!m_database->commitTransaction()) {
        qCWarning(lcCheckout) << "Commit failed";
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
    return false;
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
    m_tableService->setTableStatus(*session.table_id, QStringLiteral("available"));
    QVariantMap reservation = m_reservationService->getSeatedReservationByTable(*session.table_id);
    if (reservation.isEmpty()) {
        return true;
    }
    reservation[keyStatus] = QStringLiteral("completed");
    return m_reservationService->updateReservation(reservation);
}

bool CheckoutService::createReceiptSnapshot(const OrderSession &session)
{
    const std::optional<Restaurant> restaurant = m_restaurant->fetch();
    if (!restaurant) {
        return false;
    }
    const QString blank = QStringLiteral("");
    ReceiptSnapshot snapshot;
    snapshot.order_session_id = session.id;
    snapshot.cashier_name = m_auth->currentUsername();
    snapshot.store_name = restaurant->name;
    snapshot.address = restaurant->address;
    snapshot.phone = restaurant->phone_number.value_or(blank);
    snapshot.email = restaurant->email.value_or(blank);
    snapshot.website = restaurant->website.value_or(blank);
    fillTaxIdentity(snapshot);
    fillMember(snapshot, session.id);
    snapshot.order_type = session.order_type;
    snapshot.table_name = tableNameOf(session);
    return m_snapshots->create(snapshot) != 0;
}

void CheckoutService::fillTaxIdentity(ReceiptSnapshot &snapshot) const
{
    const QString blank = QStringLiteral("");
    const std::optional<TaxSettings> tax = m_taxSettings->fetch();
    if (!tax || !tax->enabled) {
        snapshot.tax_name = blank;
        snapshot.tax_rate = 0;
        snapshot.tax_registration_number = blank;
        return;
    }
    snapshot.tax_name = tax->name;
    snapshot.tax_rate = tax->rate;
    snapshot.tax_registration_number = tax->registration_number.value_or(blank);
}

/// A member who neither earned nor redeemed anything leaves no trace on the receipt.
void CheckoutService::fillMember(ReceiptSnapshot &snapshot, int orderSessionId) const
{
    if (!m_settings->membershipEnabled()) {
        return;
    }
    const int memberId = m_membershipTransactions->getMembershipIdBySession(orderSessionId);
    if (memberId <= 0) {
        return;
    }
    const Membership member = m_memberships->getById(memberId);
    const int redeemed = m_membershipTransactions->getRedeemedPoints(orderSessionId);
    const int earned = m_membershipTransactions->getEarnedPoints(orderSessionId);
    snapshot.member_phone = member.phone_number;
    snapshot.points_balance_after = member.total_points;
    snapshot.points_balance_before =
        Arithmetic::wrapSubtract(Arithmetic::wrapAdd(member.total_points, redeemed), earned);
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
