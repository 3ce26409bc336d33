// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/DisplayNumber.h"
#include "support/ZelvanTest.h"

#include <QSet>

#include <algorithm>
#include <limits>

class tst_DisplayNumber : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aNumberFollowsTheHighestOfTheDay_data();
    void aNumberFollowsTheHighestOfTheDay();
    void aDayStartsAnywhereInTheLowerHalf();
};

void tst_DisplayNumber::aNumberFollowsTheHighestOfTheDay_data()
{
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("next");

    QTest::newRow("the lowest start") << 4000 << 4001;
    QTest::newRow("the highest start") << 7999 << 8000;
    QTest::newRow("the last but one") << 9998 << 9999;
    QTest::newRow("9999 starts over") << 9999 << 4000;
    QTest::newRow("beyond the range, from an edited file") << 12'000 << 4000;
    QTest::newRow("the end of 32 bits") << std::numeric_limits<int>::max() << 4000;
    QTest::newRow("below the range, from an edited file") << 7 << 8;
}

void tst_DisplayNumber::aNumberFollowsTheHighestOfTheDay()
{
    QFETCH(int, highest);
    QFETCH(int, next);

    QCOMPARE(DisplayNumber::after(highest), next);
}

void tst_DisplayNumber::aDayStartsAnywhereInTheLowerHalf()
{
    QSet<int> starts;
    int lowest = std::numeric_limits<int>::max();
    int highest = 0;

    for (int draw = 0; draw < 20'000; ++draw) {
        const int start = DisplayNumber::after(0);
        starts.insert(start);
        lowest = std::min(lowest, start);
        highest = std::max(highest, start);
    }

    // So many draws miss these bounds less than once in 10^43 runs.
    QVERIFY2(lowest >= 4000 && lowest < 4020, qPrintable(QString::number(lowest)));
    QVERIFY2(highest <= 7999 && highest > 7979, qPrintable(QString::number(highest)));
    QVERIFY2(starts.size() > 3800, qPrintable(QString::number(starts.size())));
}

ZELVAN_TEST(tst_DisplayNumber)
#include "tst_displaynumber.moc"
