// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/ChildProcess.h"
#include "support/DatabaseDump.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <memory>

namespace {
const QString phone = QStringLiteral("0123456789");
} // namespace

/// What goes onto a receipt, and to which printers. The layout of the paper is proved elsewhere.
class tst_PrintReceipt : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void likeLinesOfSeveralOrdersMerge();
    void notesAndStatusesDoNotSeparateLines();
    void priceAndPortionSeparateLines();
    void linesStandInTheOrderOfTheirCodeUnits();
    void onlyAReprintNamesTheSale();
    void theSaleIsInLocalTime_data();
    void theSaleIsInLocalTime();
    void anUnreadableTimeLeavesNoSaleLine_data();
    void anUnreadableTimeLeavesNoSaleLine();
    void aReprintRepeatsWhatWasTrueAtPayment();
    void aReprintShowsTheTablesPresentName();
    void aReprintChangesNothing();
    void typesAreLabelled_data();
    void typesAreLabelled();
    void taxSwitchedOnLaterStaysOffTheReprint();
    void theMembersPointsArePrintedEvenAfterMembershipEnded();
    void aMemberWithoutMovementHasNoPointsBlock();
    void anUnpaidSessionWithASnapshotPrints();
    void anUnknownSessionIsNotPrinted();
    void withoutAReceiptPrinterTheAnswerIsFalse();
    void everyReceiptPrinterPrintsInOrder();
    void aFailedPrinterDoesNotStopTheOthers();

private:
    /// The paper of the first printer, line by line, without the command bytes at its ends.
    QStringList print(bool isReprint);
    QStringList itemLines();
    QString lineWith(const QString &start, bool isReprint);
    void pay(const QString &memberPhone = {}, int points = 0);

    std::unique_ptr<TestStore> m_store;
    int m_table = 0;
    int m_soup = 0;
    int m_session = 0;
};

void tst_PrintReceipt::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_store->addPrinter("Till", "receipt");
    m_table = m_store->addTable("T1");
    m_soup = m_store->addDish({"Soup", 1050});
    m_session = m_store->sessionOf(m_store->orderAtTable(m_table, {TestStore::line(m_soup)}));
}

void tst_PrintReceipt::pay(const QString &memberPhone, int points)
{
    QVERIFY(m_store->services.checkout.completeCheckout(m_session, memberPhone, points));
}

QStringList tst_PrintReceipt::print(bool isReprint)
{
    if (!m_store->services.checkout.printReceipt(m_session, isReprint)) {
        return {};
    }
    QString paper = QString::fromLocal8Bit(m_store->spooler.documentsFor("Till").last());
    // Escape sequences take two more bytes at most.
    paper.remove(QRegularExpression("\\x1b(@|[aE].)|\\x1dV.",
                                    QRegularExpression::DotMatchesEverythingOption));
    return paper.split(QLatin1Char('\n'));
}

/// The first lines of the items, "quantity x name", without their amounts.
QStringList tst_PrintReceipt::itemLines()
{
    QStringList lines;
    for (const QString &line : print(false)) {
        const auto match = QRegularExpression("^(-?\\d+ x .*?) +[\\d.,-]+$").match(line);
        if (match.hasMatch()) {
            lines.append(match.captured(1));
        }
    }
    return lines;
}

QString tst_PrintReceipt::lineWith(const QString &start, bool isReprint)
{
    const QStringList lines = print(isReprint);
    for (const QString &line : lines) {
        if (line.startsWith(start)) {
            return line;
        }
    }
    return lines.isEmpty() ? QStringLiteral("not printed") : QString();
}

void tst_PrintReceipt::likeLinesOfSeveralOrdersMerge()
{
    m_store->orderAtTable(m_table, {TestStore::line(m_soup, 3), TestStore::line(m_soup)});
    pay();

    const QStringList paper = print(false);

    QCOMPARE(itemLines(), QStringList{"5 x Soup"});
    QCOMPARE(paper.filter("5 x Soup").value(0), QStringLiteral("5 x Soup                   52.50"));
    QCOMPARE(paper.filter("   @ "), QStringList{"   @ 10.50"});
}

void tst_PrintReceipt::notesAndStatusesDoNotSeparateLines()
{
    m_store->orderAtTable(m_table, {TestStore::line(m_soup, 1, "hot")});
    pay();
    m_store->database.run("UPDATE order_items SET item_status = 'pending' WHERE id = 1");

    QCOMPARE(itemLines(), QStringList{"2 x Soup"});
}

void tst_PrintReceipt::priceAndPortionSeparateLines()
{
    m_store->orderAtTable(m_table, {TestStore::line(m_soup, 2), TestStore::line(m_soup, 3),
                                    TestStore::line(m_soup, 4)});
    m_store->database.run("UPDATE order_items SET price = 999 WHERE quantity = 2");
    m_store->database.run("UPDATE order_items SET portion_size = 'Cup' WHERE quantity = 3");
    // Prices are compared in whole cents.
    m_store->database.run("UPDATE order_items SET price = 1050.9 WHERE quantity = 4");
    pay();

    QCOMPARE(itemLines(), QStringList({"2 x Soup", "5 x Soup", "3 x Soup (Cup)"}));
}

