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

/// When each line of a receipt is printed, and with which words and amounts.
class tst_ReceiptLines : public ZelvanTest
{
    Q_OBJECT

private slots:
    void initTestCase() { m_store = std::make_unique<PaperStore>(); }
    void init();
    void cleanupTestCase() { m_store.reset(); }

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

private:
    [[nodiscard]] QByteArray print(const ReceiptData &receipt) const;

    std::unique_ptr<PaperStore> m_store;
};

void tst_ReceiptLines::init()
{
    ZelvanTest::init();
    m_store->useLocale(QStringLiteral("en_US"));
}

QByteArray tst_ReceiptLines::print(const ReceiptData &receipt) const
{
    return ReceiptBuilder(m_store->settings).build(receipt, PaperStore::printer());
}

void tst_ReceiptLines::aLineIsPrintedOnlyWhenStated_data()
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

void tst_ReceiptLines::aLineIsPrintedOnlyWhenStated()
{
    QFETCH(ReceiptData, receipt);
    QFETCH(QByteArray, line);

    const QByteArray stated = print(receipt);
    const QByteArray plain = print({});

    QVERIFY2(stated.contains(line.startsWith('\n') ? line.mid(1) : line), stated.constData());
    QVERIFY(!plain.contains(line));
    QCOMPARE(stated.count('\n'), plain.count('\n') + 1);
}

void tst_ReceiptLines::theSaleIsPrintedOnlyInAReprintThatHasIt()
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

void tst_ReceiptLines::theTaxLineFollowsNameRateAndAmount_data()
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

void tst_ReceiptLines::theTaxLineFollowsNameRateAndAmount()
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

void tst_ReceiptLines::theRegistrationLineFallsBackToEnglishTax_data()
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

void tst_ReceiptLines::theRegistrationLineFallsBackToEnglishTax()
{
    QFETCH(std::optional<QString>, name);
    QFETCH(std::optional<QString>, number);
    QFETCH(QByteArray, line);
    const ChineseLabels labels;
    ReceiptData receipt;
    receipt.taxName = name;
    receipt.taxRegistrationNumber = number;

    const QByteArray paper = print(receipt);

    QVERIFY2(paper.contains(bytes("\x1b\x45\x00") + PrintedPaper::local(line) + "\n----"),
             paper.constData());
}

void tst_ReceiptLines::theDiscountIsAPlainZeroWithoutOne_data()
{
    QTest::addColumn<double>("discount");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("none") << 0.0 << QByteArray("\nDiscount: 0\n");
    QTest::newRow("some") << 0.5 << QByteArray("\nDiscount: -0.50\n");
    QTest::newRow("thousands") << 1000.0 << QByteArray("\nDiscount: -1,000.00\n");
    QTest::newRow("negative") << -2.0 << QByteArray("\nDiscount: 0\n");
}

void tst_ReceiptLines::theDiscountIsAPlainZeroWithoutOne()
{
    QFETCH(double, discount);
    QFETCH(QByteArray, line);
    ReceiptData receipt;
    receipt.discount = discount;

    QVERIFY(print(receipt).contains(line));
}

void tst_ReceiptLines::pointsArePrintedForAMemberOnly_data()
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

void tst_ReceiptLines::pointsArePrintedForAMemberOnly()
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

void tst_ReceiptLines::anItemPrintsItsAmountAndItsUnitPrice_data()
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

void tst_ReceiptLines::anItemPrintsItsAmountAndItsUnitPrice()
{
    QFETCH(ReceiptItem, item);
    QFETCH(QByteArray, rows);
    ReceiptData receipt;
    receipt.items = {item};

    const QByteArray paper = print(receipt);

    QVERIFY2(paper.contains("----\n" + rows + "----"), paper.constData());
}

ZELVAN_TEST(tst_ReceiptLines)
#include "tst_receiptlines.moc"
