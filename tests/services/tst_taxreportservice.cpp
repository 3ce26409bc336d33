// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TaxReportRepository.h"
#include "services/TaxReportService.h"
#include "support/ChildProcess.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QDate>
#include <QMetaMethod>

#include <memory>

class tst_TaxReportService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itsSignaturesAreThoseTheScreensCall();
    void anEmptyPeriodIsAllZero();
    void theSummaryAddsUpAPeriodInCents();
    void theTaxIsThatOfTheLatestSale();
    void aSingleDayIncludesItsWholeDay();
    void theDiscountDoesNotReduceTheTax();
    void theBreakdownHasARowForEveryDayWithSales();
    void theSessionsComeLatestFirst();
    void aPresetCoversItsPeriod_data();
    void aPresetCoversItsPeriod();
    void aPresetGoesByTheLocalDay_data();
    void aPresetGoesByTheLocalDay();

private:
    /// A session with a subtotal of 10.00, a tax of 1.00 and a discount of 0.50.
    int sell(const QString &closedAt, const QString &receipt = "2026-1");

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<TaxReportRepository> m_reports;
    std::unique_ptr<TaxReportService> m_service;
};

void tst_TaxReportService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_reports = std::make_unique<TaxReportRepository>(m_database->handle());
    m_service = std::make_unique<TaxReportService>(m_reports.get());
}

void tst_TaxReportService::cleanup()
{
    m_service.reset();
    m_reports.reset();
    m_database.reset();
}

int tst_TaxReportService::sell(const QString &closedAt, const QString &receipt)
{
    return m_database->insert(
        QStringLiteral("INSERT INTO order_sessions (display_number, receipt_number, order_type, "
                       "status, subtotal, tax, discount, total, closed_at) "
                       "VALUES (1, '%1', 'takeaway', 'paid', 1000, 100, 50, 1050, '%2')")
            .arg(receipt, closedAt));
}

void tst_TaxReportService::itsSignaturesAreThoseTheScreensCall()
{
    const QMetaObject &meta = TaxReportService::staticMetaObject;
    for (const char *signature :
         {"getSummary(QDate,QDate)", "getDailyBreakdown(QDate,QDate)", "getSessions(QDate,QDate)",
          "getTodaySummary()", "getYesterdaySummary()", "getThisWeekSummary()",
          "getThisMonthSummary()", "getLastMonthSummary()"}) {
        QVERIFY2(meta.indexOfMethod(signature) >= 0, signature);
    }
}

void tst_TaxReportService::anEmptyPeriodIsAllZero()
{
    const QVariantMap expected{{"from", "2026-01-01"},  {"to", "2026-01-31"},
                               {"transactionCount", 0}, {"subtotal", 0.0},
                               {"taxCollected", 0.0},   {"discount", 0.0},
                               {"totalSales", 0.0},     {"taxName", ""},
                               {"taxRate", 0},          {"taxRegistrationNumber", ""}};
    QCOMPARE(m_service->getSummary(QDate(2026, 1, 1), QDate(2026, 1, 31)), expected);
    QVERIFY(m_service->getDailyBreakdown(QDate(2026, 1, 1), QDate(2026, 1, 31)).isEmpty());
    QVERIFY(m_service->getSessions(QDate(2026, 1, 1), QDate(2026, 1, 31)).isEmpty());
}

void tst_TaxReportService::theSummaryAddsUpAPeriodInCents()
{
    sell("2025-12-31 23:59:59");
    sell("2026-01-01 00:00:00");
    sell("2026-01-31 23:59:59");
    sell("2026-02-01 00:00:00");

    const QVariantMap summary = m_service->getSummary(QDate(2026, 1, 1), QDate(2026, 1, 31));

    QCOMPARE(summary.value("transactionCount"), QVariant(2));
    QCOMPARE(summary.value("subtotal"), QVariant(2000.0));
    QCOMPARE(summary.value("taxCollected"), QVariant(200.0));
    QCOMPARE(summary.value("discount"), QVariant(100.0));
    QCOMPARE(summary.value("totalSales"), QVariant(2100.0));
}

