// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/spool/CupsSpooler.h"
#include "support/PrivateCups.h"
#include "support/RestlessServer.h"
#include "support/ZelvanTest.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <cups/cups.h>

#include <csignal>

namespace {
const char16_t *const documentName = u"Zelvan Receipt/Kitchen Ticket";
constexpr int promisedMs = 2000;

void useServer(quint16 port)
{
    cupsSetServer(QByteArray("127.0.0.1:" + QByteArray::number(port)).constData());
}

/// A port on which nobody listens: it was free a moment ago.
quint16 deadPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

QByteArray everyByteTwice()
{
    QByteArray bytes;
    for (int i = 0; i < 512; ++i) {
        bytes.append(static_cast<char>(i % 256));
    }
    return bytes;
}
} // namespace

/// Against a real server and a real queue, as on the counter.
class tst_CupsSpooler : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aDocumentReachesThePrinterToTheByte_data();
    void aDocumentReachesThePrinterToTheByte();
    void theServerKnowsTheDocumentByItsName();
    void queuesAreListedWithTheirDevices();
    void aServerWithoutAQueueNeedsNoBuffer();
    void aQueueThatDoesNotExistIsRefusedAtTheOpen();
    void aQueueThatRejectsJobsIsRefusedAtTheStart();
    void aServerThatDoesNotRunIsAnError();
    void withoutTheLibraryEveryPrinterIsRefused();
    void aServerThatNeverAnswersIsAnErrorInTwoSeconds();
    void aServerLostMidWayIsAnErrorThatCostsOneWait_data();
    void aServerLostMidWayIsAnErrorThatCostsOneWait();
    void aServerThatNeverStopsSendingIsAnErrorInTwoSeconds_data();
    void aServerThatNeverStopsSendingIsAnErrorInTwoSeconds();
    void aServerThatSaysNeitherYesNorNoIsNotAskedForEver_data();
    void aServerThatSaysNeitherYesNorNoIsNotAskedForEver();
    void aNameThatIsLookedUpForEverIsAnErrorInTwoSeconds();

private:
    /// Opens the printer and starts a document on it.
    static RawSpooler::Handle started(CupsSpooler &spooler);
};

RawSpooler::Handle tst_CupsSpooler::started(CupsSpooler &spooler)
{
    RawSpooler::Handle handle = 0;
    if (!spooler.openPrinter(u"TM88", handle) ||
        spooler.startDocPrinter(handle, documentName) == 0 || !spooler.startPagePrinter(handle)) {
        return 0;
    }
    return handle;
}

void tst_CupsSpooler::aDocumentReachesThePrinterToTheByte_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("a line") << QByteArray("\x1B\x40Hello\n");
    QTest::newRow("every byte") << everyByteTwice();
    QTest::newRow("looks like a picture") << QByteArray("%PDF-1.4\n%!PS-Adobe\n\x89PNG\r\n");
    QTest::newRow("200 KB") << everyByteTwice().repeated(400);
}

void tst_CupsSpooler::aDocumentReachesThePrinterToTheByte()
{
    QFETCH(QByteArray, bytes);
    PrivateCups cups;
    ThermalPrinter printer;
    QVERIFY(cups.start());
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), printer.port()));

    CupsSpooler spooler;
    const RawSpooler::Handle handle = started(spooler);
    QVERIFY(handle != 0);
    std::uint32_t written = 0;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    QVERIFY(spooler.writePrinter(handle, bytes.constData(), size, written));
    QVERIFY(spooler.endPagePrinter(handle));
    QVERIFY(spooler.endDocPrinter(handle));
    QVERIFY(spooler.closePrinter(handle));

    QCOMPARE(written, size);
    QCOMPARE(printer.nextDocument(), bytes);
}

