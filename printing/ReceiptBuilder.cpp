// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/ReceiptBuilder.h"

#include "core/records/Printer.h"
#include "printing/EscPosBuilder.h"
#include "printing/PrintLayout.h"
#include "printing/ReceiptData.h"

#include <QDateTime>

namespace {

/// One receipt in the making. Its steps are the blocks of the paper, from top to bottom. Where a
/// text has several placeholders they are filled at once, so that a tax named "%2" prints as it is.
class ReceiptWriter final
{
public:
    ReceiptWriter(const ReceiptData &receipt, const QLocale &locale, int lineWidth)
        : m_receipt(receipt)
        , m_locale(locale)
        , m_lineWidth(lineWidth)
    {}

    void header();
    void order();
    void items();
    void totals();
    void points();
    void foot(const QString &cutMode);

    [[nodiscard]] QByteArray data() const { return m_paper.data(); }

private:
    void line(const QString &text);
    void lineUnlessEmpty(const QString &text);
    void labelled(const QString &label, const QString &value);
    void ruler();
    void item(const ReceiptItem &item);
    void tax();
    [[nodiscard]] QString registration() const;
    [[nodiscard]] QString printTime() const;
    [[nodiscard]] QString taxLabel() const;
    [[nodiscard]] QString money(double units) const;

