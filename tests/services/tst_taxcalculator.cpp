// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/TaxCalculator.h"
#include "support/ZelvanTest.h"

#include <limits>

class tst_TaxCalculator : public ZelvanTest
{
    Q_OBJECT

private slots:
    void taxIsCutTowardsZero_data();
    void taxIsCutTowardsZero();
    void taxSwitchedOffIsZeroWhateverTheRate();
};

void tst_TaxCalculator::taxIsCutTowardsZero_data()
{
    QTest::addColumn<qint64>("taxable");
    QTest::addColumn<int>("rate");
    QTest::addColumn<qint64>("tax");

    const qint64 most = std::numeric_limits<qint64>::max();
    const auto row = [](const char *name, qint64 taxable, int rate, qint64 tax) {
        QTest::newRow(name) << taxable << rate << tax;
    };
    row("119.94 is 119", 1999, 600, 119);
    row("119.9999 is 119", 11'999'99, 1, 119);
    row("exact", 2000, 600, 120);
    row("just below one cent", 99, 100, 0);
    row("one cent", 100, 100, 1);
    row("rate 0", 1999, 0, 0);
    row("nothing taxable", 0, 600, 0);
    row("whole price", 1999, 10'000, 1999);
    row("a refund is cut towards zero too", -1999, 600, -119);
    row("a negative rate", 1999, -600, -119);
    row("beyond 32 bits", 10'000'000'000, 825, 825'000'000);
    row("a product beyond 32 bits", 99'999'999, 9'999, 99'989'999);
    // 64-bit products wrap: (2^63 - 1) * 2 is -2.
    row("a wrapping product", most, 2, 0);
    row("a wrapping product that leaves something", most, 20'002, -2);
}

void tst_TaxCalculator::taxIsCutTowardsZero()
{
    QFETCH(qint64, taxable);
    QFETCH(int, rate);
    QFETCH(qint64, tax);

    QCOMPARE(TaxCalculator().calculateTax(taxable, rate, true), tax);
}

void tst_TaxCalculator::taxSwitchedOffIsZeroWhateverTheRate()
{
    QCOMPARE(TaxCalculator().calculateTax(1999, 600, false), qint64(0));
}

ZELVAN_TEST(tst_TaxCalculator)
#include "tst_taxcalculator.moc"
