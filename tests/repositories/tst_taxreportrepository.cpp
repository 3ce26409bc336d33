// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TaxReportRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    Fixture() { db.run(QStringLiteral("INSERT INTO tables (table_name) VALUES ('T1')")); }

    /// A session of 1000 + 60 - 10 cents; answers its id.
    int sale(const QString &closedAt, const QString &status = QStringLiteral("paid"))
    {
        return db.insert(QStringLiteral("INSERT INTO order_sessions (display_number, order_type, "
                                        "status, subtotal, tax, discount, total, closed_at) VALUES "
                                        "(1, 'takeaway', '%1', 1000, 60, 10, 1050, %2)")
                             .arg(status, closedAt));
    }

    void snapshot(int sessionId, const QString &taxName, int rate, const QString &createdAt)
    {
        db.run(QStringLiteral("INSERT INTO receipt_snapshot (order_session_id, tax_name, tax_rate, "
                              "tax_registration_number, created_at) VALUES (%1, '%2', %3, 'R-%3', "
                              "'%4')")
                   .arg(QString::number(sessionId), taxName, QString::number(rate), createdAt));
    }

    TestDatabase db;
    TaxReportRepository reports{db.handle()};
};

const QDate fourth(2026, 3, 4);
const QDate fifth(2026, 3, 5);
} // namespace

class tst_TaxReportRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anEmptyPeriodIsAllZeroesWithoutATaxName();
    void theSumsCoverThePeriodWithBothEnds();
    void unpaidAndUnclosedSessionsAreLeftOut();
    void theTaxIsThatOfTheLatestSaleOfThePeriod();
    void theDiscountDoesNotReduceTheTax();
    void daysAreBrokenDownAscending();
    void sessionsComeLatestFirstWithTheirTable();
    void missingTextsReadAsEmptyOnes();
    void everyFailureIsLogged();
};

void tst_TaxReportRepository::anEmptyPeriodIsAllZeroesWithoutATaxName()
{
    Fixture f;

    const TaxSummary summary = f.reports.getSummary(fourth, fifth);

    QCOMPARE(summary.from, fourth);
    QCOMPARE(summary.to, fifth);
    QCOMPARE(summary.transaction_count, 0);
    QCOMPARE(summary.subtotal, 0.0);
    QCOMPARE(summary.tax_collected, 0.0);
    QCOMPARE(summary.discount, 0.0);
    QCOMPARE(summary.total_sales, 0.0);
    QCOMPARE(summary.tax_name, QString());
    QCOMPARE(summary.tax_rate, 0);
    QCOMPARE(summary.tax_registration_number, QString());
    QVERIFY(f.reports.getDailyBreakdown(fourth, fifth).isEmpty());
    QVERIFY(f.reports.getSessions(fourth, fifth).isEmpty());
}

void tst_TaxReportRepository::theSumsCoverThePeriodWithBothEnds()
{
    Fixture f;
    f.sale(QStringLiteral("'2026-03-03 23:59:59'"));
    f.sale(QStringLiteral("'2026-03-04 00:00:00'"));
    f.sale(QStringLiteral("'2026-03-05 23:59:59'"));
    f.sale(QStringLiteral("'2026-03-06 00:00:00'"));

    const TaxSummary both = f.reports.getSummary(fourth, fifth);
    const TaxSummary one = f.reports.getSummary(fourth, fourth);
    const TaxSummary reversed = f.reports.getSummary(fifth, fourth);

    QCOMPARE(both.transaction_count, 2);
    QCOMPARE(both.subtotal, 2000.0);
    QCOMPARE(both.tax_collected, 120.0);
    QCOMPARE(both.discount, 20.0);
    QCOMPARE(both.total_sales, 2100.0);
    QCOMPARE(one.transaction_count, 1);
    QCOMPARE(reversed.transaction_count, 0);
}

void tst_TaxReportRepository::unpaidAndUnclosedSessionsAreLeftOut()
{
    Fixture f;
    f.sale(QStringLiteral("'2026-03-04 10:00:00'"), QStringLiteral("open"));
    f.sale(QStringLiteral("NULL"));

    QCOMPARE(f.reports.getSummary(fourth, fifth).transaction_count, 0);
    QVERIFY(f.reports.getDailyBreakdown(fourth, fifth).isEmpty());
    QVERIFY(f.reports.getSessions(fourth, fifth).isEmpty());
}

void tst_TaxReportRepository::theTaxIsThatOfTheLatestSaleOfThePeriod()
{
    Fixture f;
    const int early = f.sale(QStringLiteral("'2026-03-04 10:00:00'"));
    const int late = f.sale(QStringLiteral("'2026-03-05 10:00:00'"));
    const int after = f.sale(QStringLiteral("'2026-03-06 10:00:00'"));
    f.snapshot(late, QStringLiteral("GST"), 600, QStringLiteral("2026-03-05 10:00:00"));
    f.snapshot(early, QStringLiteral("VAT"), 500, QStringLiteral("2026-03-04 10:00:00"));
    f.snapshot(after, QStringLiteral("Other"), 700, QStringLiteral("2026-03-06 10:00:00"));

    const TaxSummary summary = f.reports.getSummary(fourth, fifth);

    QCOMPARE(summary.tax_name, QStringLiteral("GST"));
    QCOMPARE(summary.tax_rate, 600);
    QCOMPARE(summary.tax_registration_number, QStringLiteral("R-600"));
    // The sums cover all sales, whatever their rate was.
    QCOMPARE(summary.tax_collected, 120.0);
}

