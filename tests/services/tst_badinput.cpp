// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/DatabaseDump.h"
#include "support/DatabaseFiles.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace {
/// Long enough to burst any buffer, with signs that show where something was cut.
QString longName(const QString &start)
{
    return start + QString(9980 - start.size(), QLatin1Char('n')) +
           QStringLiteral("<the very last end>!");
}

/// Another process that holds the store's file for writing.
class OtherWriter final
{
public:
    explicit OtherWriter(const TestStore &store)
    {
        m_handle = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name());
        m_handle.setDatabaseName(store.database.path());
        if (!m_handle.open() || !QSqlQuery(m_handle).exec(QStringLiteral("BEGIN IMMEDIATE"))) {
            qFatal("cannot hold the database");
        }
    }
    ~OtherWriter()
    {
        QSqlQuery(m_handle).exec(QStringLiteral("ROLLBACK"));
        m_handle.close();
        m_handle = QSqlDatabase();
        QSqlDatabase::removeDatabase(name());
    }
    Q_DISABLE_COPY_MOVE(OtherWriter)

private:
    static QString name() { return QStringLiteral("other_writer"); }

    QSqlDatabase m_handle;
};
} // namespace

/// What people type in error, and what a till meets on a bad day: each ends in a state from which
/// work goes on.
class tst_BadInput : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void longNamesAreStoredListedAndPrinted();
    void aUserWithALongNameLogsIn();
    void aPriceOutsideAllReasonIsStoredAndSold_data();
    void aPriceOutsideAllReasonIsStoredAndSold();
    void aTaxOfAHundredPerCentDoublesTheBill();
    void aVanishedPrinterStopsNoOrderAndNoPayment();
    void aLockedDatabaseFailsThePaymentWhole();
    void aLockedDatabaseTakesNoOrder();
    void aFullDiskFailsThePaymentWhole();
    void aFileThatIsNoStoreIsNeitherOpenedNorRestored_data();
    void aFileThatIsNoStoreIsNeitherOpenedNorRestored();

private:
    [[nodiscard]] QString paper(const QString &printer) const;
    int orderAtT1();

    std::unique_ptr<TestStore> m_store;
    int m_table = 0;
    int m_soup = 0;
};

void tst_BadInput::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_store->addPrinter("Till", "receipt");
    m_store->addPrinter("Stove", "kitchen");
    m_store->setKitchen("hybrid", "order_created");
    m_table = m_store->addTable("T1");
    m_soup = m_store->addDish({});
}

/// All that came out of the printer, as one line.
QString tst_BadInput::paper(const QString &printer) const
{
    QString text;
    for (const QByteArray &document : m_store->spooler.documentsFor(printer)) {
        text += QString::fromUtf8(document);
    }
    return text.remove(QLatin1Char('\n'));
}

int tst_BadInput::orderAtT1()
{
    return m_store->orderAtTable(m_table, {TestStore::line(m_soup, 2)});
}

void tst_BadInput::longNamesAreStoredListedAndPrinted()
{
    Services &services = m_store->services;
    QVariantMap restaurant = services.settings.getRestaurant();
    restaurant["name"] = longName("Restaurant");
    QVERIFY(services.settings.saveRestaurantSetting(restaurant));
    const int table = services.tables.addTable(longName("Table"), 4);
    QVERIFY(table > 0);
    QVERIFY(services.menu.addMenuItem(longName("Dish"), 1, 12.5, true, true));
    const int dish = int(m_store->number("SELECT max(id) FROM menu"));

    const int order = m_store->orderAtTable(table, {TestStore::line(dish)});
    const int session = m_store->sessionOf(order);
    QCOMPARE(services.orders.getOpenOrders().size(), 1);
    QCOMPARE(services.orders.getOrderItems(order).at(0).toMap()["item_name"].toString(),
             longName("Dish"));
    QVERIFY(services.checkout.completeCheckout(session, {}, 0));
    QVERIFY(services.checkout.printReceipt(session, false));

    QCOMPARE(m_store->text("SELECT table_name FROM tables ORDER BY id DESC"), longName("Table"));
    // A kitchen's ticket names the table by its number alone.
    QVERIFY(paper("Stove").contains(longName("Dish")));
    for (const char *name : {"Restaurant", "Table", "Dish"}) {
        QVERIFY2(paper("Till").contains(longName(name)), name);
    }
}

