// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Translation.h"

#include "support/ChildProcess.h"
#include "support/ZelvanTest.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <cstdio>

namespace {
/// Prints the system's locale, whether a catalogue was installed for the language given, and a line
/// of a receipt.
int speakLanguage(const QStringList &arguments)
{
    QTranslator translator;
    const bool installed = installTranslation(translator, arguments.value(0));
    std::printf("%s %d %s", qPrintable(QLocale::system().name()), installed ? 1 : 0,
                QObject::tr("Total: %1").arg(QStringLiteral("12.50")).toUtf8().constData());
    return 0;
}
ZELVAN_TEST_CHILD(speakLanguage)
} // namespace

class tst_Translation : public ZelvanTest
{
    Q_OBJECT

private slots:
    void theStoresLanguageCountsOnAnySystem_data();
    void theStoresLanguageCountsOnAnySystem();
    void aTextIsFoundByItsScreen_data();
    void aTextIsFoundByItsScreen();
};

void tst_Translation::theStoresLanguageCountsOnAnySystem_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("spoken");

    const QString chinese = QStringLiteral("1 总计: 12.50");
    const QString english = QStringLiteral("0 Total: 12.50");
    for (const QString &system : {QStringLiteral("en_US"), QStringLiteral("zh_CN")}) {
        const auto row = [&system](const char *language, const QString &spoken) {
            QTest::addRow("%s on %s", language, qPrintable(system))
                << system << QString::fromLatin1(language) << spoken;
        };
        row("zh_CN", chinese);
        row("en_US", english);
        row("fr_FR", english);
    }
}

void tst_Translation::theStoresLanguageCountsOnAnySystem()
{
    QFETCH(QString, system);
    QFETCH(QString, language);
    QFETCH(QString, spoken);
    ChildProcess child(QStringLiteral("speakLanguage"), {language});
    child.setEnvironment(QStringLiteral("LC_ALL"), system + QStringLiteral(".UTF-8"));
    child.setEnvironment(QStringLiteral("LANGUAGE"), system);

    const ChildProcess::Result result = child.run();

    QCOMPARE(result.exitCode, 0);
    QCOMPARE(QString::fromUtf8(result.output), system + QLatin1Char(' ') + spoken);
}

void tst_Translation::aTextIsFoundByItsScreen_data()
{
    QTest::addColumn<QByteArray>("screen");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("translation");

    const auto row = [](const char *screen, const char *source, const char *translation) {
        QTest::addRow("%s: %s", screen, source)
            << QByteArray(screen) << QByteArray(source) << QString::fromUtf8(translation);
    };
    row("Checkout", "Checkout", "结账");
    row("Checkout", "Table ", "餐桌 ");
    row("AdminTaxReports", "Table", "桌号");
    row("AdminManagementSidebar", "Table", "餐桌");
    row("OrderEditor", "Takeaway", "打包");
    row("OrderTakingFloorPlan", " mins", " 分钟");
    row("ConfirmationDialog", "Are you sure?", "确定吗？");
    row("SetupDBLocation", "Browse", "浏览");
    row("QObject", "Balance After: %1", "Balance After: %1");
    row("DatePicker", "Today", "");
}

void tst_Translation::aTextIsFoundByItsScreen()
{
    QFETCH(QByteArray, screen);
    QFETCH(QByteArray, source);
    QFETCH(QString, translation);
    QTranslator translator;
    QVERIFY(installTranslation(translator, QStringLiteral("zh_CN")));

    QCOMPARE(translator.translate(screen.constData(), source.constData()), translation);
}

ZELVAN_TEST(tst_Translation)
#include "tst_translation.moc"
