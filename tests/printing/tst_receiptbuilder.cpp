// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/records/Printer.h"
#include "printing/ReceiptBuilder.h"
#include "printing/ReceiptData.h"
#include "repositories/RegionalSettingsRepository.h"
#include "support/ChineseLabels.h"
#include "support/PrintedPaper.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <memory>

using PrintedPaper::bytes;

namespace {
const QString dateInUs = QStringLiteral("M/d/yy");

Printer printer(int paperWidth, const QString &cutMode)
{
    Printer made;
    made.paper_width = paperWidth;
    made.cut_mode = cutMode;
    return made;
}

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

class tst_ReceiptBuilder : public ZelvanTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void aFullReceiptIsLaidOutToTheByte();
    void aReprintAddsTheSaleAndSaysReprint();
    void anEmptyReceiptKeepsItsFrame();
    void theReceiptIsCutByTheMode_data();
    void theReceiptIsCutByTheMode();
    void aLineIsPrintedOnlyWhenStated_data();
    void aLineIsPrintedOnlyWhenStated();
    void theSaleIsPrintedOnlyInAReprintThatHasIt();
    void theTaxLineFollowsNameRateAndAmount_data();
    void theTaxLineFollowsNameRateAndAmount();
    void theRegistrationLineFallsBackToEnglishTax_data();
    void theRegistrationLineFallsBackToEnglishTax();
    void theDiscountIsAPlainZeroWithoutOne_data();
    void theDiscountIsAPlainZeroWithoutOne();
    void pointsArePrintedForAMemberOnly_data();
    void pointsArePrintedForAMemberOnly();
    void anItemPrintsItsAmountAndItsUnitPrice_data();
    void anItemPrintsItsAmountAndItsUnitPrice();
    void aGermanStoreWritesAmountsItsWayButNotTheRate();
    void aChineseReceiptIsLaidOutToTheByte();

private:
    [[nodiscard]] QByteArray print(const ReceiptData &receipt, int paperWidth = 58,
                                   const QString &cutMode = QStringLiteral("none")) const;
    void useLocale(const QString &name);

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<RegionalSettingsRepository> m_settings;
};

void tst_ReceiptBuilder::initTestCase()
{
    m_database = std::make_unique<TestDatabase>();
    m_settings = std::make_unique<RegionalSettingsRepository>(m_database->handle());
}

void tst_ReceiptBuilder::init()
{
    ZelvanTest::init();
    useLocale(QStringLiteral("en_US"));
}

void tst_ReceiptBuilder::cleanupTestCase()
{
    m_settings.reset();
    m_database.reset();
}

QByteArray tst_ReceiptBuilder::print(const ReceiptData &receipt, int paperWidth,
                                     const QString &cutMode) const
{
    return ReceiptBuilder(m_settings.get()).build(receipt, printer(paperWidth, cutMode));
}

void tst_ReceiptBuilder::useLocale(const QString &name)
{
    m_settings->save({1, name, QStringLiteral("USD")});
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

    const auto papers = PrintedPaper::inOneSecond(
        expected, dateInUs, [&] { return print(fullReceipt(), 58, QStringLiteral("full")); });

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

    const auto papers =
        PrintedPaper::inOneSecond(expected, dateInUs, [&] { return print({}, 80); });

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

    QVERIFY(print({}, 80, mode).endsWith(end));
}

void tst_ReceiptBuilder::aLineIsPrintedOnlyWhenStated_data()
{
    QTest::addColumn<ReceiptData>("receipt");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *name, auto state, const char *line) {
        ReceiptData receipt;
        state(receipt);
        QTest::newRow(name) << receipt << QByteArray(line);
    };
    row(
        "address", [](ReceiptData &r) { r.storeAddress = "1 %1 St"; }, " 1 %1 St\n");
    row(
        "phone", [](ReceiptData &r) { r.storePhone = "55%2"; }, "Tel: 55%2\n");
    row(
        "email", [](ReceiptData &r) { r.storeEmail = "a@b"; }, "\na@b\n");
    row(
        "website", [](ReceiptData &r) { r.storeWebsite = "a.b"; }, "\na.b\n");
    row(
        "receipt number", [](ReceiptData &r) { r.receiptNumber = "2026-1"; },
        "Receipt #: 2026-1\n");
    row(
        "cashier", [](ReceiptData &r) { r.cashier = "bob"; }, "Cashier: bob\n");
    row(
        "order number", [](ReceiptData &r) { r.orderNumber = "9"; }, "Order #: 9\n");
    row(
        "order type", [](ReceiptData &r) { r.orderType = "takeaway"; }, "Order Type: takeaway\n");
    row(
        "table", [](ReceiptData &r) { r.tableName = "7"; }, "Table: 7\n");
    row(
        "table of an empty name", [](ReceiptData &r) { r.tableName = QString(); }, "Table: \n");
}