void tst_PrintReceipt::linesStandInTheOrderOfTheirCodeUnits()
{
    m_store->database.run("DELETE FROM order_items");
    // A clef is two units from D834 on: before the wide A at FF21, though its character is higher.
    QStringList sorted{"10 tea", "9 tea", "Bread", "Zest", "apple", "éclair", "餐", "𝄞", "Ａ"};
    QVariantList lines;
    for (auto name = sorted.crbegin(); name != sorted.crend(); ++name) {
        lines.append(TestStore::line(m_store->addDish({*name, 100})));
    }
    m_store->orderAtTable(m_table, lines);
    pay();

    QStringList names;
    for (const QString &line : itemLines()) {
        names.append(line.mid(4));
    }
    // As far as the computer's own encoding has them.
    for (QString &name : sorted) {
        name = QString::fromLocal8Bit(name.toLocal8Bit());
    }
    QCOMPARE(names, sorted);
}

void tst_PrintReceipt::onlyAReprintNamesTheSale()
{
    pay();

    QCOMPARE(lineWith("Sale: ", false), QString());
    QVERIFY(lineWith("Date: ", false).size() > 6);
    QCOMPARE(lineWith("Reprint: ", false), QString());
    QVERIFY(lineWith("Sale: ", true).size() > 6);
    QVERIFY(lineWith("Reprint: ", true).size() > 9);
    QCOMPARE(lineWith("Date: ", true), QString());
}

void tst_PrintReceipt::theSaleIsInLocalTime_data()
{
    QTest::addColumn<QString>("paidAtUtc");
    QTest::addColumn<QString>("sale");

    QTest::newRow("winter") << "2026-01-31 23:30:00"
                            << "Sale: 2/1/26 00:30:00";
    QTest::newRow("summer") << "2026-07-31 22:30:05"
                            << "Sale: 8/1/26 00:30:05";
    // There was no half past two on the local clock that night; UTC knows no such gap.
    QTest::newRow("the hour that the local clock left out") << "2026-03-29 02:30:00"
                                                            << "Sale: 3/29/26 04:30:00";
}

void tst_PrintReceipt::theSaleIsInLocalTime()
{
    if (movedTo("2026-11-20 12:00:00", "Europe/Berlin")) {
        return;
    }
    QFETCH(QString, paidAtUtc);
    QFETCH(QString, sale);
    pay();
    m_store->database.run(
        QStringLiteral("UPDATE receipt_snapshot SET created_at = '%1'").arg(paidAtUtc));

    QCOMPARE(lineWith("Sale: ", true), sale);
}

void tst_PrintReceipt::anUnreadableTimeLeavesNoSaleLine_data()
{
    QTest::addColumn<QString>("stored");

    QTest::newRow("no time") << QStringLiteral("NULL");
    QTest::newRow("ISO") << QStringLiteral("'2026-11-20T12:00:00'");
    QTest::newRow("a date") << QStringLiteral("'2026-11-20'");
    QTest::newRow("no date of any month") << QStringLiteral("'2026-02-30 12:00:00'");
    QTest::newRow("a third part") << QStringLiteral("'2026-11-20 12:00:00 x'");
    QTest::newRow("something behind it") << QStringLiteral("'2026-11-20 12:00:00Z'");
}

void tst_PrintReceipt::anUnreadableTimeLeavesNoSaleLine()
{
    QFETCH(QString, stored);
    pay();
    m_store->database.run(
        QStringLiteral("UPDATE receipt_snapshot SET created_at = %1").arg(stored));

    QCOMPARE(lineWith("Sale: ", true), QString());
}

void tst_PrintReceipt::aReprintRepeatsWhatWasTrueAtPayment()
{
    m_store->setTax(825, "VAT");
    pay();
    m_store->database.run("UPDATE restaurant SET name = 'Renamed', address = 'Elsewhere'");
    m_store->database.run("UPDATE tax_settings SET name = 'GST', rate = 100");

    const QStringList paper = print(true);

    QVERIFY(paper.contains("Lotus"));
    QVERIFY(paper.contains(" 1 Main St"));
    QVERIFY(paper.contains("VAT Reg. No.: REG-7"));
    QVERIFY(paper.contains("Tax (VAT 8.25%): 0.86"));
    QVERIFY(paper.contains("Total: 11.36"));
    const QString number = m_store->text("SELECT receipt_number FROM order_sessions");
    QVERIFY(paper.contains("Receipt #: " + number));
    QVERIFY(
        paper.contains("Order #: " + m_store->text("SELECT display_number FROM order_sessions")));
}

void tst_PrintReceipt::aReprintShowsTheTablesPresentName()
{
    pay();
    m_store->database.run("UPDATE tables SET table_name = 'Terrace 4'");
    QCOMPARE(lineWith("Table: ", true), QStringLiteral("Table: Terrace 4"));

    m_store->database.run("UPDATE tables SET table_name = ''");
    QCOMPARE(lineWith("Table: ", true), QStringLiteral("Table: "));

    m_store->services.tables.removeTable(m_table);
    QCOMPARE(lineWith("Table: ", true), QString());
}

