// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/OrderService.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <memory>

/// When kitchen tickets come out, and where.
class tst_OrderTickets : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void aTicketIsDueByModeAndTiming_data();
    void aTicketIsDueByModeAndTiming();
    void theStoredModeDecidesOnTheTicket();
    void noKitchenRowNoTicket();
    void ticketsGoToEveryKitchenPrinterInOrder();
    void theTicketHoldsOnlyTheNewOrder();
    void aFailedPrintIsLoggedAndTheNextPrinterTried();
    void anOrderWithoutARowIsNotPrinted();
    void theTicketIsOutBeforeTheSignal();
    void theManualTicketLooksAtNoSettings();
    void theManualTicketAnswersFalseWhenPrintingFails();
    void theManualTicketRefuses_data();
    void theManualTicketRefuses();

private:
    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
};

void tst_OrderTickets::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({});
    m_store->addPrinter("Kitchen", "kitchen");
}

void tst_OrderTickets::aTicketIsDueByModeAndTiming_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("timing");
    QTest::addColumn<int>("tickets");

    for (const char *mode : {"none", "kds", "tickets", "hybrid"}) {
        const bool prints = qstrcmp(mode, "tickets") == 0 || qstrcmp(mode, "hybrid") == 0;
        QTest::addRow("%s when created", mode)
            << QString::fromLatin1(mode) << QStringLiteral("order_created") << int(prints);
        QTest::addRow("%s by hand", mode)
            << QString::fromLatin1(mode) << QStringLiteral("manual") << 0;
    }
}

void tst_OrderTickets::aTicketIsDueByModeAndTiming()
{
    QFETCH(QString, mode);
    QFETCH(QString, timing);
    QFETCH(int, tickets);
    m_store->setKitchen(mode, timing);

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(m_store->spooler.documents().size(), tickets);
}

void tst_OrderTickets::theStoredModeDecidesOnTheTicket()
{
    m_store->setKitchen("kds", "order_created");
    m_store->database.run("UPDATE kitchen_settings SET mode = 'tickets'");

    m_store->orderTakeaway({TestStore::line(m_soup)});

    // The first status follows the mode in memory, the ticket the stored one.
    QCOMPARE(m_store->text("SELECT status FROM orders"), QStringLiteral("pending"));
    QCOMPARE(m_store->spooler.documents().size(), 1);
}

void tst_OrderTickets::noKitchenRowNoTicket()
{
    m_store->database.run("DELETE FROM kitchen_settings");

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(m_store->spooler.documents().size(), 0);
}

void tst_OrderTickets::ticketsGoToEveryKitchenPrinterInOrder()
{
    m_store->addPrinter("Till", "receipt");
    m_store->addPrinter("Bar", "both");
    m_store->addPrinter("Odd", "Kitchen");
    m_store->setKitchen("tickets", "order_created");

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QStringList printers;
    for (const RecordingSpooler::Document &document : m_store->spooler.documents()) {
        printers.append(document.printerName);
    }
    QCOMPARE(printers, QStringList({"Kitchen", "Bar"}));
}

void tst_OrderTickets::theTicketHoldsOnlyTheNewOrder()
{
    const int tea = m_store->addDish({"Tea", 250});
    const int table = m_store->addTable("T1");
    m_store->orderAtTable(table, {TestStore::line(m_soup)});
    m_store->setKitchen("tickets", "order_created");

    m_store->orderAtTable(table, {TestStore::line(tea, 2, "no sugar")});

    const QByteArray ticket = m_store->spooler.documentsFor("Kitchen").value(0);
    const QByteArray number =
        m_store->text("SELECT display_number FROM orders WHERE id = 2").toUtf8();
    QVERIFY(ticket.contains("Order #" + number));
    QVERIFY(ticket.contains(" Tea"));
    QVERIFY(ticket.contains("2x"));
    QVERIFY(ticket.contains("no sugar"));
    QVERIFY(!ticket.contains("Soup"));
}

void tst_OrderTickets::aFailedPrintIsLoggedAndTheNextPrinterTried()
{
    m_store->addPrinter("Bar", "both");
    m_store->setKitchen("tickets", "order_created");
    m_store->spooler.losePrinter("Kitchen");
    QSignalSpy created(&m_store->services.orders, &OrderService::orderCreated);
    const LogCapture log;

    const int order = m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(log.lines(),
             QStringList({"warning [printer] Failed to open printer: \"Kitchen\" error: 1801",
                          "warning [printer] Kitchen print failed."}));
    QCOMPARE(m_store->spooler.documentsFor("Bar").size(), 1);
    QCOMPARE(created, QList<QVariantList>({{order}}));
}

void tst_OrderTickets::anOrderWithoutARowIsNotPrinted()
{
    m_store->setKitchen("tickets", "order_created");
    m_store->refuse("INSERT ON orders");
    expectLog(QtCriticalMsg, "Failed to create order:");
    expectLog(QtWarningMsg, "[OrderItemRepository] create failed:");

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(m_store->spooler.calls(), QStringList());
}

void tst_OrderTickets::theTicketIsOutBeforeTheSignal()
{
    m_store->setKitchen("hybrid", "order_created");
    qsizetype ticketsAtSignal = -1;
    connect(&m_store->services.orders, &OrderService::orderCreated, this,
            [&] { ticketsAtSignal = m_store->spooler.documents().size(); });

    m_store->orderTakeaway({TestStore::line(m_soup)});

    QCOMPARE(ticketsAtSignal, 1);
}

void tst_OrderTickets::theManualTicketLooksAtNoSettings()
{
    m_store->setKitchen("none", "manual");
    const int order = m_store->orderTakeaway({TestStore::line(m_soup)});

    // False also after a good print.
    QVERIFY(!m_store->services.orders.printKitchenTicket(order));

    QCOMPARE(m_store->spooler.documentsFor("Kitchen").size(), 1);
}

void tst_OrderTickets::theManualTicketAnswersFalseWhenPrintingFails()
{
    m_store->addPrinter("Bar", "kitchen");
    const int order = m_store->orderTakeaway({TestStore::line(m_soup)});
    m_store->spooler.losePrinter("Kitchen");
    const LogCapture log;

    QVERIFY(!m_store->services.orders.printKitchenTicket(order));

    // Only the spool's own line.
    QCOMPARE(log.lines(),
             QStringList{"warning [printer] Failed to open printer: \"Kitchen\" error: 1801"});
    QCOMPARE(m_store->spooler.documentsFor("Bar").size(), 1);
}

void tst_OrderTickets::theManualTicketRefuses_data()
{
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("line");

    QTest::newRow("an unknown order") << QStringLiteral("DELETE FROM orders")
                                      << QStringLiteral("warning [order] order not found 1");
    QTest::newRow("an order without a session")
        << QStringLiteral("DELETE FROM order_sessions")
        << QStringLiteral("warning [order] session not found 1");
    QTest::newRow("an order without lines") << QStringLiteral("DELETE FROM order_items")
                                            << QStringLiteral("warning [order] no items found");
}

void tst_OrderTickets::theManualTicketRefuses()
{
    QFETCH(QString, removed);
    QFETCH(QString, line);
    const int order = m_store->orderTakeaway({TestStore::line(m_soup)});
    m_store->database.run("PRAGMA foreign_keys = OFF");
    m_store->database.run(removed);
    const LogCapture log;

    QVERIFY(!m_store->services.orders.printKitchenTicket(order));

    QCOMPARE(log.lines(), QStringList{line});
    QCOMPARE(m_store->spooler.calls(), QStringList());
}

ZELVAN_TEST(tst_OrderTickets)
#include "tst_ordertickets.moc"