void tst_ReceiptBuilder::aLineIsPrintedOnlyWhenStated()
{
    QFETCH(ReceiptData, receipt);
    QFETCH(QByteArray, line);

    const QByteArray stated = print(receipt);
    const QByteArray plain = print({});

    QVERIFY2(stated.contains(line.startsWith('\n') ? line.mid(1) : line), stated.constData());
    QVERIFY(!plain.contains(line));
    QCOMPARE(stated.count('\n'), plain.count('\n') + 1);
}

void tst_ReceiptBuilder::theSaleIsPrintedOnlyInAReprintThatHasIt()
{
    ReceiptData withoutTime;
    withoutTime.isReprint = true;
    ReceiptData firstPrint;
    firstPrint.saleTime = QStringLiteral("3/9/26 07:05:03");

    QVERIFY(!print(withoutTime).contains("Sale: "));
    QVERIFY(print(withoutTime).contains("Reprint: "));
    QVERIFY(!print(firstPrint).contains("Sale: "));
    QVERIFY(print(firstPrint).contains("Date: "));
}

void tst_ReceiptBuilder::theTaxLineFollowsNameRateAndAmount_data()
{
    QTest::addColumn<std::optional<QString>>("name");
    QTest::addColumn<std::optional<double>>("rate");
    QTest::addColumn<double>("tax");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *title, std::optional<QString> name, std::optional<double> rate,
                        double tax, const char *line) {
        QTest::newRow(title) << name << rate << tax << QByteArray(line);
    };
    row("name, rate and amount", "VAT", 8.25, 1.5, "Tax (VAT 8.25%): 1.50\n");
    row("name and rate, no amount", "VAT", 6.0, 0.0, "Tax (VAT 6.00%): 0.00\n");
    row("rate of zero prints the bare name", "VAT", 0.0, 0.0, "VAT: 0.00\n");
    row("no rate prints the bare name", "VAT", std::nullopt, 1.5, "VAT: 1.50\n");
    row("a negative rate prints the bare name", "VAT", -1.0, 1.5, "VAT: 1.50\n");
    row("an empty name prints the word", "", 6.0, 1.5, "Tax: 1.50\n");
    row("no name prints the word", std::nullopt, 6.0, 1.5, "Tax: 1.50\n");
    row("a name with placeholders prints as it is", "%2 %1", 6.0, 1.5, "Tax (%2 %1 6.00%): 1.50\n");
    row("a bare name with placeholders prints as it is", "%2", 0.0, 1.5, "%2: 1.50\n");
    row("tax was off at the payment", "", 0.0, 0.0, "");
    row("nothing known", std::nullopt, std::nullopt, 0.0, "");
}

void tst_ReceiptBuilder::theTaxLineFollowsNameRateAndAmount()
{
    QFETCH(std::optional<QString>, name);
    QFETCH(std::optional<double>, rate);
    QFETCH(double, tax);
    QFETCH(QByteArray, line);
    ReceiptData receipt;
    receipt.taxName = name;
    receipt.taxRate = rate;
    receipt.tax = tax;

    const QByteArray paper = print(receipt);

    QVERIFY2(paper.contains("Subtotal: 0.00\n" + line + "Discount: 0\n"), paper.constData());
}

void tst_ReceiptBuilder::theRegistrationLineFallsBackToEnglishTax_data()
{
    QTest::addColumn<std::optional<QString>>("name");
    QTest::addColumn<std::optional<QString>>("number");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *title, std::optional<QString> name,
                        std::optional<QString> number, const char *line) {
        QTest::newRow(title) << name << number << QByteArray(line);
    };
    row("name and number", "VAT", "12", "VAT注册号：12\n");
    row("no name", std::nullopt, "12", "Tax注册号：12\n");
    row("an empty name", "", "12", "Tax注册号：12\n");
    row("placeholders", "%2", "%1", "%2注册号：%1\n");
    row("an empty number", "VAT", "", "");
    row("no number", "VAT", std::nullopt, "");
}

void tst_ReceiptBuilder::theRegistrationLineFallsBackToEnglishTax()
{
    QFETCH(std::optional<QString>, name);
    QFETCH(std::optional<QString>, number);
    QFETCH(QByteArray, line);
    const ChineseLabels labels;
    ReceiptData receipt;
    receipt.taxName = name;
    receipt.taxRegistrationNumber = number;

    const QByteArray paper = print(receipt);

    QVERIFY2(paper.contains(bytes("\x1b\x45\x00") + line + "\n----"), paper.constData());
}

