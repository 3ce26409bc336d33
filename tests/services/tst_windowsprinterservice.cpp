// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/WindowsPrinterService.h"
#include "support/ChineseLabels.h"
#include "support/LogCapture.h"
#include "support/RecordingSpooler.h"
#include "support/ZelvanTest.h"

namespace {
using Step = RecordingSpooler::Step;

QVariantMap printerConfig(const QString &role, const QString &cutMode, const QVariant &paperWidth)
{
    QVariantMap config{{QStringLiteral("system_name"), QStringLiteral("TM88")},
                       {QStringLiteral("role"), role},
                       {QStringLiteral("cut_mode"), cutMode}};
    if (paperWidth.isValid()) {
        config.insert(QStringLiteral("paper_width"), paperWidth);
    }
    return config;
}

QStringList started()
{
    return {QStringLiteral("openPrinter \"TM88\""),
            QStringLiteral("startDocPrinter 1 \"Zelvan Receipt/Kitchen Ticket\"")};
}
} // namespace

class tst_WindowsPrinterService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aDocumentIsOneRawJob();
    void eachDocumentIsAJobOfItsOwn();
    void anEmptyNameMakesNoSystemCall();
    void aVanishedPrinterFailsWithItsNameAndTheCode();
    void aFailedStepEndsTheJobInOrder_data();
    void aFailedStepEndsTheJobInOrder();
    void aFailedWriteStillEndsPageDocumentAndPrinter();
    void aShortWriteIsLoggedAndCountsAsPrinted();
    void failuresAreLoggedInTheCategoryPrinter();
    void printersAreListedInTheSystemsOrder();
    void withoutPrintersTheListIsEmptyAfterOneCall();
    void aFailedListingIsLoggedWithItsCode();
    void theTestPageIsLaidOutToTheByte_data();
    void theTestPageIsLaidOutToTheByte();
    void theTestPageIsAsWideAsItsPaper_data();
    void theTestPageIsAsWideAsItsPaper();
    void theTestPageNamesRoleAndCut_data();
    void theTestPageNamesRoleAndCut();
    void theTestPageSpeaksChinese();
    void theTestPageAnswersWhatPrintAnswers();
};

void tst_WindowsPrinterService::aDocumentIsOneRawJob()
{
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    const bool printed = service.print(QStringLiteral("TM88"), QByteArray("\x1B\x00\xFFx", 4));

    QVERIFY(printed);
    QCOMPARE(spooler.calls(), started() + QStringList({QStringLiteral("startPagePrinter 1"),
                                                       QStringLiteral("writePrinter 1 4"),
                                                       QStringLiteral("endPagePrinter 1"),
                                                       QStringLiteral("endDocPrinter 1"),
                                                       QStringLiteral("closePrinter 1")}));
    QCOMPARE(spooler.documentsFor(QStringLiteral("TM88")),
             QList<QByteArray>({QByteArray("\x1B\x00\xFFx", 4)}));
}

void tst_WindowsPrinterService::eachDocumentIsAJobOfItsOwn()
{
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    QVERIFY(service.print(QStringLiteral("厨房"), QByteArray("a")));
    QVERIFY(service.print(QStringLiteral("TM88"), QByteArray("b")));

    QCOMPARE(spooler.documents().size(), 2);
    QCOMPARE(spooler.documents().at(0).printerName, QStringLiteral("厨房"));
    QCOMPARE(spooler.documents().at(1).bytes, QByteArray("b"));
    QVERIFY(spooler.calls().contains(QStringLiteral("closePrinter 2")));
}

void tst_WindowsPrinterService::anEmptyNameMakesNoSystemCall()
{
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);
    QTest::ignoreMessage(QtWarningMsg, "Print failed: empty printer name");

    QVERIFY(!service.print(QString(), QByteArray("a")));

    QCOMPARE(spooler.calls(), QStringList());
}