void tst_TaxReportRepository::theDiscountDoesNotReduceTheTax()
{
    Fixture f;
    f.sale(QStringLiteral("'2026-03-04 10:00:00'"));

    const TaxSummary summary = f.reports.getSummary(fourth, fourth);

    QCOMPARE(summary.discount, 10.0);
    QCOMPARE(summary.tax_collected, 60.0);
}

void tst_TaxReportRepository::daysAreBrokenDownAscending()
{
    Fixture f;
    f.sale(QStringLiteral("'2026-03-05 10:00:00'"));
    f.sale(QStringLiteral("'2026-03-04 10:00:00'"));
    f.sale(QStringLiteral("'2026-03-04 23:30:00'"));

    const QList<TaxDailyRow> days = f.reports.getDailyBreakdown(fourth, fifth);

    QCOMPARE(days.size(), 2);
    QCOMPARE(days.at(0).day, QStringLiteral("2026-03-04"));
    QCOMPARE(days.at(0).transaction_count, 2);
    QCOMPARE(days.at(0).subtotal, 2000.0);
    QCOMPARE(days.at(0).tax_collected, 120.0);
    QCOMPARE(days.at(0).discount, 20.0);
    QCOMPARE(days.at(0).total_sales, 2100.0);
    QCOMPARE(days.at(1).day, QStringLiteral("2026-03-05"));
    QCOMPARE(days.at(1).transaction_count, 1);
}

void tst_TaxReportRepository::sessionsComeLatestFirstWithTheirTable()
{
    Fixture f;
    const int early = f.sale(QStringLiteral("'2026-03-04 10:00:00'"));
    const int late = f.sale(QStringLiteral("'2026-03-05 10:00:00'"));
    f.db.run(QStringLiteral("UPDATE order_sessions SET table_id = 1, receipt_number = '2026-7', "
                            "order_type = 'dine_in' WHERE id = %1")
                 .arg(early));

    const QList<TaxSessionRow> sessions = f.reports.getSessions(fourth, fifth);

    QCOMPARE(sessions.size(), 2);
    QCOMPARE(sessions.at(0).id, late);
    QCOMPARE(sessions.at(1).id, early);
    QCOMPARE(sessions.at(1).receipt_number, QStringLiteral("2026-7"));
    QCOMPARE(sessions.at(1).order_type, QStringLiteral("dine_in"));
    QCOMPARE(sessions.at(1).table_name, QStringLiteral("T1"));
    QCOMPARE(sessions.at(1).subtotal, 1000.0);
    QCOMPARE(sessions.at(1).tax, 60.0);
    QCOMPARE(sessions.at(1).discount, 10.0);
    QCOMPARE(sessions.at(1).total, 1050.0);
    QCOMPARE(sessions.at(1).closed_at, QStringLiteral("2026-03-04 10:00:00"));
}

void tst_TaxReportRepository::missingTextsReadAsEmptyOnes()
{
    Fixture f;
    f.sale(QStringLiteral("'2026-03-04 10:00:00'"));

    const TaxSessionRow row = f.reports.getSessions(fourth, fourth).constFirst();

    QCOMPARE(row.receipt_number, QString());
    QCOMPARE(row.table_name, QString());
}

void tst_TaxReportRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *operation) {
        return QStringLiteral("warning [default] TaxReportRepository::%1 failed: <QSqlError>")
            .arg(QLatin1String(operation));
    };
    f.sale(QStringLiteral("'2026-03-04 10:00:00'"));

    f.db.run(QStringLiteral("ALTER TABLE receipt_snapshot RENAME TO elsewhere"));
    QCOMPARE(logOf([&] { QCOMPARE(f.reports.getSummary(fourth, fifth).transaction_count, 1); }),
             line("getSummary"));
    f.db.run(QStringLiteral("ALTER TABLE order_sessions RENAME TO away"));
    QCOMPARE(logOf([&] { QCOMPARE(f.reports.getSummary(fourth, fifth).transaction_count, 0); }),
             line("getSummary"));
    QCOMPARE(logOf([&] { QVERIFY(f.reports.getDailyBreakdown(fourth, fifth).isEmpty()); }),
             line("getDailyBreakdown"));
    QCOMPARE(logOf([&] { QVERIFY(f.reports.getSessions(fourth, fifth).isEmpty()); }),
             line("getSessions"));
}

ZELVAN_TEST(tst_TaxReportRepository)
#include "tst_taxreportrepository.moc"
