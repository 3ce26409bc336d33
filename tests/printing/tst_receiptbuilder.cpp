// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/ReceiptBuilder.h"
#include "printing/ReceiptData.h"
#include "support/ChineseLabels.h"
#include "support/PaperStore.h"
#include "support/PrintedPaper.h"
#include "support/ZelvanTest.h"

#include <memory>

using PrintedPaper::bytes;

namespace {
const QString dateInUs = QStringLiteral("M/d/yy");

/// A receipt that states everything a receipt can state.
ReceiptData fullReceipt()
{
    ReceiptData receipt;
    receipt.cashier = QStringLiteral("alice");
    receipt.storeName = QStringLiteral("Noodle House");
    receipt.storeAddress = QStringLiteral("1 Main St");
    receipt.storePhone = QStringLiteral("555-0100");
    receipt.storeEmail = QStringLiteral("hello@example.com");
    receipt.storeWebsite = QStringLiteral("example.com");
    receipt.receiptNumber = QStringLiteral("2026-000017");
    receipt.orderNumber = QStringLiteral("5");
    receipt.orderType = QStringLiteral("Dine In");
    receipt.tableName = QStringLiteral("Window 2");
    receipt.items = {{QStringLiteral("Noodle Soup"), 3, QStringLiteral("Large"), 1.5},
                     {QStringLiteral("Tea"), 1, QString(), 1200.0}};
    receipt.taxName = QStringLiteral("VAT");
    receipt.taxRate = 6.0;
    receipt.taxRegistrationNumber = QStringLiteral("GB 123");
    receipt.subtotal = 1204.5;
    receipt.tax = 72.27;
    receipt.discount = 10.0;
    receipt.total = 1266.77;
    receipt.memberPhone = QStringLiteral("0171 5550100");
    receipt.balanceBefore = 100;
    receipt.balanceAfter = 1;
    receipt.pointsRedeemed = 111;
    receipt.pointsEarned = 12;
    return receipt;
}
} // namespace

/// Whole receipts. What makes each of their lines is tst_ReceiptLines's.
class tst_ReceiptBuilder : public ZelvanTest
{
    Q_OBJECT

private slots:
    void initTestCase() { m_store = std::make_unique<PaperStore>(); }
    void init();
    void cleanupTestCase() { m_store.reset(); }

    void aFullReceiptIsLaidOutToTheByte();
    void aReprintAddsTheSaleAndSaysReprint();
    void anEmptyReceiptKeepsItsFrame();
    void theReceiptIsCutByTheMode_data();
    void theReceiptIsCutByTheMode();
    void aGermanStoreWritesAmountsItsWayButNotTheRate();
    void aChineseReceiptIsLaidOutToTheByte();

private:
    [[nodiscard]] QByteArray print(const ReceiptData &receipt,
                                   const Printer &on = PaperStore::printer()) const;

    std::unique_ptr<PaperStore> m_store;
};

void tst_ReceiptBuilder::init()
{
    ZelvanTest::init();
    m_store->useLocale(QStringLiteral("en_US"));
}

QByteArray tst_ReceiptBuilder::print(const ReceiptData &receipt, const Printer &on) const
{
    return ReceiptBuilder(m_store->settings).build(receipt, on);
}

