// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/LocalPath.h"
#include "core/platform/Personalization.h"
#include "core/SystemTheme.h"
#include "core/Theme.h"
#include "support/ZelvanTest.h"

#include <QColor>
#include <QElapsedTimer>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>

#include <cstdio>

namespace {
/// What the desktop around this process asks for, and how many milliseconds it took to know.
int tellDarkMode(const QStringList &)
{
    QElapsedTimer timer;
    timer.start();
    const SystemTheme system;
    const qint64 taken = timer.elapsed();
    std::printf("%s %lld\n", system.darkMode() ? "dark" : "light", static_cast<long long>(taken));
    return 0;
}
} // namespace

ZELVAN_TEST_CHILD(tellDarkMode)

class tst_Theme : public ZelvanTest
{
    Q_OBJECT

private slots:
    void coloursFollowTheMode_data();
    void coloursFollowTheMode();
    void primaryAndErrorAreFunctionsOnly();
    void sizesAreCutNotRounded_data();
    void sizesAreCutNotRounded();
    void aNewScaleIsToldOnce();
    void aScaleThatIsAlmostTheSameCountsAsEqual();
    void aChangeOfTheDesktopIsPassedOn();
    void everyPropertyIsNotifiedByTheOneSignal();
    void aLightDesktopIsLight();
    void aWindowsIsDarkWhereItsUserSaysSo_data();
    void aWindowsIsDarkWhereItsUserSaysSo();
};

void tst_Theme::coloursFollowTheMode_data()
{
    QTest::addColumn<QString>("dark");
    QTest::addColumn<QString>("light");

    QTest::newRow("background") << "#121212"
                                << "#FFFFFF";
    QTest::newRow("surface") << "#1E1E1E"
                             << "#F5F5F5";
    QTest::newRow("border") << "#2A2A2A"
                            << "#DDDDDD";
    QTest::newRow("text") << "#FFFFFF"
                          << "#000000";
    QTest::newRow("secondaryText") << "#AAAAAA"
                                   << "#555555";
    QTest::newRow("orange") << "#FFB74D"
                            << "#F57C00";
    QTest::newRow("green") << "#66BB6A"
                           << "#2E7D32";
    QTest::newRow("primary") << "#9a7bff"
                             << "#9a7bff";
    QTest::newRow("error") << "#ff0000"
                           << "#ff0000";
}

void tst_Theme::coloursFollowTheMode()
{
    QFETCH(QString, dark);
    QFETCH(QString, light);
    const char *name = QTest::currentDataTag();
    for (const bool isDark : {true, false}) {
        SystemTheme system(isDark);
        Theme theme(&system);
        const QColor expected(isDark ? dark : light);

        QColor invoked;
        QVERIFY(QMetaObject::invokeMethod(&theme, name, Q_RETURN_ARG(QColor, invoked)));

        QCOMPARE(system.darkMode(), isDark);
        QCOMPARE(invoked, expected);
        if (theme.metaObject()->indexOfProperty(name) >= 0) {
            QCOMPARE(theme.property(name).value<QColor>(), expected);
        }
    }
}

void tst_Theme::primaryAndErrorAreFunctionsOnly()
{
    const QMetaObject &meta = Theme::staticMetaObject;

    QCOMPARE(meta.indexOfProperty("primary"), -1);
    QCOMPARE(meta.indexOfProperty("error"), -1);
    for (const char *name :
         {"background", "surface", "border", "text", "secondaryText", "orange", "green"}) {
        QVERIFY2(meta.indexOfProperty(name) >= 0, name);
        QVERIFY2(!meta.property(meta.indexOfProperty(name)).isWritable(), name);
    }
}

void tst_Theme::sizesAreCutNotRounded_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("atStart");

    QTest::newRow("fontSmall") << 12 << 14;
    QTest::newRow("fontNormal") << 14 << 16;
    QTest::newRow("fontMedium") << 16 << 19;
    QTest::newRow("fontLarge") << 18 << 21;
    QTest::newRow("fontXL") << 24 << 28;
    QTest::newRow("fontXXL") << 28 << 33;
}