void tst_CupsSpooler::theServerKnowsTheDocumentByItsName()
{
    PrivateCups cups;
    ThermalPrinter printer;
    QVERIFY(cups.start());
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), printer.port()));

    CupsSpooler spooler;
    const RawSpooler::Handle handle = started(spooler);
    std::uint32_t written = 0;
    QVERIFY(spooler.writePrinter(handle, "x", 1, written));
    spooler.closePrinter(handle);

    cups_job_t *jobs = nullptr;
    QCOMPARE(cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, "TM88", 0, CUPS_WHICHJOBS_ALL), 1);
    QCOMPARE(QByteArray(jobs[0].title), QByteArray("Zelvan Receipt/Kitchen Ticket"));
    cupsFreeJobs(1, jobs);
}

void tst_CupsSpooler::queuesAreListedWithTheirDevices()
{
    PrivateCups cups;
    QVERIFY(cups.start());
    QVERIFY(cups.addQueue(QStringLiteral("Kitchen"), 9101));
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), 9100));

    CupsSpooler spooler;
    std::uint32_t needed = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
    QVERIFY(!spooler.enumPrinters(0, needed, printers));
    QVERIFY(needed > 0);
    QVERIFY(spooler.enumPrinters(needed, needed, printers));

    QCOMPARE(printers.size(), 2u);
    QCOMPARE(QString::fromStdU16String(printers[0].printerName), QStringLiteral("Kitchen"));
    QCOMPARE(QString::fromStdU16String(printers[0].portName),
             QStringLiteral("socket://127.0.0.1:9101"));
    QCOMPARE(QString::fromStdU16String(printers[1].printerName), QStringLiteral("TM88"));
    QCOMPARE(QString::fromStdU16String(printers[1].portName),
             QStringLiteral("socket://127.0.0.1:9100"));
}

void tst_CupsSpooler::aServerWithoutAQueueNeedsNoBuffer()
{
    PrivateCups cups;
    QVERIFY(cups.start());

    CupsSpooler spooler;
    std::uint32_t needed = 7;
    std::vector<RawSpooler::PrinterInfo> printers;
    spooler.enumPrinters(0, needed, printers);

    QCOMPARE(needed, 0u);
}

void tst_CupsSpooler::aQueueThatDoesNotExistIsRefusedAtTheOpen()
{
    PrivateCups cups;
    QVERIFY(cups.start());

    CupsSpooler spooler;
    RawSpooler::Handle handle = 0;
    QVERIFY(!spooler.openPrinter(u"Gone", handle));

    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_NOT_FOUND));
}

void tst_CupsSpooler::aQueueThatRejectsJobsIsRefusedAtTheStart()
{
    PrivateCups cups;
    QVERIFY(cups.start());
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), 9100));
    QVERIFY(cups.rejectJobs(QStringLiteral("TM88")));

    CupsSpooler spooler;
    RawSpooler::Handle handle = 0;
    QVERIFY(spooler.openPrinter(u"TM88", handle));
    QCOMPARE(spooler.startDocPrinter(handle, documentName), 0u);

    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS));
}

void tst_CupsSpooler::aServerThatDoesNotRunIsAnError()
{
    useServer(deadPort());
    CupsSpooler spooler;
    QElapsedTimer clock;

    clock.start();
    RawSpooler::Handle handle = 0;
    QVERIFY(!spooler.openPrinter(u"TM88", handle));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));
    QVERIFY(clock.elapsed() < promisedMs);

    clock.start();
    std::uint32_t needed = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
    spooler.enumPrinters(0, needed, printers);
    QVERIFY(needed != 0);
    QVERIFY(!spooler.enumPrinters(needed, needed, printers));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));
    QVERIFY(clock.elapsed() < promisedMs);
}

void tst_CupsSpooler::withoutTheLibraryEveryPrinterIsRefused()
{
    CupsSpooler spooler(QStringLiteral("zelvan-no-such-library"));
    expectLog(QtWarningMsg, "CUPS cannot be loaded:");
    expectLog(QtWarningMsg, "CUPS cannot be loaded:");

    RawSpooler::Handle handle = 0;
    QVERIFY(!spooler.openPrinter(u"TM88", handle));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));

    std::uint32_t needed = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
    QVERIFY(!spooler.enumPrinters(0, needed, printers));
    QVERIFY(needed != 0);
    QVERIFY(!spooler.enumPrinters(needed, needed, printers));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));
}

