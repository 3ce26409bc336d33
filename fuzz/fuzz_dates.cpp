// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "fuzz/FuzzStore.h"
#include "fuzz/FuzzTarget.h"

namespace {
const char *const columns[] = {
    "receipt_snapshot SET created_at",
    "reservations SET reservation_datetime",
    "membership_transactions SET created_at",
    "order_sessions SET closed_at",
    "order_sessions SET opened_at",
    "orders SET created_at",
    "orders SET closed_at",
    "order_items SET created_at",
    "users SET deactivated_at",
    "tables SET created_at",
};
} // namespace

/// Every stored date and time, and everybody who reads one.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzStore &store = FuzzStore::instance();
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const char *column : columns) {
        store.write(QStringLiteral("UPDATE %1 = CAST(? AS TEXT)").arg(QLatin1String(column)),
                    input);
    }

    Services &services = store.services;
    const QDate day(2026, 1, 1);
    const QString text = QString::fromUtf8(input);
    if (!services.checkout.printReceipt(FuzzStore::paidSession, true)) {
        qFatal("the receipt was not printed");
    }
    services.checkout.getRecentPaidOrders();
    services.checkout.loadPaidOrderDetails(FuzzStore::paidSession);
    services.members.loadTransactions(FuzzStore::member);
    services.orders.getOpenOrders();
    services.kitchenOrders.getOrdersByStatus(QStringLiteral("served"));
    static_cast<void>(services.analytics.getSnapshot());
    static_cast<void>(services.taxReports.getSessions(day, day.addDays(1)));
    services.floorPlan.loadCanvas(FuzzStore::floor);

    ReservationService &reservations = services.reservations;
    static_cast<void>(reservations.getReservationsByDate(day));
    static_cast<void>(reservations.isTableAvailable(FuzzStore::table, day.startOfDay(), 60));
    QVariantMap booking = reservations.getActiveReservationByTable(FuzzStore::table);
    booking[QStringLiteral("reservationDateTime")] = text;
    reservations.updateReservation(booking);
    return 0;
}