void tst_ReceiptBuilder::aFullReceiptIsLaidOutToTheByte()
{
    const QByteArray expected = bytes("\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                                      "Noodle House\n"
                                      "\x1b\x45\x00"
                                      " 1 Main St\n"
                                      "Tel: 555-0100\n"
                                      "hello@example.com\n"
                                      "example.com\n"
                                      "VAT Reg. No.: GB 123\n\n"
                                      "--------------------------------\n"
                                      "\x1b\x61\x00"
                                      "Receipt #: 2026-000017\n"
                                      "Cashier: alice\n"
                                      "Order #: 5\n"
                                      "Order Type: Dine In\n"
                                      "Table: Window 2\n"
                                      "Date: {date} {time}\n"
                                      "--------------------------------\n"
                                      "\x1b\x45\x01"
                                      "3 x Noodle Soup (Large)     4.50\n"
                                      "\x1b\x45\x00"
                                      "   @ 1.50\n"
                                      "\x1b\x45\x01"
                                      "1 x Tea                 1,200.00\n"
                                      "\x1b\x45\x00"
                                      "   @ 1,200.00\n"
                                      "--------------------------------\n"
                                      "\x1b\x61\x02"
                                      "Subtotal: 1,204.50\n"
                                      "Tax (VAT 6.00%): 72.27\n"
                                      "Discount: -10.00\n"
                                      "\x1b\x45\x01"
                                      "Total: 1,266.77"
                                      "\x1b\x45\x00\n\n"
                                      "--------------------------------\n"
                                      "Balance Before: 100\n"
                                      "Points Redeemed: -111\n"
                                      "Points Earned: +12\n"
                                      "Balance After: 1\n"
                                      "--------------------------------\n"
                                      "\n\x1b\x61\x01"
                                      "Thank you!\n\n\n"
                                      "\x1b\x64\x03\x1d\x56\x00\n\n");

    const auto papers = PrintedPaper::inOneSecond(expected, dateInUs, [&] {
        return print(fullReceipt(), PaperStore::printer(58, QStringLiteral("full")));
    });

    QCOMPARE(papers.printed, papers.expected);
}

void tst_ReceiptBuilder::aReprintAddsTheSaleAndSaysReprint()
{
    ReceiptData receipt = fullReceipt();
    const QByteArray first = print(receipt);
    receipt.isReprint = true;
    receipt.saleTime = QStringLiteral("3/9/26 07:05:03");

    const auto papers = PrintedPaper::inOneSecond("Table: Window 2\n"
                                                  "Sale: 3/9/26 07:05:03\n"
                                                  "Reprint: {date} {time}\n"
                                                  "--------------------------------\n",
                                                  dateInUs, [&] { return print(receipt); });

    QVERIFY2(papers.printed.contains(papers.expected), papers.printed.constData());
    QVERIFY(!papers.printed.contains("Date: "));
    // Nothing else differs on paper.
    const auto before = [](const QByteArray &paper) {
        return paper.left(paper.indexOf("Table: "));
    };
    const auto after = [](const QByteArray &paper) { return paper.mid(paper.indexOf("3 x ")); };
    QCOMPARE(before(papers.printed), before(first));
    QCOMPARE(after(papers.printed), after(first));
}

void tst_ReceiptBuilder::anEmptyReceiptKeepsItsFrame()
{
    const QByteArray expected = bytes("\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                                      "\n"
                                      "\x1b\x45\x00"
                                      "\n"
                                      "------------------------------------------------\n"
                                      "\x1b\x61\x00"
                                      "Date: {date} {time}\n"
                                      "------------------------------------------------\n"
                                      "------------------------------------------------\n"
                                      "\x1b\x61\x02"
                                      "Subtotal: 0.00\n"
                                      "Discount: 0\n"
                                      "\x1b\x45\x01"
                                      "Total: 0.00"
                                      "\x1b\x45\x00\n\n"
                                      "------------------------------------------------\n"
                                      "\n\x1b\x61\x01"
                                      "Thank you!\n\n\n"
                                      "\n\n");

    const auto papers = PrintedPaper::inOneSecond(
        expected, dateInUs, [&] { return print({}, PaperStore::printer(80)); });

    QCOMPARE(papers.printed, papers.expected);
}

void tst_ReceiptBuilder::theReceiptIsCutByTheMode_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QByteArray>("end");

    QTest::newRow("full") << "full" << bytes("Thank you!\n\n\n\x1b\x64\x03\x1d\x56\x00\n\n");
    QTest::newRow("partial") << "partial" << bytes("Thank you!\n\n\n\x1b\x64\x03\x1d\x56\x01\n\n");
    QTest::newRow("none") << "none" << bytes("Thank you!\n\n\n\n\n");
}