void tst_WindowsPrinterService::aVanishedPrinterFailsWithItsNameAndTheCode()
{
    RecordingSpooler spooler;
    spooler.losePrinter(QStringLiteral("TM88"));
    WindowsPrinterService service(&spooler);
    QTest::ignoreMessage(QtWarningMsg, "Failed to open printer: \"TM88\" error: 1801");

    QVERIFY(!service.print(QStringLiteral("TM88"), QByteArray("a")));

    QCOMPARE(spooler.calls(), QStringList({QStringLiteral("openPrinter \"TM88\"")}));
}

void tst_WindowsPrinterService::aFailedStepEndsTheJobInOrder_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QStringList>("lastCalls");

    QTest::newRow("document") << Step::StartDocPrinter << QStringLiteral("StartDocPrinter failed")
                              << QStringList({QStringLiteral("closePrinter 1")});
    QTest::newRow("page") << Step::StartPagePrinter << QStringLiteral("StartPagePrinter failed")
                          << QStringList({QStringLiteral("startPagePrinter 1"),
                                          QStringLiteral("endDocPrinter 1"),
                                          QStringLiteral("closePrinter 1")});
}

void tst_WindowsPrinterService::aFailedStepEndsTheJobInOrder()
{
    QFETCH(Step, step);
    QFETCH(QString, log);
    QFETCH(QStringList, lastCalls);
    RecordingSpooler spooler;
    spooler.failAt(step);
    WindowsPrinterService service(&spooler);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(log));

    QVERIFY(!service.print(QStringLiteral("TM88"), QByteArray("a")));

    QCOMPARE(spooler.calls(), started() + lastCalls);
}

void tst_WindowsPrinterService::aFailedWriteStillEndsPageDocumentAndPrinter()
{
    RecordingSpooler spooler;
    spooler.failAt(Step::WritePrinter);
    WindowsPrinterService service(&spooler);
    QTest::ignoreMessage(QtWarningMsg, "WritePrinter failed");

    QVERIFY(!service.print(QStringLiteral("TM88"), QByteArray("a")));

    QCOMPARE(spooler.calls().mid(3),
             QStringList({QStringLiteral("writePrinter 1 1"), QStringLiteral("endPagePrinter 1"),
                          QStringLiteral("endDocPrinter 1"), QStringLiteral("closePrinter 1")}));
}

void tst_WindowsPrinterService::aShortWriteIsLoggedAndCountsAsPrinted()
{
    RecordingSpooler spooler;
    spooler.takeAtMost(2);
    WindowsPrinterService service(&spooler);
    QTest::ignoreMessage(QtWarningMsg, "WritePrinter failed");

    QVERIFY(service.print(QStringLiteral("TM88"), QByteArray("abc")));

    QCOMPARE(spooler.documents().constFirst().bytes, QByteArray("ab"));
    QCOMPARE(spooler.calls().size(), 7);
}

void tst_WindowsPrinterService::failuresAreLoggedInTheCategoryPrinter()
{
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    QCOMPARE(logOf([&] { service.print(QString(), QByteArray("a")); }),
             QStringLiteral("warning [printer] Print failed: empty printer name"));
}

void tst_WindowsPrinterService::printersAreListedInTheSystemsOrder()
{
    RecordingSpooler spooler;
    spooler.addPrinter(QStringLiteral("TM88"), QStringLiteral("USB001"));
    spooler.addPrinter(QStringLiteral("Save as PDF"), QStringLiteral("PORTPROMPT:"));
    WindowsPrinterService service(&spooler);

    const QVariantList printers = service.getAvailablePrinters();

    const QVariantList expected{
        QVariantMap{{QStringLiteral("system_name"), QStringLiteral("TM88")},
                    {QStringLiteral("port"), QStringLiteral("USB001")}},
        QVariantMap{{QStringLiteral("system_name"), QStringLiteral("Save as PDF")},
                    {QStringLiteral("port"), QStringLiteral("PORTPROMPT:")}}};
    QCOMPARE(printers, expected);
    QCOMPARE(spooler.calls(),
             QStringList({QStringLiteral("enumPrinters 0"), QStringLiteral("enumPrinters 200")}));
}

