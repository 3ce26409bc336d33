// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/AnalyticsRepository.h"

#include "support/ChildProcess.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QDate>

namespace {
struct Fixture
{
    Fixture()
    {
        db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('All')"));
        db.run(QStringLiteral("INSERT INTO menu (item, category_id, price, is_available, "
                              "is_taxable) VALUES ('Broth', 1, 100, 1, 1)"));
    }

    /// A session with one order, closed at an SQL expression; answers the order's id.
    int sale(const QString &closedAt, int totalCents,
             const QString &status = QStringLiteral("paid"))
    {
        const int session =
            db.insert(QStringLiteral("INSERT INTO order_sessions (display_number, order_type, "
                                     "status, total, closed_at) VALUES (1, 'takeaway', '%1', %2, "
                                     "%3)")
                          .arg(status, QString::number(totalCents), closedAt));
        return db.insert(QStringLiteral("INSERT INTO orders (order_session_id, display_number) "
                                        "VALUES (%1, 1)")
                             .arg(session));
    }

    void sold(int orderId, const QString &name, int quantity)
    {
        db.run(QStringLiteral("INSERT INTO order_items (order_id, item_id, item_name, quantity, "
                              "portion_size, is_taxable) VALUES (%1, 1, '%2', %3, 'p%3', 1)")
                   .arg(QString::number(orderId), name, QString::number(quantity)));
    }

    TestDatabase db;
    AnalyticsRepository analytics{db.handle()};
};

const QString today = QStringLiteral("DATETIME('now', 'start of day', '+9 hours')");
const QString lastSecondOfToday =
    QStringLiteral("DATETIME('now', 'start of day', '+86399 seconds')");
const QString yesterday = QStringLiteral("DATETIME('now', 'start of day', '-1 second')");

QString failure(const char *operation)
{
    return QStringLiteral("warning [database] AnalyticsRepository::%1 failed: <QSqlError>")
        .arg(QLatin1String(operation));
}
} // namespace

class tst_AnalyticsRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aDayWithoutSalesIsAllZeroes();
    void theDayIsTheUtcDay();
    void anUnpaidOrUnclosedSessionIsNoSale();
    void theAverageMayHaveFractions();
    void itemsAreGroupedByNameOnly();
    void onlyTheFiveBestItemsAreListed();
    void hoursWithSalesComeAscending();
    void theLastSevenDaysAreFilledUpWithZeroes();
    void localDaysAreWalkedOverSumsOfUtcDays_data();
    void localDaysAreWalkedOverSumsOfUtcDays();
    void everyFailureIsLogged();
};

void tst_AnalyticsRepository::aDayWithoutSalesIsAllZeroes()
{
    Fixture f;

    QCOMPARE(f.analytics.revenueToday(), 0.0);
    QCOMPARE(f.analytics.ordersCountToday(), 0);
    QCOMPARE(f.analytics.averageOrderToday(), 0.0);
    QCOMPARE(f.analytics.itemsSoldToday(), 0);
    QVERIFY(f.analytics.topItemsToday().isEmpty());
    QVERIFY(f.analytics.revenueByHourToday().isEmpty());
    const QList<DayRevenue> days = f.analytics.revenueLastSevenDays();
    QCOMPARE(days.size(), 7);
    for (const DayRevenue &day : days) {
        QCOMPARE(day.amount, 0.0);
    }
}

void tst_AnalyticsRepository::theDayIsTheUtcDay()
{
    Fixture f;
    f.sold(f.sale(lastSecondOfToday, 1000), QStringLiteral("Broth"), 2);
    f.sold(f.sale(yesterday, 77), QStringLiteral("Broth"), 50);

    QCOMPARE(f.analytics.revenueToday(), 1000.0);
    QCOMPARE(f.analytics.ordersCountToday(), 1);
    QCOMPARE(f.analytics.averageOrderToday(), 1000.0);
    QCOMPARE(f.analytics.itemsSoldToday(), 2);
    QCOMPARE(f.analytics.topItemsToday().at(0).quantity, 2);
    QCOMPARE(f.analytics.revenueByHourToday().size(), 1);
    QCOMPARE(f.analytics.revenueByHourToday().at(0).hour, 23);
    QCOMPARE(f.analytics.revenueByHourToday().at(0).amount, 1000.0);
}

void tst_AnalyticsRepository::anUnpaidOrUnclosedSessionIsNoSale()
{
    Fixture f;
    f.sold(f.sale(today, 1000, QStringLiteral("open")), QStringLiteral("Broth"), 1);
    f.sold(f.sale(QStringLiteral("NULL"), 1000), QStringLiteral("Broth"), 1);

    QCOMPARE(f.analytics.revenueToday(), 0.0);
    QCOMPARE(f.analytics.ordersCountToday(), 0);
    QCOMPARE(f.analytics.itemsSoldToday(), 0);
    QVERIFY(f.analytics.topItemsToday().isEmpty());
    QVERIFY(f.analytics.revenueByHourToday().isEmpty());
    QCOMPARE(f.analytics.revenueLastSevenDays().constLast().amount, 0.0);
}

void tst_AnalyticsRepository::theAverageMayHaveFractions()
{
    Fixture f;
    f.sale(today, 1000);
    f.sale(today, 1001);

    QCOMPARE(f.analytics.revenueToday(), 2001.0);
    QCOMPARE(f.analytics.ordersCountToday(), 2);
    QCOMPARE(f.analytics.averageOrderToday(), 1000.5);
}

