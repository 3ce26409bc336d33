// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/AnalyticsRepository.h"
#include "services/AnalyticsService.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QDate>

#include <memory>

class tst_AnalyticsService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void withoutSalesEverythingIsZeroAndTheWeekHasSevenDays();
    void theDaysFiguresAreInUnits();
    void onlyTheFiveBestItemsAreListed();
    void openSessionsDoNotCount();
    void eachFailureLeavesItsEmptyValue();
    void anHourHasItsLabel_data();
    void anHourHasItsLabel();

private:
    /// A session paid in the UTC hour of today, with one line for every item named.
    void sell(int totalCents, int hour, const QMap<QString, int> &items = {});

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<AnalyticsRepository> m_analytics;
    std::unique_ptr<AnalyticsService> m_service;
};

void tst_AnalyticsService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_analytics = std::make_unique<AnalyticsRepository>(m_database->handle());
    m_service = std::make_unique<AnalyticsService>(m_analytics.get());
    m_database->run("INSERT INTO categories (category) VALUES ('Soups')");
    m_database->run("INSERT INTO menu (item, category_id, price, is_available, is_taxable) "
                    "VALUES ('Broth', 1, 500, 1, 1)");
}

void tst_AnalyticsService::cleanup()
{
    m_service.reset();
    m_analytics.reset();
    m_database.reset();
}

void tst_AnalyticsService::sell(int totalCents, int hour, const QMap<QString, int> &items)
{
    const int session = m_database->insert(
        QStringLiteral("INSERT INTO order_sessions (display_number, order_type, status, total, "
                       "closed_at) VALUES (1, 'takeaway', 'paid', %1, DATE('now') || ' %2:30:00')")
            .arg(totalCents)
            .arg(hour, 2, 10, QLatin1Char('0')));
    const int order = m_database->insert(
        QStringLiteral("INSERT INTO orders (order_session_id, display_number, status) "
                       "VALUES (%1, 1, 'served')")
            .arg(session));
    for (auto it = items.cbegin(); it != items.cend(); ++it) {
        m_database->run(QStringLiteral("INSERT INTO order_items (order_id, item_id, item_name, "
                                       "quantity, price, is_taxable, item_status) "
                                       "VALUES (%1, 1, '%2', %3, 500, 1, 'served')")
                            .arg(order)
                            .arg(it.key())
                            .arg(it.value()));
    }
}

void tst_AnalyticsService::withoutSalesEverythingIsZeroAndTheWeekHasSevenDays()
{
    const QDate today = QDate::currentDate();

    const QVariantMap snapshot = m_service->getSnapshot();

    QCOMPARE(snapshot.keys(), QStringList({"averageOrder", "itemsSold", "last7Days", "ordersToday",
                                           "revenueByHour", "revenueToday", "topItems"}));
    QCOMPARE(snapshot.value("revenueToday"), QVariant(0.0));
    QCOMPARE(snapshot.value("ordersToday"), QVariant(0));
    QCOMPARE(snapshot.value("averageOrder"), QVariant(0.0));
    QCOMPARE(snapshot.value("itemsSold"), QVariant(0));
    QVERIFY(snapshot.value("topItems").toList().isEmpty());
    QVERIFY(snapshot.value("revenueByHour").toList().isEmpty());
    const QVariantList week = snapshot.value("last7Days").toList();
    QCOMPARE(week.size(), 7);
    for (int day = 0; day < 7; ++day) {
        const QVariantMap expected{{"day", today.addDays(day - 6).toString("yyyy-MM-dd")},
                                   {"amount", 0.0}};
        QCOMPARE(week.at(day).toMap(), expected);
    }
}

void tst_AnalyticsService::theDaysFiguresAreInUnits()
{
    sell(1001, 14, {{"Broth", 2}});
    sell(500, 0, {{"Broth", 1}, {"Tea", 4}});

    const QVariantMap snapshot = m_service->getSnapshot();

    QCOMPARE(snapshot.value("revenueToday"), QVariant(15.01));
    QCOMPARE(snapshot.value("ordersToday"), QVariant(2));
    QCOMPARE(snapshot.value("averageOrder"), QVariant(7.505));
    QCOMPARE(snapshot.value("itemsSold"), QVariant(7));
    const QVariantList items{QVariantMap{{"name", "Tea"}, {"count", 4}},
                             QVariantMap{{"name", "Broth"}, {"count", 3}}};
    QCOMPARE(snapshot.value("topItems").toList(), items);
    const QVariantList hours{QVariantMap{{"hour", "12am-1am"}, {"amount", 5.0}},
                             QVariantMap{{"hour", "2pm-3pm"}, {"amount", 10.01}}};
    QCOMPARE(snapshot.value("revenueByHour").toList(), hours);
}

void tst_AnalyticsService::onlyTheFiveBestItemsAreListed()
{
    sell(100, 12, {{"a", 1}, {"b", 2}, {"c", 3}, {"d", 4}, {"e", 5}, {"f", 6}});

    const QVariantList items = m_service->getSnapshot().value("topItems").toList();

    QCOMPARE(items.size(), 5);
    QCOMPARE(items.constFirst().toMap().value("name").toString(), QStringLiteral("f"));
    QCOMPARE(items.constLast().toMap().value("name").toString(), QStringLiteral("b"));
}

void tst_AnalyticsService::openSessionsDoNotCount()
{
    sell(1000, 12, {{"Broth", 2}});
    m_database->run("UPDATE order_sessions SET status = 'open'");

    const QVariantMap snapshot = m_service->getSnapshot();

    QCOMPARE(snapshot.value("ordersToday"), QVariant(0));
    QCOMPARE(snapshot.value("itemsSold"), QVariant(0));
}

void tst_AnalyticsService::eachFailureLeavesItsEmptyValue()
{
    m_database->run("PRAGMA foreign_keys = OFF");
    m_database->run("DROP TABLE order_sessions");

    for (const char *operation :
         {"revenueToday", "ordersCountToday", "averageOrderToday", "itemsSoldToday",
          "topItemsToday", "revenueByHourToday", "revenueLastSevenDays"}) {
        expectLog(QtWarningMsg, QStringLiteral("AnalyticsRepository::%1 failed:").arg(operation));
    }
    const QVariantMap snapshot = m_service->getSnapshot();

    QCOMPARE(snapshot.value("revenueToday"), QVariant(0.0));
    QCOMPARE(snapshot.value("itemsSold"), QVariant(0));
}

void tst_AnalyticsService::anHourHasItsLabel_data()
{
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("label");

    QTest::newRow("midnight") << 0 << "12am-1am";
    QTest::newRow("one") << 1 << "1am-2am";
    QTest::newRow("eleven") << 11 << "11am-12am";
    QTest::newRow("noon") << 12 << "12pm-1pm";
    QTest::newRow("thirteen") << 13 << "1pm-2pm";
    QTest::newRow("twenty-three") << 23 << "11pm-12pm";
}

void tst_AnalyticsService::anHourHasItsLabel()
{
    QFETCH(int, hour);
    QFETCH(QString, label);

    QCOMPARE(AnalyticsService::hourLabel(hour), label);
}

ZELVAN_TEST(tst_AnalyticsService)
#include "tst_analyticsservice.moc"