void tst_ReceiptBuilder::theDiscountIsAPlainZeroWithoutOne_data()
{
    QTest::addColumn<double>("discount");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("none") << 0.0 << QByteArray("\nDiscount: 0\n");
    QTest::newRow("some") << 0.5 << QByteArray("\nDiscount: -0.50\n");
    QTest::newRow("thousands") << 1000.0 << QByteArray("\nDiscount: -1,000.00\n");
    QTest::newRow("negative") << -2.0 << QByteArray("\nDiscount: 0\n");
}

void tst_ReceiptBuilder::theDiscountIsAPlainZeroWithoutOne()
{
    QFETCH(double, discount);
    QFETCH(QByteArray, line);
    ReceiptData receipt;
    receipt.discount = discount;

    QVERIFY(print(receipt).contains(line));
}

void tst_ReceiptBuilder::pointsArePrintedForAMemberOnly_data()
{
    QTest::addColumn<QString>("phone");
    QTest::addColumn<int>("redeemed");
    QTest::addColumn<int>("earned");
    QTest::addColumn<QByteArray>("block");

    const QByteArray ruler = QByteArray(32, '-') + '\n';
    const QByteArray before("Balance Before: 100\n");
    const QByteArray after("Balance After: 90\n");
    QTest::newRow("no member") << "" << 5 << 6 << QByteArray();
    QTest::newRow("nothing moved") << "1" << 0 << 0 << before + after + ruler;
    QTest::newRow("redeemed") << "1" << 5 << 0 << before + "Points Redeemed: -5\n" + after + ruler;
    QTest::newRow("earned") << "1" << 0 << 6 << before + "Points Earned: +6\n" + after + ruler;
    QTest::newRow("negative points") << "1" << -5 << -6 << before + after + ruler;
}

void tst_ReceiptBuilder::pointsArePrintedForAMemberOnly()
{
    QFETCH(QString, phone);
    QFETCH(int, redeemed);
    QFETCH(int, earned);
    QFETCH(QByteArray, block);
    ReceiptData receipt;
    receipt.memberPhone = phone;
    receipt.pointsRedeemed = redeemed;
    receipt.pointsEarned = earned;
    receipt.balanceBefore = 100;
    receipt.balanceAfter = 90;

    const QByteArray paper = print(receipt);

    const QByteArray ruler = QByteArray(32, '-') + '\n';
    QVERIFY2(paper.contains(bytes("\x1b\x45\x00\n\n") + ruler + block + bytes("\n\x1b\x61\x01")),
             paper.constData());
}

void tst_ReceiptBuilder::anItemPrintsItsAmountAndItsUnitPrice_data()
{
    QTest::addColumn<ReceiptItem>("item");
    QTest::addColumn<QByteArray>("rows");

    QTest::newRow("three of 1.50")
        << ReceiptItem{QStringLiteral("Tea"), 3, {}, 1.5}
        << bytes("\x1b\x45\x01"
                 "3 x Tea                     4.50\n\x1b\x45\x00   @ 1.50\n");
    QTest::newRow("one keeps its second line")
        << ReceiptItem{QStringLiteral("Tea"), 1, {}, 1.5}
        << bytes("\x1b\x45\x01"
                 "1 x Tea                     1.50\n\x1b\x45\x00   @ 1.50\n");
    QTest::newRow("Chinese with a portion")
        << ReceiptItem{QStringLiteral("麻婆豆腐"), 2, QStringLiteral("大"), 10.0}
        << bytes("\x1b\x45\x01"
                 "2 x 麻婆豆腐 (大)          20.00\n\x1b\x45\x00   @ 10.00\n");
    QTest::newRow("too long keeps one blank")
        << ReceiptItem{QStringLiteral("Forty letters of soup with noodles, fish"), 1, {}, 1.5}
        << bytes("\x1b\x45\x01"
                 "1 x Forty letters of soup with noodles, fish 1.50\n\x1b\x45\x00   @ 1.50\n");
    QTest::newRow("a name with placeholders")
        << ReceiptItem{QStringLiteral("%1%2"), 1, {}, 0.0}
        << bytes("\x1b\x45\x01"
                 "1 x %1%2                    0.00\n\x1b\x45\x00   @ 0.00\n");
}

void tst_ReceiptBuilder::anItemPrintsItsAmountAndItsUnitPrice()
{
    QFETCH(ReceiptItem, item);
    QFETCH(QByteArray, rows);
    ReceiptData receipt;
    receipt.items = {item};

    const QByteArray paper = print(receipt);

    QVERIFY2(paper.contains("----\n" + rows + "----"), paper.constData());
}

void tst_ReceiptBuilder::aGermanStoreWritesAmountsItsWayButNotTheRate()
{
    useLocale(QStringLiteral("de_DE"));

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
    useLocale(QStringLiteral("zh_CN"));
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
        return print(receipt, 80, QStringLiteral("partial"));
    });

    QCOMPARE(papers.printed, papers.expected);
}

ZELVAN_TEST(tst_ReceiptBuilder)
#include "tst_receiptbuilder.moc"
