// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/WindowsPrinterService.h"
#include "support/PrivateCups.h"
#include "support/ZelvanTest.h"

#include <QElapsedTimer>

#include <cups/cups.h>

/// The service as the program builds it, on the spooler of this system.
class tst_PlatformSpooler : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aTestPageComesOutOfTheQueue();
    void theSystemsQueuesAreOffered();
    void aSystemWithoutQueuesOffersNone();
    void aVanishedQueueIsLoggedWithItsCode();
    void aQueueThatIsOffLineStillTakesTheDocument();
    void aSpoolerThatDoesNotRunIsLoggedWithinTwoSeconds_data();
    void aSpoolerThatDoesNotRunIsLoggedWithinTwoSeconds();
};

void tst_PlatformSpooler::aTestPageComesOutOfTheQueue()
{
    PrivateCups cups;
    ThermalPrinter printer;
    QVERIFY(cups.start());
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), printer.port()));
    WindowsPrinterService service;

    QVERIFY(service.testPrint({{QStringLiteral("system_name"), QStringLiteral("TM88")},
                               {QStringLiteral("role"), QStringLiteral("both")},
                               {QStringLiteral("cut_mode"), QStringLiteral("full")},
                               {QStringLiteral("paper_width"), 80}}));

    const QByteArray paper = printer.nextDocument();
    QVERIFY(paper.startsWith("\x1b\x40\x1b\x61\x01\x1b\x45\x01PRINTER TEST"));
    QVERIFY(paper.endsWith(QByteArray("\n\n\x1b\x64\x03\x1d\x56\x00\n\n", 10)));
    QCOMPARE(paper.count('-'), 2 * 48 + 1);
}

void tst_PlatformSpooler::theSystemsQueuesAreOffered()
{
    PrivateCups cups;
    QVERIFY(cups.start());
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), 9100));
    WindowsPrinterService service;

    const QVariantList expected{
        QVariantMap{{QStringLiteral("system_name"), QStringLiteral("TM88")},
                    {QStringLiteral("port"), QStringLiteral("socket://127.0.0.1:9100")}}};
    QCOMPARE(service.getAvailablePrinters(), expected);
}

void tst_PlatformSpooler::aSystemWithoutQueuesOffersNone()
{
    PrivateCups cups;
    QVERIFY(cups.start());
    WindowsPrinterService service;

    QCOMPARE(service.getAvailablePrinters(), QVariantList());
}

void tst_PlatformSpooler::aVanishedQueueIsLoggedWithItsCode()
{
    PrivateCups cups;
    QVERIFY(cups.start());
    WindowsPrinterService service;
    QTest::ignoreMessage(QtWarningMsg, "Failed to open printer: \"TM88\" error: 1030");

    QVERIFY(!service.print(QStringLiteral("TM88"), "x"));
}

void tst_PlatformSpooler::aQueueThatIsOffLineStillTakesTheDocument()
{
    PrivateCups cups;
    QVERIFY(cups.start());
    // Port 9 of this machine: nobody prints there.
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), 9));
    WindowsPrinterService service;

    QVERIFY(service.print(QStringLiteral("TM88"), "x"));
}

void tst_PlatformSpooler::aSpoolerThatDoesNotRunIsLoggedWithinTwoSeconds_data()
{
    QTest::addColumn<bool>("accepts");

    QTest::newRow("nobody listens") << false;
    QTest::newRow("somebody accepts and never answers") << true;
}

void tst_PlatformSpooler::aSpoolerThatDoesNotRunIsLoggedWithinTwoSeconds()
{
    QFETCH(bool, accepts);
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    cupsSetServer(QByteArray("127.0.0.1:" + QByteArray::number(silent.serverPort())).constData());
    if (!accepts) {
        silent.close();
    }
    WindowsPrinterService service;
    QElapsedTimer clock;

    QTest::ignoreMessage(QtWarningMsg, "Failed to open printer: \"TM88\" error: 1282");
    clock.start();
    QVERIFY(!service.print(QStringLiteral("TM88"), "x"));
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));

    QTest::ignoreMessage(QtWarningMsg, "Failed to enumerate printers: 1282");
    clock.start();
    QCOMPARE(service.getAvailablePrinters(), QVariantList());
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
}

ZELVAN_TEST(tst_PlatformSpooler)
#include "tst_platformspooler.moc"