void tst_TaxReportService::theTaxIsThatOfTheLatestSale()
{
    const int first = sell("2026-01-01 10:00:00");
    const int second = sell("2026-01-02 10:00:00");
    m_database->run(
        QStringLiteral("INSERT INTO receipt_snapshot (order_session_id, tax_name, tax_rate, "
                       "tax_registration_number, created_at) VALUES "
                       "(%2, 'VAT', 825, 'R2', '2026-01-02 10:00:00'), "
                       "(%1, 'GST', 600, 'R1', '2026-01-01 10:00:00')")
            .arg(first)
            .arg(second));

    const QVariantMap summary = m_service->getSummary(QDate(2026, 1, 1), QDate(2026, 1, 2));

    QCOMPARE(summary.value("taxName"), QVariant("VAT"));
    QCOMPARE(summary.value("taxRate"), QVariant(825));
    QCOMPARE(summary.value("taxRegistrationNumber"), QVariant("R2"));
    QCOMPARE(summary.value("taxCollected"), QVariant(200.0));
}

void tst_TaxReportService::aSingleDayIncludesItsWholeDay()
{
    sell("2026-01-01 00:00:00");
    sell("2026-01-01 23:59:59");

    const QVariantMap summary = m_service->getSummary(QDate(2026, 1, 1), QDate(2026, 1, 1));

    QCOMPARE(summary.value("transactionCount"), QVariant(2));
}

void tst_TaxReportService::theDiscountDoesNotReduceTheTax()
{
    sell("2026-01-01 10:00:00");

    const QVariantMap summary = m_service->getSummary(QDate(2026, 1, 1), QDate(2026, 1, 1));

    QCOMPARE(summary.value("taxCollected"), QVariant(100.0));
    QCOMPARE(summary.value("discount"), QVariant(50.0));
}

void tst_TaxReportService::theBreakdownHasARowForEveryDayWithSales()
{
    sell("2026-01-03 10:00:00");
    sell("2026-01-01 10:00:00");
    sell("2026-01-01 11:00:00");

    const QVariantList days = m_service->getDailyBreakdown(QDate(2026, 1, 1), QDate(2026, 1, 31));

    QCOMPARE(days.size(), 2);
    const QVariantMap expected{{"date", "2026-01-01"}, {"transactionCount", 2},
                               {"subtotal", 2000.0},   {"taxCollected", 200.0},
                               {"discount", 100.0},    {"totalSales", 2100.0}};
    QCOMPARE(days.at(0).toMap(), expected);
    QCOMPARE(days.at(1).toMap().value("date"), QVariant("2026-01-03"));
}

void tst_TaxReportService::theSessionsComeLatestFirst()
{
    sell("2026-01-01 10:00:00", "2026-1");
    sell("2026-01-02 10:00:00", "2026-2");
    m_database->run("INSERT INTO tables (table_name, capacity, status) "
                    "VALUES ('A1', 4, 'available')");
    m_database->run("UPDATE order_sessions SET table_id = 1, order_type = 'dine_in' WHERE id = 2");

    const QVariantList sessions = m_service->getSessions(QDate(2026, 1, 1), QDate(2026, 1, 31));

    QCOMPARE(sessions.size(), 2);
    const QVariantMap expected{
        {"sessionId", 2},    {"receiptNumber", "2026-2"}, {"orderType", "dine_in"},
        {"tableName", "A1"}, {"subtotal", 1000.0},        {"tax", 100.0},
        {"discount", 50.0},  {"total", 1050.0},           {"closedAt", "2026-01-02 10:00:00"}};
    QCOMPARE(sessions.at(0).toMap(), expected);
    QCOMPARE(sessions.at(1).toMap().value("tableName"), QVariant(""));
}