void tst_Theme::sizesAreCutNotRounded()
{
    QFETCH(int, base);
    QFETCH(int, atStart);
    const char *name = QTest::currentDataTag();
    SystemTheme system(false);
    Theme theme(&system);

    QCOMPARE(theme.fontScale(), 1.2);
    QCOMPARE(theme.property(name).toInt(), atStart);
    theme.setFontScale(1.0);
    QCOMPARE(theme.property(name).toInt(), base);
    QVERIFY(!theme.metaObject()->property(theme.metaObject()->indexOfProperty(name)).isWritable());
}

void tst_Theme::aNewScaleIsToldOnce()
{
    SystemTheme system(false);
    Theme theme(&system);
    const QSignalSpy changed(&theme, &Theme::themeChanged);

    QVERIFY(theme.setProperty("fontScale", 1.0));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(theme.fontNormal(), 14);

    QVERIFY(theme.setProperty("fontScale", 1.0));
    QCOMPARE(changed.count(), 1);
}

void tst_Theme::aScaleThatIsAlmostTheSameCountsAsEqual()
{
    SystemTheme system(false);
    Theme theme(&system);
    const QSignalSpy changed(&theme, &Theme::themeChanged);

    theme.setFontScale(1.2 + 1e-13);
    QCOMPARE(changed.count(), 0);

    theme.setFontScale(1.2 + 1e-11);
    QCOMPARE(changed.count(), 1);
}

void tst_Theme::aChangeOfTheDesktopIsPassedOn()
{
    SystemTheme system(false);
    Theme theme(&system);
    connect(&system, &SystemTheme::darkModeChanged, &theme, &Theme::onSystemThemeChanged);
    const QSignalSpy changed(&theme, &Theme::themeChanged);

    emit system.darkModeChanged();

    QCOMPARE(changed.count(), 1);
}

void tst_Theme::everyPropertyIsNotifiedByTheOneSignal()
{
    const QMetaObject &meta = Theme::staticMetaObject;

    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        QCOMPARE(property.notifySignal().name(), QByteArray("themeChanged"));
    }
    const QMetaObject &system = SystemTheme::staticMetaObject;
    const QMetaProperty darkMode = system.property(system.indexOfProperty("darkMode"));
    QCOMPARE(darkMode.notifySignal().name(), QByteArray("darkModeChanged"));
    QVERIFY(!darkMode.isWritable());
}

void tst_Theme::aLightDesktopIsLight()
{
    // The desktop of the tests names no scheme and has a light palette.
    SystemTheme system;
    Theme theme(&system);

    QVERIFY(!system.darkMode());
    QCOMPARE(theme.background(), QColor(QStringLiteral("#FFFFFF")));
}

void tst_Theme::aWindowsIsDarkWhereItsUserSaysSo_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("dark");

    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("dark") << QVariant(0) << true;
    QTest::newRow("light") << QVariant(1) << false;
    QTest::newRow("another number") << QVariant(2) << false;
    QTest::newRow("no number") << QVariant("text") << true;
}

void tst_Theme::aWindowsIsDarkWhereItsUserSaysSo()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, dark);
    // The place that the system reads, where it has one; the same in a file elsewhere.
    QSettings personalization("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                              "Themes\\Personalize",
                              QSettings::NativeFormat);
    personalization.remove("AppsUseLightTheme");
    if (stored.isValid()) {
        personalization.setValue("AppsUseLightTheme", stored);
    }

    QCOMPARE(prefersDarkMode(personalization), dark);
    // Only a Windows asks it.
    QCOMPARE(SystemTheme().darkMode(), dark && nativePathStyle == PathStyle::Windows);
    personalization.clear();
}

ZELVAN_TEST(tst_Theme)
#include "tst_theme.moc"