void tst_AnalyticsRepository::itemsAreGroupedByNameOnly()
{
    Fixture f;
    const int order = f.sale(today, 1000);
    f.sold(order, QStringLiteral("Tea"), 4);
    f.sold(order, QStringLiteral("Broth"), 2);
    f.sold(order, QStringLiteral("Broth"), 3);

    const QList<TopItem> top = f.analytics.topItemsToday();

    QCOMPARE(top.size(), 2);
    QCOMPARE(top.at(0).name, QStringLiteral("Broth"));
    QCOMPARE(top.at(0).quantity, 5);
    QCOMPARE(top.at(1).name, QStringLiteral("Tea"));
    QCOMPARE(f.analytics.itemsSoldToday(), 9);
}

void tst_AnalyticsRepository::onlyTheFiveBestItemsAreListed()
{
    Fixture f;
    const int order = f.sale(today, 1000);
    for (int quantity = 1; quantity <= 6; ++quantity) {
        f.sold(order, QStringLiteral("dish %1").arg(quantity), quantity);
    }

    const QList<TopItem> top = f.analytics.topItemsToday();

    QCOMPARE(top.size(), 5);
    QCOMPARE(top.constFirst().name, QStringLiteral("dish 6"));
    QCOMPARE(top.constLast().name, QStringLiteral("dish 2"));
}

void tst_AnalyticsRepository::hoursWithSalesComeAscending()
{
    Fixture f;
    f.sale(today, 300);
    f.sale(QStringLiteral("DATETIME('now', 'start of day')"), 100);
    f.sale(today, 50);

    const QList<HourRevenue> hours = f.analytics.revenueByHourToday();

    QCOMPARE(hours.size(), 2);
    QCOMPARE(hours.at(0).hour, 0);
    QCOMPARE(hours.at(0).amount, 100.0);
    QCOMPARE(hours.at(1).hour, 9);
    QCOMPARE(hours.at(1).amount, 350.0);
}

void tst_AnalyticsRepository::theLastSevenDaysAreFilledUpWithZeroes()
{
    // Where local and UTC days are the same.
    if (movedTo("2026-11-20 12:00:00", "UTC")) {
        return;
    }
    Fixture f;
    const auto noonOf = [](int daysAgo) {
        return QStringLiteral("DATETIME('now', 'start of day', '-%1 days', '+12 hours')")
            .arg(daysAgo);
    };
    f.sale(noonOf(7), 7777);
    f.sale(noonOf(6), 600);
    f.sale(noonOf(1), 100);
    f.sale(noonOf(1), 11);

    const QList<DayRevenue> days = f.analytics.revenueLastSevenDays();

    const QDate last(2026, 11, 20);
    QCOMPARE(days.size(), 7);
    for (int index = 0; index < 7; ++index) {
        QCOMPARE(days.at(index).day, last.addDays(index - 6).toString(Qt::ISODate));
    }
    QCOMPARE(days.at(0).amount, 600.0);
    QCOMPARE(days.at(1).amount, 0.0);
    QCOMPARE(days.at(5).amount, 111.0);
    QCOMPARE(days.at(6).amount, 0.0);
}

void tst_AnalyticsRepository::localDaysAreWalkedOverSumsOfUtcDays_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("localTime");
    QTest::addColumn<QStringList>("lastDays");

    QTest::newRow("same day") << "Asia/Tokyo"
                              << "2026-03-05 12:00:00"
                              << QStringList({"2026-03-04 0", "2026-03-05 1000"});
    // East of UTC the sale of the first hours stands under yesterday.
    QTest::newRow("east after midnight")
        << "Asia/Tokyo"
        << "2026-03-05 00:30:00" << QStringList({"2026-03-04 1000", "2026-03-05 0"});
    // West of UTC the sale of the last hours stands under tomorrow, which is not listed.
    QTest::newRow("west before midnight")
        << "America/New_York"
        << "2026-03-04 22:00:00" << QStringList({"2026-03-03 0", "2026-03-04 0"});
}

void tst_AnalyticsRepository::localDaysAreWalkedOverSumsOfUtcDays()
{
    QFETCH(QString, zone);
    QFETCH(QString, localTime);
    QFETCH(QStringList, lastDays);
    if (movedTo(localTime, zone)) {
        return;
    }
    Fixture f;
    f.sale(QStringLiteral("CURRENT_TIMESTAMP"), 1000);

    const QList<DayRevenue> days = f.analytics.revenueLastSevenDays();

    QStringList told;
    for (const DayRevenue &day : days.mid(5)) {
        told.append(QStringLiteral("%1 %2").arg(day.day).arg(day.amount));
    }
    QCOMPARE(told, lastDays);
}

void tst_AnalyticsRepository::everyFailureIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("ALTER TABLE order_sessions RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QCOMPARE(f.analytics.revenueToday(), 0.0); }), failure("revenueToday"));
    QCOMPARE(logOf([&] { QCOMPARE(f.analytics.ordersCountToday(), 0); }),
             failure("ordersCountToday"));
    QCOMPARE(logOf([&] { QCOMPARE(f.analytics.averageOrderToday(), 0.0); }),
             failure("averageOrderToday"));
    QCOMPARE(logOf([&] { QCOMPARE(f.analytics.itemsSoldToday(), 0); }), failure("itemsSoldToday"));
    QCOMPARE(logOf([&] { QVERIFY(f.analytics.topItemsToday().isEmpty()); }),
             failure("topItemsToday"));
    QCOMPARE(logOf([&] { QVERIFY(f.analytics.revenueByHourToday().isEmpty()); }),
             failure("revenueByHourToday"));
    QCOMPARE(logOf([&] { QVERIFY(f.analytics.revenueLastSevenDays().isEmpty()); }),
             failure("revenueLastSevenDays"));
}

ZELVAN_TEST(tst_AnalyticsRepository)
#include "tst_analyticsrepository.moc"