void tst_WindowsPrinterService::withoutPrintersTheListIsEmptyAfterOneCall()
{
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    QCOMPARE(service.getAvailablePrinters(), QVariantList());

    QCOMPARE(spooler.calls(), QStringList({QStringLiteral("enumPrinters 0")}));
}

void tst_WindowsPrinterService::aFailedListingIsLoggedWithItsCode()
{
    RecordingSpooler spooler;
    spooler.addPrinter(QStringLiteral("TM88"), QStringLiteral("USB001"));
    spooler.failAt(Step::EnumPrinters, 1722);
    WindowsPrinterService service(&spooler);
    QTest::ignoreMessage(QtWarningMsg, "Failed to enumerate printers: 1722");

    QCOMPARE(service.getAvailablePrinters(), QVariantList());
}

void tst_WindowsPrinterService::theTestPageIsLaidOutToTheByte_data()
{
    QTest::addColumn<QVariantMap>("config");
    QTest::addColumn<QByteArray>("page");

    const char narrow[] = "\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                          "PRINTER TEST"
                          "\x1b\x45\x00\n\n"
                          "--------------------------------\n\n"
                          "\x1b\x61\x00\n"
                          "Printer: TM88\n"
                          "Role: Receipt + Kitchen Printer\n"
                          "Paper Width: 58mm\n"
                          "Cut Mode: Partial Cut\n\n"
                          "--------------------------------\n\n"
                          "\x1b\x61\x01"
                          "1234567890\n"
                          "ABCDEFGHIJKLMNOPQRSTUVWXYZ\n"
                          "abcdefghijklmnopqrstuvwxyz\n"
                          "!@#$%^&*()_+-=[]{}|;':\",.<>/?\n\n"
                          "\x1b\x64\x03\x1d\x56\x01\n\n";
    const char wide[] = "\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                        "PRINTER TEST"
                        "\x1b\x45\x00\n\n"
                        "------------------------------------------------\n\n"
                        "\x1b\x61\x00\n"
                        "Printer: TM88\n"
                        "Role: Kitchen Printer\n"
                        "Paper Width: 80mm\n"
                        "Cut Mode: Full Cut\n\n"
                        "------------------------------------------------\n\n"
                        "\x1b\x61\x01"
                        "1234567890\n"
                        "ABCDEFGHIJKLMNOPQRSTUVWXYZ\n"
                        "abcdefghijklmnopqrstuvwxyz\n"
                        "!@#$%^&*()_+-=[]{}|;':\",.<>/?\n\n"
                        "\x1b\x64\x03\x1d\x56\x00\n\n";
    QTest::newRow("58 mm") << printerConfig(QStringLiteral("both"), QStringLiteral("partial"), 58)
                           << QByteArray(narrow, sizeof narrow - 1);
    QTest::newRow("80 mm") << printerConfig(QStringLiteral("kitchen"), QStringLiteral("full"), 80)
                           << QByteArray(wide, sizeof wide - 1);
}

void tst_WindowsPrinterService::theTestPageIsLaidOutToTheByte()
{
    QFETCH(QVariantMap, config);
    QFETCH(QByteArray, page);
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    QVERIFY(service.testPrint(config));

    QCOMPARE(spooler.documentsFor(QStringLiteral("TM88")), QList<QByteArray>({page}));
}

void tst_WindowsPrinterService::theTestPageIsAsWideAsItsPaper_data()
{
    QTest::addColumn<QVariant>("paperWidth");
    QTest::addColumn<int>("dashes");
    QTest::addColumn<QByteArray>("label");

    QTest::newRow("58") << QVariant(58) << 32 << QByteArray("\nPaper Width: 58mm\n");
    QTest::newRow("80") << QVariant(80) << 48 << QByteArray("\nPaper Width: 80mm\n");
    QTest::newRow("a script's 80") << QVariant(80.0) << 48 << QByteArray("\nPaper Width: 80mm\n");
    QTest::newRow("76") << QVariant(76) << 48 << QByteArray("\nPaper Width: 76mm\n");
    QTest::newRow("zero") << QVariant(0) << 32 << QByteArray("\nPaper Width: 0mm\n");
    QTest::newRow("negative") << QVariant(-1) << 32 << QByteArray("\nPaper Width: -1mm\n");
    QTest::newRow("none") << QVariant() << 32 << QByteArray("\nPaper Width: 0mm\n");
}