void tst_ReceiptBuilder::theReceiptIsCutByTheMode()
{
    QFETCH(QString, mode);
    QFETCH(QByteArray, end);

    QVERIFY(print({}, PaperStore::printer(80, mode)).endsWith(end));
}

void tst_ReceiptBuilder::aGermanStoreWritesAmountsItsWayButNotTheRate()
{
    m_store->useLocale(QStringLiteral("de_DE"));

    const auto papers = PrintedPaper::inOneSecond(
        "Date: {date} {time}\n", QStringLiteral("dd.MM.yy"), [&] { return print(fullReceipt()); });

    const QByteArray &paper = papers.printed;
    QVERIFY2(paper.contains(papers.expected), paper.constData());
    QVERIFY(paper.contains("   @ 1,50\n"));
    QVERIFY(paper.contains("1 x Tea                 1.200,00\n"));
    QVERIFY(paper.contains("Subtotal: 1.204,50\nTax (VAT 6.00%): 72,27\nDiscount: -10,00\n"));
    QVERIFY(paper.contains("Total: 1.266,77"));
}

void tst_ReceiptBuilder::aChineseReceiptIsLaidOutToTheByte()
{
    const ChineseLabels labels;
    m_store->useLocale(QStringLiteral("zh_CN"));
    ReceiptData receipt = fullReceipt();
    receipt.isReprint = true;
    receipt.saleTime = QStringLiteral("2026/3/9 07:05:03");
    const QByteArray expected = bytes("\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                                      "Noodle House\n"
                                      "\x1b\x45\x00"
                                      " 1 Main St\n"
                                      "Tel: 555-0100\n"
                                      "hello@example.com\n"
                                      "example.com\n"
                                      "VAT注册号：GB 123\n\n"
                                      "------------------------------------------------\n"
                                      "\x1b\x61\x00"
                                      "收据号：2026-000017\n"
                                      "收银员：alice\n"
                                      "订单号：5\n"
                                      "用餐方式：Dine In\n"
                                      "桌号：Window 2\n"
                                      "交易时间：2026/3/9 07:05:03\n"
                                      "补印时间：{date} {time}\n"
                                      "------------------------------------------------\n"
                                      "\x1b\x45\x01"
                                      "3 x Noodle Soup (Large)                     4.50\n"
                                      "\x1b\x45\x00"
                                      "   @ 1.50\n"
                                      "\x1b\x45\x01"
                                      "1 x Tea                                 1,200.00\n"
                                      "\x1b\x45\x00"
                                      "   @ 1,200.00\n"
                                      "------------------------------------------------\n"
                                      "\x1b\x61\x02"
                                      "小计: 1,204.50\n"
                                      "税（VAT 6.00%）：72.27\n"
                                      "折扣: -10.00\n"
                                      "\x1b\x45\x01"
                                      "总计: 1,266.77"
                                      "\x1b\x45\x00\n\n"
                                      "------------------------------------------------\n"
                                      "Balance Before: 100\n"
                                      "已兑换积分: -111\n"
                                      "获得的积分: +12\n"
                                      "Balance After: 1\n"
                                      "------------------------------------------------\n"
                                      "\n\x1b\x61\x01"
                                      "谢谢！\n\n\n"
                                      "\x1b\x64\x03\x1d\x56\x01\n\n");

    const auto papers = PrintedPaper::inOneSecond(expected, QStringLiteral("yyyy/M/d"), [&] {
        return print(receipt, PaperStore::printer(80, QStringLiteral("partial")));
    });

    QCOMPARE(papers.printed, papers.expected);
}

ZELVAN_TEST(tst_ReceiptBuilder)
#include "tst_receiptbuilder.moc"
