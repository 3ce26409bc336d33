// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/records/RegionalSettings.h"
#include "printing/PrintLayout.h"
#include "repositories/RegionalSettingsRepository.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QDateTime>

class tst_PrintLayout : public ZelvanTest
{
    Q_OBJECT

private slots:
    void paperHas32ColumnsAt58mmAnd48Otherwise_data();
    void paperHas32ColumnsAt58mmAnd48Otherwise();
    void aUnitBelow128CountsOneColumnAnyOtherTwo_data();
    void aUnitBelow128CountsOneColumnAnyOtherTwo();
    void aRowIsFilledWithBlanksAndKeepsOneAtLeast_data();
    void aRowIsFilledWithBlanksAndKeepsOneAtLeast();
    void theStoresLocaleIsReadAnew();
    void withoutARowOrANameTheDefaultLocaleStands();
    void amountsAreWrittenByTheLocale_data();
    void amountsAreWrittenByTheLocale();
    void datesAreShortAndTimesTheSameEverywhere_data();
    void datesAreShortAndTimesTheSameEverywhere();
};

void tst_PrintLayout::paperHas32ColumnsAt58mmAnd48Otherwise_data()
{
    QTest::addColumn<int>("paperWidth");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");

    QTest::newRow("58") << 58 << "58mm" << 32;
    QTest::newRow("80") << 80 << "80mm" << 48;
    QTest::newRow("76") << 76 << "76mm" << 48;
    QTest::newRow("1") << 1 << "1mm" << 48;
    QTest::newRow("0") << 0 << "58mm" << 32;
    QTest::newRow("-80") << -80 << "58mm" << 32;
}

void tst_PrintLayout::paperHas32ColumnsAt58mmAnd48Otherwise()
{
    QFETCH(int, paperWidth);
    QFETCH(QString, text);
    QFETCH(int, columns);

    QCOMPARE(PrintLayout::paperText(paperWidth), text);
    QCOMPARE(PrintLayout::lineWidth(paperWidth), columns);
    QCOMPARE(PrintLayout::dashes(columns).count(QLatin1Char('-')), columns);
}

void tst_PrintLayout::aUnitBelow128CountsOneColumnAnyOtherTwo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");

    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("ASCII") << QStringLiteral("Pho ~") << 5;
    QTest::newRow("127") << QString(QChar(127)) << 1;
    QTest::newRow("128") << QString(QChar(128)) << 2;
    QTest::newRow("accent") << QStringLiteral("é") << 2;
    QTest::newRow("Chinese") << QStringLiteral("麻婆豆腐") << 8;
    QTest::newRow("surrogate pair") << QStringLiteral("🍜") << 4;
}

void tst_PrintLayout::aUnitBelow128CountsOneColumnAnyOtherTwo()
{
    QFETCH(QString, text);
    QFETCH(int, columns);

    QCOMPARE(PrintLayout::columns(text), columns);
}

void tst_PrintLayout::aRowIsFilledWithBlanksAndKeepsOneAtLeast_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("row");

    QTest::newRow("filled") << "Tea"
                            << "2x" << 10 << "Tea     2x";
    QTest::newRow("one blank fits") << "Teapots"
                                    << "2x" << 10 << "Teapots 2x";
    QTest::newRow("no blank fits") << "Teapots!"
                                   << "2x" << 10 << "Teapots! 2x";
    QTest::newRow("too long") << "Teapots of tin"
                              << "2x" << 10 << "Teapots of tin 2x";
    QTest::newRow("Chinese") << QStringLiteral("茶") << "2x" << 10 << QStringLiteral("茶      2x");
    QTest::newRow("nothing") << ""
                             << "" << 4 << "    ";
}

void tst_PrintLayout::aRowIsFilledWithBlanksAndKeepsOneAtLeast()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(int, width);
    QFETCH(QString, row);

    QCOMPARE(PrintLayout::twoColumnRow(left, right, width), row);
}

void tst_PrintLayout::theStoresLocaleIsReadAnew()
{
    TestDatabase database;
    RegionalSettingsRepository settings(database.handle());

    settings.save({1, QStringLiteral("de_DE"), QStringLiteral("EUR")});
    QCOMPARE(PrintLayout::localeFor(settings).name(), QStringLiteral("de_DE"));

    settings.save({1, QStringLiteral("zh_CN"), QStringLiteral("CNY")});
    QCOMPARE(PrintLayout::localeFor(settings).name(), QStringLiteral("zh_CN"));
}

void tst_PrintLayout::withoutARowOrANameTheDefaultLocaleStands()
{
    TestDatabase database;
    RegionalSettingsRepository settings(database.handle());
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("fr_FR")));

    QCOMPARE(PrintLayout::localeFor(settings).name(), QStringLiteral("fr_FR"));
    settings.save({1, QString(), QStringLiteral("EUR")});
    QCOMPARE(PrintLayout::localeFor(settings).name(), QStringLiteral("fr_FR"));

    QLocale::setDefault(before);
}

void tst_PrintLayout::amountsAreWrittenByTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<double>("units");
    QTest::addColumn<QString>("text");

    QTest::newRow("US") << "en_US" << 1234.5 << "1,234.50";
    QTest::newRow("US millions") << "en_US" << 1234567.89 << "1,234,567.89";
    QTest::newRow("German") << "de_DE" << 1234.5 << "1.234,50";
    QTest::newRow("Chinese") << "zh_CN" << 1234.5 << "1,234.50";
    QTest::newRow("zero") << "en_US" << 0.0 << "0.00";
    QTest::newRow("negative") << "en_US" << -3.25 << "-3.25";
}

void tst_PrintLayout::amountsAreWrittenByTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(double, units);
    QFETCH(QString, text);

    QCOMPARE(PrintLayout::money(QLocale(locale), units), text);
}

void tst_PrintLayout::datesAreShortAndTimesTheSameEverywhere_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("date");

    QTest::newRow("US") << "en_US"
                        << "3/9/26";
    QTest::newRow("German") << "de_DE"
                            << "09.03.26";
    QTest::newRow("Chinese") << "zh_CN"
                             << "2026/3/9";
}

void tst_PrintLayout::datesAreShortAndTimesTheSameEverywhere()
{
    QFETCH(QString, locale);
    QFETCH(QString, date);
    const QDateTime local(QDate(2026, 3, 9), QTime(7, 5, 3));

    QCOMPARE(PrintLayout::shortDate(QLocale(locale), local), date);
    QCOMPARE(PrintLayout::timeOfDay(local), QStringLiteral("07:05:03"));
}

ZELVAN_TEST(tst_PrintLayout)
#include "tst_printlayout.moc"
