// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/KitchenTicketBuilder.h"

#include "core/records/Order.h"
#include "core/records/OrderItem.h"
#include "core/records/OrderSession.h"
#include "core/records/Printer.h"
#include "printing/EscPosBuilder.h"
#include "printing/PrintLayout.h"

#include <QDateTime>

namespace {
void appendHeader(EscPosBuilder &ticket, const Order &order)
{
    ticket.initialize();
    ticket.alignCenter();
    ticket.setBold(true);
    ticket.text(QObject::tr("Order #%1").arg(order.display_number));
    ticket.setBold(false);
    ticket.newline();
    ticket.newline();
}

QString dineInLabel(const OrderSession &session)
{
    // The numeric id and not the table's name: the ticket is built without the table.
    return session.table_id ? QObject::tr("Dine In | Table %1").arg(*session.table_id)
                            : QObject::tr("Dine In");
}

QString otherServiceLabel(const QString &orderType)
{
    if (orderType == QLatin1String("takeaway")) {
        return QObject::tr("Takeaway");
    }
    if (orderType == QLatin1String("delivery")) {
        return QObject::tr("Delivery");
    }
    return orderType;
}

/// A dine-in line keeps its case and has a blank line before it; the others are upper-cased.
void appendService(EscPosBuilder &ticket, const OrderSession &session)
{
    if (session.order_type == QLatin1String("dine_in")) {
        ticket.newline();
        ticket.text(dineInLabel(session));
    } else {
        ticket.text(otherServiceLabel(session.order_type).toUpper());
    }
    ticket.newline();
}

void appendItem(EscPosBuilder &ticket, const OrderItem &item, int lineWidth)
{
    QString left = QLatin1Char(' ') + item.item_name;
    if (!item.portion_size.isEmpty()) {
        left += QStringLiteral(" (") + item.portion_size + QLatin1Char(')');
    }
    const QString right = QString::number(item.quantity) + QLatin1Char('x');

    ticket.alignLeft();
    ticket.text(PrintLayout::twoColumnRow(left, right, lineWidth));
    ticket.newline();
    if (!item.notes.isEmpty()) {
        ticket.text(QStringLiteral("  - ") + item.notes);
        ticket.newline();
    }
    ticket.newline();
}
} // namespace

KitchenTicketBuilder::KitchenTicketBuilder(const RegionalSettingsRepository &regionalSettings)
    : m_regionalSettings(regionalSettings)
{}

QByteArray KitchenTicketBuilder::build(const Order &order, const OrderSession &session,
                                       const QList<OrderItem> &items, const Printer &printer) const
{
    const int lineWidth = PrintLayout::lineWidth(printer.paper_width);
    EscPosBuilder ticket;

    appendHeader(ticket, order);
    appendService(ticket, session);
    appendPrintTime(ticket);
    ticket.text(PrintLayout::dashes(lineWidth));
    ticket.newline();
    for (const OrderItem &item : items) {
        appendItem(ticket, item, lineWidth);
    }
    ticket.text(PrintLayout::dashes(lineWidth));
    ticket.newline();
    ticket.newline();
    ticket.newline();
    ticket.cut(printer.cut_mode);
    ticket.newline();
    ticket.newline();
    return ticket.data();
}

void KitchenTicketBuilder::appendPrintTime(EscPosBuilder &ticket) const
{
    const QDateTime now = QDateTime::currentDateTime();
    const QLocale locale = PrintLayout::localeFor(m_regionalSettings);
    ticket.text(PrintLayout::shortDate(locale, now) + QLatin1Char(' ') +
                PrintLayout::timeOfDay(now));
    ticket.newline();
}