void tst_PrintReceipt::aReprintChangesNothing()
{
    pay();
    const QStringList before = dumpOf(m_store->database);

    QVERIFY(!print(true).isEmpty());
    QVERIFY(!print(false).isEmpty());

    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_PrintReceipt::typesAreLabelled_data()
{
    QTest::addColumn<QString>("orderType");
    QTest::addColumn<QString>("label");

    QTest::newRow("dine in") << "dine_in"
                             << "Order Type: Dine In";
    // The label's key is another word than the one that sessions carry.
    QTest::newRow("takeaway stays raw") << "takeaway"
                                        << "Order Type: takeaway";
    QTest::newRow("takeout") << "takeout"
                             << "Order Type: Takeout";
    QTest::newRow("delivery") << "delivery"
                              << "Order Type: Delivery";
    QTest::newRow("an unknown word") << "catering"
                                     << "Order Type: catering";
}

void tst_PrintReceipt::typesAreLabelled()
{
    QFETCH(QString, orderType);
    QFETCH(QString, label);
    pay();
    m_store->database.run(
        QStringLiteral("UPDATE order_sessions SET order_type = '%1'").arg(orderType));

    QCOMPARE(lineWith("Order Type: ", false), label);
}

void tst_PrintReceipt::taxSwitchedOnLaterStaysOffTheReprint()
{
    pay();
    m_store->setTax(825, "VAT");

    const QStringList paper = print(true);

    QVERIFY(!paper.isEmpty());
    QVERIFY(paper.filter("VAT").isEmpty());
    QVERIFY(paper.filter("Tax").isEmpty());
    QVERIFY(paper.filter("Reg. No.").isEmpty());
}

void tst_PrintReceipt::theMembersPointsArePrintedEvenAfterMembershipEnded()
{
    m_store->setMembershipEnabled(true);
    m_store->addMember(phone, 200);
    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    pay(phone, 100);
    m_store->setMembershipEnabled(false);
    m_store->database.run("UPDATE memberships SET total_points = 7, phone_number = '1'");

    const QStringList paper = print(true);

    QVERIFY(paper.contains("Balance Before: 200"));
    QVERIFY(paper.contains("Points Redeemed: -100"));
    QVERIFY(paper.contains("Points Earned: +2"));
    QVERIFY(paper.contains("Balance After: 102"));
    QVERIFY(paper.contains("Discount: -1.00"));
    QVERIFY(paper.filter(phone).isEmpty());
}

void tst_PrintReceipt::aMemberWithoutMovementHasNoPointsBlock()
{
    m_store->setMembershipEnabled(true);
    m_store->database.run("UPDATE membership_settings SET earn_points = 0");
    pay(phone);

    const QStringList paper = print(false);

    QVERIFY(!paper.isEmpty());
    QVERIFY(paper.filter("Balance").isEmpty());
    QVERIFY(paper.contains("Discount: 0"));
}

void tst_PrintReceipt::anUnpaidSessionWithASnapshotPrints()
{
    pay();
    m_store->database.run("UPDATE order_sessions SET status = 'open', receipt_number = NULL");

    const QStringList paper = print(false);

    QVERIFY(!paper.isEmpty());
    QVERIFY(paper.filter("Receipt #").isEmpty());
}

void tst_PrintReceipt::anUnknownSessionIsNotPrinted()
{
    QVERIFY(!m_store->services.checkout.printReceipt(99, false));
    QCOMPARE(m_store->spooler.calls(), QStringList());
}

void tst_PrintReceipt::withoutAReceiptPrinterTheAnswerIsFalse()
{
    pay();
    m_store->database.run("UPDATE printers SET role = 'kitchen'");

    QVERIFY(!m_store->services.checkout.printReceipt(m_session, false));

    QCOMPARE(m_store->spooler.calls(), QStringList());
}

void tst_PrintReceipt::everyReceiptPrinterPrintsInOrder()
{
    pay();
    m_store->addPrinter("Kitchen", "kitchen");
    m_store->addPrinter("Bar", "both");

    QVERIFY(m_store->services.checkout.printReceipt(m_session, false));

    QStringList printers;
    for (const RecordingSpooler::Document &document : m_store->spooler.documents()) {
        printers.append(document.printerName);
    }
    QCOMPARE(printers, QStringList({"Till", "Bar"}));
}

void tst_PrintReceipt::aFailedPrinterDoesNotStopTheOthers()
{
    pay();
    m_store->addPrinter("Bar", "both");
    m_store->spooler.losePrinter("Till");
    expectLog(QtWarningMsg, "Failed to open printer: \"Till\"");

    QVERIFY(!m_store->services.checkout.printReceipt(m_session, false));

    QCOMPARE(m_store->spooler.documentsFor("Bar").size(), 1);
}

ZELVAN_TEST(tst_PrintReceipt)
#include "tst_printreceipt.moc"