void tst_WindowsPrinterService::theTestPageIsAsWideAsItsPaper()
{
    QFETCH(QVariant, paperWidth);
    QFETCH(int, dashes);
    QFETCH(QByteArray, label);
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    QVERIFY(service.testPrint(
        printerConfig(QStringLiteral("receipt"), QStringLiteral("none"), paperWidth)));

    const QByteArray page = spooler.documents().constFirst().bytes;
    QVERIFY(page.contains("\n\n" + QByteArray(dashes, '-') + "\n\n"));
    QVERIFY(page.contains(label));
}

void tst_WindowsPrinterService::theTestPageNamesRoleAndCut_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("cutMode");
    QTest::addColumn<QByteArray>("roleLine");
    QTest::addColumn<QByteArray>("cutLine");
    QTest::addColumn<QByteArray>("end");

    const QByteArray noCut("/?\n\n\n\n");
    QTest::newRow("receipt, full")
        << "receipt"
        << "full" << QByteArray("\nRole: Receipt Printer\n")
        << QByteArray("\nCut Mode: Full Cut\n\n") << QByteArray("\x1b\x64\x03\x1d\x56\x00\n\n", 8);
    QTest::newRow("kitchen, none") << "kitchen"
                                   << "none" << QByteArray("\nRole: Kitchen Printer\n")
                                   << QByteArray("\nCut Mode: No Cut\n\n") << noCut;
    QTest::newRow("unknown words")
        << "bar"
        << "tear" << QByteArray("\nRole: bar\n") << QByteArray("\nCut Mode: tear\n\n") << noCut;
    QTest::newRow("no words") << ""
                              << "" << QByteArray("\nRole: \n") << QByteArray("\nCut Mode: \n\n")
                              << noCut;
}

void tst_WindowsPrinterService::theTestPageNamesRoleAndCut()
{
    QFETCH(QString, role);
    QFETCH(QString, cutMode);
    QFETCH(QByteArray, roleLine);
    QFETCH(QByteArray, cutLine);
    QFETCH(QByteArray, end);
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    QVERIFY(service.testPrint(printerConfig(role, cutMode, 58)));

    const QByteArray page = spooler.documents().constFirst().bytes;
    QVERIFY(page.contains(roleLine));
    QVERIFY(page.contains(cutLine));
    QVERIFY(page.endsWith(end));
}

void tst_WindowsPrinterService::theTestPageSpeaksChinese()
{
    const ChineseLabels labels;
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);

    QVERIFY(service.testPrint(printerConfig(QStringLiteral("both"), QStringLiteral("none"), 80)));

    const char start[] = "\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                         "打印机测试"
                         "\x1b\x45\x00\n\n"
                         "------------------------------------------------\n\n"
                         "\x1b\x61\x00\n"
                         "打印机: TM88\n"
                         "角色: 收据 + 厨房打印机\n"
                         "纸张宽度: 80\n"
                         "切纸方式: 不切纸\n\n";
    const QByteArray page = spooler.documents().constFirst().bytes;
    const QByteArray expected = QString::fromUtf8(start, sizeof start - 1).toLocal8Bit();
    QCOMPARE(page.left(expected.size()), expected);
    QVERIFY(page.contains("\nABCDEFGHIJKLMNOPQRSTUVWXYZ\n"));
}

void tst_WindowsPrinterService::theTestPageAnswersWhatPrintAnswers()
{
    RecordingSpooler spooler;
    WindowsPrinterService service(&spooler);
    QTest::ignoreMessage(QtWarningMsg, "Print failed: empty printer name");

    QVERIFY(!service.testPrint({}));

    QCOMPARE(spooler.calls(), QStringList());
}

ZELVAN_TEST(tst_WindowsPrinterService)
#include "tst_windowsprinterservice.moc"
