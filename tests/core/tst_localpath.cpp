// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/LocalPath.h"
#include "support/ZelvanTest.h"

class tst_LocalPath : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aUrlBecomesTheLocalPathOfItsSystem_data();
    void aUrlBecomesTheLocalPathOfItsSystem();
};

void tst_LocalPath::aUrlBecomesTheLocalPathOfItsSystem_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<PathStyle>("style");
    QTest::addColumn<QString>("path");

    const auto unixRow = [](const char *name, const char *given, const char *path) {
        QTest::newRow(name) << QString::fromUtf8(given) << PathStyle::Unix
                            << QString::fromUtf8(path);
    };
    const auto windowsRow = [](const char *name, const char *given, const char *path) {
        QTest::newRow(name) << QString::fromUtf8(given) << PathStyle::Windows
                            << QString::fromUtf8(path);
    };
    unixRow("unix absolute", "file:///home/a/b", "/home/a/b");
    unixRow("unix blank", "file:///home/my%20data", "/home/my data");
    unixRow("unix hash", "file:///home/a%23b", "/home/a#b");
    unixRow("unix percent", "file:///home/100%25", "/home/100%");
    unixRow("unix apostrophe", "file:///home/Alice's", "/home/Alice's");
    unixRow("unix Chinese", "file:///home/%E9%A4%90%E5%8E%85", "/home/餐厅");
    unixRow("unix raw Chinese", "file:///home/餐厅", "/home/餐厅");
    unixRow("unix plain path", "/home/100%25", "/home/100%25");
    unixRow("unix looks like a drive", "file:///C:/x", "/C:/x");
    unixRow("empty", "", "");
    windowsRow("windows drive", "file:///C:/Users/a", "C:/Users/a");
    windowsRow("windows blank", "file:///C:/my%20data", "C:/my data");
    windowsRow("windows hash and percent", "file:///D:/a%23b/100%25", "D:/a#b/100%");
    windowsRow("windows apostrophe", "file:///C:/Alice's", "C:/Alice's");
    windowsRow("windows Chinese", "file:///C:/%E9%A4%90%E5%8E%85", "C:/餐厅");
    windowsRow("windows two slashes", "file://C:/x", "C:/x");
    windowsRow("windows share", "file://server/share/x", "//server/share/x");
    windowsRow("windows plain path", "C:/x%20y", "C:/x%20y");
}

void tst_LocalPath::aUrlBecomesTheLocalPathOfItsSystem()
{
    QFETCH(QString, given);
    QFETCH(PathStyle, style);
    QFETCH(QString, path);

    QCOMPARE(localPath(given, style), path);
}

ZELVAN_TEST(tst_LocalPath)
#include "tst_localpath.moc"