void tst_BadInput::aUserWithALongNameLogsIn()
{
    Services &services = m_store->services;
    QSignalSpy finished(&services.users, &UserService::createUserFinished);

    services.users.createUser(longName("User"), "secret", "secret", "service_staff");
    QTRY_COMPARE(finished.size(), 1);

    QCOMPARE(m_store->text("SELECT username FROM users"), longName("User"));
    QVERIFY(services.auth.login(longName("User"), "secret"));
    QVERIFY(!services.auth.login(longName("User").chopped(1), "secret"));
}

void tst_BadInput::aPriceOutsideAllReasonIsStoredAndSold_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<QString>("bill");
    QTest::newRow("1e9") << 1e9 << QStringLiteral("4294967294 4294967294");
    // Nobody is paid for eating.
    QTest::newRow("-1") << -1.0 << QStringLiteral("-200 0");
    QTest::newRow("nothing") << 0.0 << QStringLiteral("0 0");
}

void tst_BadInput::aPriceOutsideAllReasonIsStoredAndSold()
{
    QFETCH(double, price);
    QFETCH(QString, bill);
    QVERIFY(m_store->services.menu.addMenuItem("Dish", 1, price, true, true));
    const int dish = int(m_store->number("SELECT max(id) FROM menu"));

    const int session =
        m_store->sessionOf(m_store->orderAtTable(m_table, {TestStore::line(dish, 2)}));

    QVERIFY(m_store->services.checkout.completeCheckout(session, {}, 0));
    QCOMPARE(m_store->text("SELECT subtotal || ' ' || total FROM order_sessions"), bill);
    QVERIFY(m_store->services.checkout.printReceipt(session, false));
}

void tst_BadInput::aTaxOfAHundredPerCentDoublesTheBill()
{
    QVariantMap tax = m_store->services.settings.getTaxSettings();
    tax["enabled"] = 1;
    tax["name"] = "Levy";
    tax["rate"] = 10000;
    QVERIFY(m_store->services.settings.saveTaxSettings(tax));
    const int session = m_store->sessionOf(orderAtT1());

    QVERIFY(m_store->services.checkout.completeCheckout(session, {}, 0));
    QVERIFY(m_store->services.checkout.printReceipt(session, false));

    QCOMPARE(m_store->text("SELECT subtotal || ' ' || tax || ' ' || total FROM order_sessions"),
             QStringLiteral("2000 2000 4000"));
    QVERIFY(paper("Till").contains("40.00"));
}

void tst_BadInput::aVanishedPrinterStopsNoOrderAndNoPayment()
{
    m_store->spooler.losePrinter("Till");
    m_store->spooler.losePrinter("Stove");
    const LogCapture log;

    const int session = m_store->sessionOf(orderAtT1());
    const QStringList afterOrder = log.lines();
    const bool paid = m_store->services.checkout.completeCheckout(session, {}, 0);
    const QStringList beforeReceipt = log.lines();
    const bool printed = m_store->services.checkout.printReceipt(session, false);

    QVERIFY(paid);
    QVERIFY(!printed);
    QVERIFY(!afterOrder.filter("printer: ").isEmpty());
    QVERIFY(log.lines().size() > beforeReceipt.size());
    QCOMPARE(m_store->text("SELECT status FROM order_sessions"), QStringLiteral("paid"));
    QCOMPARE(m_store->text("SELECT status FROM orders"), QStringLiteral("served"));
    QCOMPARE(m_store->number("SELECT count(*) FROM receipt_snapshot"), 1);
    QCOMPARE(m_store->tableStatus(m_table), QStringLiteral("available"));
}