void tst_TaxReportService::aPresetCoversItsPeriod_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");

    const QDate today = QDate::currentDate();
    QDate monday = today;
    while (monday.dayOfWeek() != Qt::Monday) {
        monday = monday.addDays(-1);
    }
    const QDate first(today.year(), today.month(), 1);
    const QDate endOfLastMonth = first.addDays(-1);
    const QDate startOfLastMonth(endOfLastMonth.year(), endOfLastMonth.month(), 1);

    QTest::newRow("today") << QByteArray("getTodaySummary") << today << today;
    QTest::newRow("yesterday") << QByteArray("getYesterdaySummary") << today.addDays(-1)
                               << today.addDays(-1);
    QTest::newRow("this week") << QByteArray("getThisWeekSummary") << monday << today;
    QTest::newRow("this month") << QByteArray("getThisMonthSummary") << first << today;
    QTest::newRow("last month") << QByteArray("getLastMonthSummary") << startOfLastMonth
                                << endOfLastMonth;
}

void tst_TaxReportService::aPresetCoversItsPeriod()
{
    QFETCH(QByteArray, operation);
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    QVariantMap summary;

    QVERIFY(QMetaObject::invokeMethod(m_service.get(), operation.constData(),
                                      Q_RETURN_ARG(QVariantMap, summary)));

    QCOMPARE(summary.value("from").toString(), from.toString(Qt::ISODate));
    QCOMPARE(summary.value("to").toString(), to.toString(Qt::ISODate));
    QCOMPARE(summary, m_service->getSummary(from, to));
}

void tst_TaxReportService::aPresetGoesByTheLocalDay_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QByteArray>("localTime");
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("period");

    const auto row = [](const char *name, const char *operation, const char *localTime,
                        const char *zone, const char *period) {
        QTest::newRow(name) << QByteArray(operation) << QByteArray(localTime) << QByteArray(zone)
                            << period;
    };
    // In Tokyo the UTC day is still the one before, in New York already the one after.
    row("today in the east", "getTodaySummary", "2026-03-05 00:30:00", "Asia/Tokyo",
        "2026-03-05 2026-03-05");
    row("today in the west", "getTodaySummary", "2026-03-04 22:00:00", "America/New_York",
        "2026-03-04 2026-03-04");
    row("yesterday over new year", "getYesterdaySummary", "2026-01-01 12:00:00", "UTC",
        "2025-12-31 2025-12-31");
    row("week of a Sunday", "getThisWeekSummary", "2026-03-08 12:00:00", "UTC",
        "2026-03-02 2026-03-08");
    row("week of a Monday", "getThisWeekSummary", "2026-03-09 12:00:00", "UTC",
        "2026-03-09 2026-03-09");
    row("month on its first day", "getThisMonthSummary", "2026-03-01 12:00:00", "UTC",
        "2026-03-01 2026-03-01");
    row("last month in January", "getLastMonthSummary", "2026-01-31 12:00:00", "UTC",
        "2025-12-01 2025-12-31");
    row("last month in March", "getLastMonthSummary", "2028-03-31 12:00:00", "UTC",
        "2028-02-01 2028-02-29");
}

void tst_TaxReportService::aPresetGoesByTheLocalDay()
{
    QFETCH(QByteArray, operation);
    QFETCH(QByteArray, localTime);
    QFETCH(QByteArray, zone);
    QFETCH(QString, period);
    if (movedTo(localTime.constData(), zone.constData())) {
        return;
    }
    QVariantMap summary;

    QVERIFY(QMetaObject::invokeMethod(m_service.get(), operation.constData(),
                                      Q_RETURN_ARG(QVariantMap, summary)));

    QCOMPARE(summary.value("from").toString() + ' ' + summary.value("to").toString(), period);
}

ZELVAN_TEST(tst_TaxReportService)
#include "tst_taxreportservice.moc"