void tst_CupsSpooler::aServerThatNeverAnswersIsAnErrorInTwoSeconds()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    useServer(silent.serverPort());
    CupsSpooler spooler;
    QElapsedTimer clock;

    clock.start();
    RawSpooler::Handle handle = 0;
    QVERIFY(!spooler.openPrinter(u"TM88", handle));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));
    QVERIFY2(clock.elapsed() < promisedMs, qPrintable(QString::number(clock.elapsed())));

    clock.start();
    std::uint32_t needed = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
    spooler.enumPrinters(0, needed, printers);
    QVERIFY(needed != 0);
    QVERIFY(!spooler.enumPrinters(needed, needed, printers));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));
    QVERIFY2(clock.elapsed() < promisedMs, qPrintable(QString::number(clock.elapsed())));
}

void tst_CupsSpooler::aServerLostMidWayIsAnErrorThatCostsOneWait_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("documentIsOpen");
    QTest::addColumn<int>("size");

    QTest::newRow("killed before the document") << SIGKILL << false << 1;
    QTest::newRow("halted before the document") << SIGSTOP << false << 1;
    QTest::newRow("killed before the write") << SIGKILL << true << 1;
    QTest::newRow("halted before the write") << SIGSTOP << true << 1;
    QTest::newRow("killed before a write of 16 MB") << SIGKILL << true << 16'000'000;
    QTest::newRow("halted before a write of 16 MB") << SIGSTOP << true << 16'000'000;
}

void tst_CupsSpooler::aServerLostMidWayIsAnErrorThatCostsOneWait()
{
    QFETCH(int, signal);
    QFETCH(bool, documentIsOpen);
    QFETCH(int, size);
    PrivateCups cups;
    QVERIFY(cups.start());
    QVERIFY(cups.addQueue(QStringLiteral("TM88"), 9100));
    const QByteArray bytes(size, 'x');
    CupsSpooler spooler;
    RawSpooler::Handle handle = 0;
    QVERIFY(spooler.openPrinter(u"TM88", handle));
    if (documentIsOpen) {
        QVERIFY(spooler.startDocPrinter(handle, documentName) != 0);
    }
    QElapsedTimer clock;

    clock.start();
    cups.signalServer(signal);
    const bool started = documentIsOpen || spooler.startDocPrinter(handle, documentName) != 0;
    std::uint32_t written = 1;
    const bool wrote =
        spooler.writePrinter(handle, bytes.constData(), static_cast<std::uint32_t>(size), written);
    spooler.endPagePrinter(handle);
    spooler.endDocPrinter(handle);
    const bool closed = spooler.closePrinter(handle);
    const qint64 elapsed = clock.elapsed();

    QCOMPARE(started, documentIsOpen);
    QVERIFY(!wrote);
    QCOMPARE(written, 0u);
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));
    QVERIFY(closed);
    QVERIFY2(elapsed < promisedMs, qPrintable(QString::number(elapsed)));
}

void tst_CupsSpooler::aServerThatNeverStopsSendingIsAnErrorInTwoSeconds_data()
{
    QTest::addColumn<QByteArray>("once");
    QTest::addColumn<QByteArray>("again");
    QTest::addColumn<int>("pauseMs");
    const QByteArray ok = "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n";

    QTest::newRow("go on, go on") << QByteArray() << QByteArray("HTTP/1.1 100 Continue\r\n\r\n")
                                  << 0;
    QTest::newRow("headers without an end") << ok << QByteArray("X-Field: value\r\n") << 0;
    // A good answer's beginning, then one attribute after the other.
    QTest::newRow("an answer without an end")
        << ok + QByteArray("Content-Length: 2000000000\r\n\r\n"
                           "\x02\x00\x00\x00\x00\x00\x00\x01\x04",
                           39)
        << QByteArray("\x44\x00\x04name\x00\x05value", 14) << 0;
    QTest::newRow("a byte at a time") << QByteArray("HTTP/1.1 200 O") << QByteArray("K") << 200;
}