void tst_BadInput::aLockedDatabaseFailsThePaymentWhole()
{
    const int session = m_store->sessionOf(orderAtT1());
    const QStringList before = dumpOf(m_store->database);
    // Otherwise each statement waits its seconds out.
    m_store->database.run("PRAGMA busy_timeout = 20");
    {
        const OtherWriter other(*m_store);
        const LogCapture log;

        QVERIFY(!m_store->services.checkout.completeCheckout(session, {}, 0));

        QVERIFY(log.lines().contains("warning [checkout] Rolling back transaction"));
    }
    QCOMPARE(dumpOf(m_store->database), before);

    // Once the other has let go, the very same bill can be paid.
    QVERIFY(m_store->services.checkout.completeCheckout(session, {}, 0));
    QCOMPARE(m_store->text("SELECT status FROM order_sessions"), QStringLiteral("paid"));
}

void tst_BadInput::aLockedDatabaseTakesNoOrder()
{
    const QStringList before = dumpOf(m_store->database);
    m_store->database.run("PRAGMA busy_timeout = 20");
    {
        const OtherWriter other(*m_store);
        const LogCapture log;

        QCOMPARE(orderAtT1(), -1);

        QVERIFY(!log.lines().isEmpty());
    }
    QCOMPARE(dumpOf(m_store->database), before);
    QVERIFY(orderAtT1() > 0);
}

void tst_BadInput::aFullDiskFailsThePaymentWhole()
{
    const int session = m_store->sessionOf(orderAtT1());
    const QStringList before = dumpOf(m_store->database);
    const qint64 written = QFileInfo(m_store->database.path() + "-wal").size();
    QVERIFY(written > 0);
    {
        const FileSizeLimit fullDisk(written);
        const LogCapture log;

        QVERIFY(!m_store->services.checkout.completeCheckout(session, {}, 0));

        QVERIFY(!log.lines().filter("[checkout] ").isEmpty());
    }
    QCOMPARE(dumpOf(m_store->database), before);

    // Once there is room again, the very same bill can be paid.
    QVERIFY(m_store->services.checkout.completeCheckout(session, {}, 0));
    QCOMPARE(m_store->text("SELECT status FROM order_sessions"), QStringLiteral("paid"));
    QCOMPARE(m_store->text("PRAGMA main.integrity_check"), QStringLiteral("ok"));
}

void tst_BadInput::aFileThatIsNoStoreIsNeitherOpenedNorRestored_data()
{
    QTest::addColumn<std::function<void(const QString &)>>("make");
    const auto row = [](const char *name, const std::function<void(const QString &)> &make) {
        QTest::newRow(name) << make;
    };
    const auto cut = [](const std::function<qint64(qint64)> &size) {
        return [size](const QString &path) {
            QVERIFY(DatabaseManager::checkpointWal());
            QVERIFY(QFile::copy(DatabaseManager::connection().databaseName(), path));
            QVERIFY(QFile::resize(path, size(QFileInfo(path).size())));
        };
    };
    row("text", DatabaseFiles::makeText);
    row("another program's", DatabaseFiles::makeForeign);
    row("nothing in it", [](const QString &path) { QVERIFY(QFile(path).open(QFile::WriteOnly)); });
    row("no table in it", [](const QString &path) { DatabaseFiles::run(path, "VACUUM"); });
    row("cut within its head", cut([](qint64) { return 60; }));
    row("cut after its first page", cut([](qint64) { return 4096; }));
    row("cut in the middle", cut([](qint64 size) { return size / 2; }));
    row("without its last page", cut([](qint64 size) { return size - 4096; }));
}

void tst_BadInput::aFileThatIsNoStoreIsNeitherOpenedNorRestored()
{
    QFETCH(std::function<void(const QString &)>, make);
    const QTemporaryDir folder;
    const QString path = folder.filePath("Picked.db");
    make(path);
    const auto content = [&path] {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    };
    const QByteArray before = content();
    const LogCapture log;

    QVERIFY(!m_store->services.databaseMaintenance.openDatabase(path));
    QVERIFY(!m_store->services.databaseMaintenance.restoreDatabase(path));

    QVERIFY(log.lines().contains("warning [database] Database is not a Zelvan database."));
    QVERIFY(log.lines().contains("warning [database] Database is not a Zelvan Database"));
    QVERIFY(!QSettings().contains("database/path"));
    QVERIFY(!QSettings().contains("database/pendingRestore"));
    QCOMPARE(content(), before);
}

ZELVAN_TEST(tst_BadInput)
#include "tst_badinput.moc"
