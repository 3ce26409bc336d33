// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/ReceiptAssembler.h"

#include "core/Arithmetic.h"
#include "printing/PrintLayout.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTimeZone>

#include <map>
#include <tuple>

namespace {
/// The label for the receipt. "takeout" is the key though sessions carry "takeaway", so a takeaway
/// receipt prints the stored word: the table is kept as it stands, unlike the kitchen ticket's.
QString orderTypeLabel(const QString &orderType)
{
    if (orderType == QLatin1String("dine_in")) {
        return QObject::tr("Dine In");
    }
    if (orderType == QLatin1String("takeout")) {
        return QObject::tr("Takeout");
    }
    if (orderType == QLatin1String("delivery")) {
        return QObject::tr("Delivery");
    }
    return orderType;
}
} // namespace

ReceiptData ReceiptAssembler::header(const OrderSession &session, const ReceiptSnapshot &snapshot)
{
    ReceiptData receipt;
    receipt.cashier = snapshot.cashier_name.value_or(QString());
    receipt.storeName = snapshot.store_name.value_or(QString());
    receipt.storeAddress = snapshot.address.value_or(QString());
    receipt.storePhone = snapshot.phone.value_or(QString());
    receipt.storeEmail = snapshot.email.value_or(QString());
    receipt.storeWebsite = snapshot.website.value_or(QString());
    receipt.receiptNumber = session.receipt_number.value_or(QString());
    receipt.orderNumber = QString::number(session.display_number);
    receipt.orderType = orderTypeLabel(session.order_type);
    receipt.taxName = snapshot.tax_name.value_or(QString());
    receipt.taxRate = snapshot.tax_rate.value_or(0) / 100.0;
    receipt.taxRegistrationNumber = snapshot.tax_registration_number.value_or(QString());
    receipt.subtotal = session.subtotal / 100.0;
    receipt.tax = session.tax / 100.0;
    receipt.discount = session.discount / 100.0;
    receipt.total = session.total / 100.0;
    receipt.memberPhone = snapshot.member_phone.value_or(QString());
    receipt.balanceBefore = snapshot.points_balance_before.value_or(0);
    receipt.balanceAfter = snapshot.points_balance_after.value_or(0);
    receipt.pointsRedeemed = session.points_redeemed;
    receipt.pointsEarned = session.points_earned;
    return receipt;
}

std::optional<QString> ReceiptAssembler::saleTime(const ReceiptSnapshot &snapshot,
                                                  const RegionalSettingsRepository &regional)
{
    // Date and time are read apart: an hour that the local clock leaves out in spring is no local
    // moment, but a good one in UTC.
    const QStringList parts = snapshot.created_at.value_or(QString()).split(QLatin1Char(' '));
    const QDate date = QDate::fromString(parts.value(0), QStringLiteral("yyyy-MM-dd"));
    const QTime time = QTime::fromString(parts.value(1), QStringLiteral("HH:mm:ss"));
    if (parts.size() != 2 || !date.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    const QDateTime paid(date, time, QTimeZone::utc());
    const QDateTime local = paid.toLocalTime();
    return QStringLiteral("%1 %2").arg(
        PrintLayout::shortDate(PrintLayout::localeFor(regional), local),
        PrintLayout::timeOfDay(local));
}

QList<ReceiptItem> ReceiptAssembler::groupItems(const QList<OrderItem> &items)
{
    using Key = std::tuple<QString, QString, qint64>;
    std::map<Key, int> quantities;
    for (const OrderItem &item : items) {
        int &quantity = quantities[{item.item_name, item.portion_size,
                                    Arithmetic::truncate<qint64>(item.price)}];
        quantity = Arithmetic::wrapAdd(quantity, item.quantity);
    }
    QList<ReceiptItem> grouped;
    grouped.reserve(static_cast<qsizetype>(quantities.size()));
    for (const auto &[key, quantity] : quantities) {
        const auto &[name, portion, cents] = key;
        grouped.append({name, quantity, portion, static_cast<double>(cents) / 100.0});
    }
    return grouped;
}
