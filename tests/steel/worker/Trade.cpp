// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "steel/worker/Trade.h"

#include "steel/worker/Acknowledgement.h"
#include "steel/worker/StoreContent.h"
#include "steel/worker/Till.h"

Trade::Trade(Till &till, unsigned seed, int attempts)
    : m_till(till)
    , m_random(seed)
    , m_attempts(attempts)
    , m_tables(StoreContent::tables)
{}

void Trade::round()
{
    const int orderId = order();
    if (orderId < 1) {
        acknowledge("no order");
        return;
    }
    const std::optional<Order> stored = m_till.repositories.orders.getOrderById(orderId);
    if (!stored) {
        return;
    }
    const auto lineCount = m_till.repositories.orderItems.getOrderItemsByOrderId(orderId).size();
    acknowledge("ordered " + QByteArray::number(orderId) + ' ' +
                QByteArray::number(stored->order_session_id) + ' ' +
                QByteArray::number(qint64(lineCount)));
    // One bill in six stays open for a while: the table's next order joins it.
    if (pick(1, 6) > 1) {
        pay(stored->order_session_id);
    }
}

void Trade::settle()
{
    for (const OrderSession &session : m_till.repositories.orderSessions.getOpenSessions()) {
        pay(session.id);
        pay(session.id);
    }
}

int Trade::pick(int from, int to)
{
    return from + static_cast<int>(m_random() % static_cast<unsigned>(to - from + 1));
}

QVariantList Trade::lines()
{
    QVariantList lines;
    const int count = pick(1, 4);
    for (int line = 0; line < count; ++line) {
        lines.append(QVariantMap{{QStringLiteral("menuItemId"), pick(1, StoreContent::dishes)},
                                 {QStringLiteral("qty"), pick(1, 3)},
                                 {QStringLiteral("notes"), QStringLiteral("no onions")}});
    }
    return lines;
}

int Trade::order()
{
    OrderService &orders = m_till.services.orders;
    if (m_tables == 0 || pick(1, 3) == 1) {
        return orders.createOrder(QStringLiteral("takeaway"), lines());
    }
    return orders.createOrder(QStringLiteral("dine_in"), lines(),
                              {{QStringLiteral("tableId"), pick(1, m_tables)}});
}

void Trade::pay(int sessionId)
{
    CheckoutService &checkout = m_till.services.checkout;
    const QByteArray id = QByteArray::number(sessionId);
    const bool hasMember = pick(1, 2) == 1;
    const QString phone =
        hasMember ? StoreContent::phone(pick(1, StoreContent::members + 2)) : QString();
    const int points = hasMember ? pick(0, 3) * 10 : 0;
    for (int attempt = 0; attempt < m_attempts; ++attempt) {
        acknowledge("paying " + id);
        const bool paid = checkout.completeCheckout(sessionId, phone, points);
        acknowledge((paid ? "paid " : "refused ") + id);
        if (paid) {
            checkout.printReceipt(sessionId, false);
            return;
        }
    }
}