void tst_CupsSpooler::aServerThatNeverStopsSendingIsAnErrorInTwoSeconds()
{
    QFETCH(QByteArray, once);
    QFETCH(QByteArray, again);
    QFETCH(int, pauseMs);
    const RestlessServer server(once, again, std::chrono::milliseconds(pauseMs));
    useServer(server.port());
    CupsSpooler spooler;
    QElapsedTimer clock;

    clock.start();
    RawSpooler::Handle handle = 0;
    QVERIFY(!spooler.openPrinter(u"TM88", handle));

    QVERIFY2(clock.elapsed() < promisedMs, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));
    // Nobody goes on listening to it.
    QTRY_VERIFY(server.isLeft());
}

void tst_CupsSpooler::aServerThatSaysNeitherYesNorNoIsNotAskedForEver_data()
{
    QTest::addColumn<QByteArray>("answer");

    QTest::newRow("moved") << QByteArray("HTTP/1.1 301 Moved Permanently\r\nLocation: /\r\n"
                                         "Content-Length: 0\r\n\r\n");
    QTest::newRow("not modified") << QByteArray("HTTP/1.1 304 Not Modified\r\n\r\n");
    QTest::newRow("switching") << QByteArray("HTTP/1.1 101 Switching Protocols\r\n\r\n");
    QTest::newRow("processing") << QByteArray("HTTP/1.1 102 Processing\r\n\r\n");
    QTest::newRow("upgrade") << QByteArray("HTTP/1.1 426 Upgrade Required\r\nUpgrade: TLS/1.2\r\n"
                                           "Connection: Upgrade\r\nContent-Length: 0\r\n\r\n");
    QTest::newRow("a garbled upgrade") << QByteArray(
        "HTTP/1.1 426 Upgrade Requ\r\nUpg\xff"
        "ade: TLS/\x01\r\nConnection: Upgra\r\n\r\nHTTP/1.1 426 Upgrade Required\r\n\r\n");
    QTest::newRow("who are you") << QByteArray(
        "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"\r\n"
        "Content-Length: 0\r\n\r\n");
    QTest::newRow("no expectations")
        << QByteArray("HTTP/1.1 417 Expectation Failed\r\nContent-Length: 0\r\n\r\n");
}

void tst_CupsSpooler::aServerThatSaysNeitherYesNorNoIsNotAskedForEver()
{
    QFETCH(QByteArray, answer);
    // Asked for ever it has thousands; the library itself asks a few times anew about an
    // expectation.
    constexpr int fewConnections = 200;
    const RestlessServer server(answer, {}, {});
    useServer(server.port());
    CupsSpooler spooler;
    QElapsedTimer clock;

    clock.start();
    RawSpooler::Handle handle = 0;
    QVERIFY(!spooler.openPrinter(u"TM88", handle));
    QVERIFY2(clock.elapsed() < promisedMs, qPrintable(QString::number(clock.elapsed())));

    QVERIFY2(server.clients() < fewConnections, qPrintable(QString::number(server.clients())));
}

void tst_CupsSpooler::aNameThatIsLookedUpForEverIsAnErrorInTwoSeconds()
{
    CupsSpooler spooler(QStringLiteral(ZELVAN_SLOW_CUPS));
    QElapsedTimer clock;

    clock.start();
    RawSpooler::Handle handle = 0;
    QVERIFY(!spooler.openPrinter(u"TM88", handle));
    QVERIFY2(clock.elapsed() < promisedMs, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(spooler.getLastError(), std::uint32_t(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE));

    clock.start();
    std::uint32_t needed = 0;
    std::vector<RawSpooler::PrinterInfo> printers;
    QVERIFY(!spooler.enumPrinters(0, needed, printers));
    QVERIFY2(clock.elapsed() < promisedMs, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(needed, 1u);
}

ZELVAN_TEST(tst_CupsSpooler)
#include "tst_cupsspooler.moc"