    EscPosBuilder m_paper;
    const ReceiptData &m_receipt;
    const QLocale &m_locale;
    int m_lineWidth;
};

void ReceiptWriter::header()
{
    m_paper.initialize();
    m_paper.alignCenter();
    m_paper.setBold(true);
    line(m_receipt.storeName);
    m_paper.setBold(false);
    if (!m_receipt.storeAddress.isEmpty()) {
        // The leading blank is meant, and stays.
        line(QLatin1Char(' ') + m_receipt.storeAddress);
    }
    labelled(QStringLiteral("Tel: %1"), m_receipt.storePhone);
    lineUnlessEmpty(m_receipt.storeEmail);
    lineUnlessEmpty(m_receipt.storeWebsite);
    lineUnlessEmpty(registration());
    m_paper.newline();
    ruler();
    m_paper.alignLeft();
}

void ReceiptWriter::order()
{
    labelled(QObject::tr("Receipt #: %1"), m_receipt.receiptNumber);
    labelled(QObject::tr("Cashier: %1"), m_receipt.cashier);
    labelled(QObject::tr("Order #: %1"), m_receipt.orderNumber);
    labelled(QObject::tr("Order Type: %1"), m_receipt.orderType);
    if (m_receipt.tableName) {
        line(QObject::tr("Table: %1").arg(*m_receipt.tableName));
    }
    if (m_receipt.isReprint && m_receipt.saleTime) {
        line(QObject::tr("Sale: %1").arg(*m_receipt.saleTime));
    }
    line(printTime());
    ruler();
}

void ReceiptWriter::items()
{
    for (const ReceiptItem &each : m_receipt.items) {
        item(each);
    }
}

void ReceiptWriter::totals()
{
    ruler();
    m_paper.alignRight();
    line(QObject::tr("Subtotal: %1").arg(money(m_receipt.subtotal)));
    tax();
    // Without a discount the line still stands, with a plain 0 that no locale touches.
    line(m_receipt.discount > 0 ? QObject::tr("Discount: -%1").arg(money(m_receipt.discount))
                                : QObject::tr("Discount: %1").arg(0));
    m_paper.setBold(true);
    m_paper.text(QObject::tr("Total: %1").arg(money(m_receipt.total)));
    m_paper.setBold(false);
    m_paper.newline();
    m_paper.newline();
    ruler();
}

void ReceiptWriter::points()
{
    if (m_receipt.memberPhone.isEmpty()) {
        return;
    }
    line(QObject::tr("Balance Before: %1").arg(m_receipt.balanceBefore));
    if (m_receipt.pointsRedeemed > 0) {
        line(QObject::tr("Points Redeemed: -%1").arg(m_receipt.pointsRedeemed));
    }
    if (m_receipt.pointsEarned > 0) {
        line(QObject::tr("Points Earned: +%1").arg(m_receipt.pointsEarned));
    }
    line(QObject::tr("Balance After: %1").arg(m_receipt.balanceAfter));
    ruler();
}

void ReceiptWriter::foot(const QString &cutMode)
{
    m_paper.newline();
    m_paper.alignCenter();
    m_paper.text(QObject::tr("Thank you!"));
    m_paper.newline();
    m_paper.newline();
    m_paper.newline();
    m_paper.cut(cutMode);
    m_paper.newline();
    m_paper.newline();
}

void ReceiptWriter::line(const QString &text)
{
    m_paper.text(text);
    m_paper.newline();
}

void ReceiptWriter::lineUnlessEmpty(const QString &text)
{
    if (!text.isEmpty()) {
        line(text);
    }
}

void ReceiptWriter::labelled(const QString &label, const QString &value)
{
    if (!value.isEmpty()) {
        line(label.arg(value));
    }
}

void ReceiptWriter::ruler()
{
    line(PrintLayout::dashes(m_lineWidth));
}

void ReceiptWriter::item(const ReceiptItem &item)
{
    QString name = item.name;
    if (!item.portion.isEmpty()) {
        name += QStringLiteral(" (") + item.portion + QLatin1Char(')');
    }
    const QString left = QStringLiteral("%1 x %2").arg(QString::number(item.quantity), name);
    m_paper.setBold(true);
    line(PrintLayout::twoColumnRow(left, money(item.quantity * item.unitPrice), m_lineWidth));
    m_paper.setBold(false);
    line(QStringLiteral("   @ %1").arg(money(item.unitPrice)));
}

void ReceiptWriter::tax()
{
    const bool named = m_receipt.taxName && !m_receipt.taxName->isEmpty();
    if (m_receipt.tax > 0 || named) {
        line(QObject::tr("%1: %2").arg(taxLabel(), money(m_receipt.tax)));
    }
}

QString ReceiptWriter::registration() const
{
    if (!m_receipt.taxRegistrationNumber || m_receipt.taxRegistrationNumber->isEmpty()) {
        return {};
    }
    // This "Tax" stays English in every language, unlike the label among the totals.
    const bool named = m_receipt.taxName && !m_receipt.taxName->isEmpty();
    return QObject::tr("%1 Reg. No.: %2")
        .arg(named ? *m_receipt.taxName : QStringLiteral("Tax"), *m_receipt.taxRegistrationNumber);
}

QString ReceiptWriter::printTime() const
{
    const QDateTime now = QDateTime::currentDateTime();
    const QString label =
        m_receipt.isReprint ? QObject::tr("Reprint: %1 %2") : QObject::tr("Date: %1 %2");
    return label.arg(PrintLayout::shortDate(m_locale, now), PrintLayout::timeOfDay(now));
}

QString ReceiptWriter::taxLabel() const
{
    if (!m_receipt.taxName || m_receipt.taxName->isEmpty()) {
        return QObject::tr("Tax");
    }
    if (!m_receipt.taxRate || !(*m_receipt.taxRate > 0)) {
        return *m_receipt.taxName;
    }
    // The rate is not written by the locale: a German receipt says 6.00% too.
    return QObject::tr("Tax (%1 %2%)")
        .arg(*m_receipt.taxName, QString::number(*m_receipt.taxRate, 'f', 2));
}

QString ReceiptWriter::money(double units) const
{
    return PrintLayout::money(m_locale, units);
}

} // namespace

ReceiptBuilder::ReceiptBuilder(const RegionalSettingsRepository &regionalSettings)
    : m_regionalSettings(regionalSettings)
{}

QByteArray ReceiptBuilder::build(const ReceiptData &receipt, const Printer &printer) const
{
    const QLocale locale = PrintLayout::localeFor(m_regionalSettings);
    ReceiptWriter writer(receipt, locale, PrintLayout::lineWidth(printer.paper_width));
    writer.header();
    writer.order();
    writer.items();
    writer.totals();
    writer.points();
    writer.foot(printer.cut_mode);
    return writer.data();
}
