// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/SettingsStore.h"
#include "support/FullSettingsDisk.h"
#include "support/ZelvanTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

class tst_SettingsStore : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();

    void aStoredTextIsReadBySettings();
    void changesAtOnceAreEachSeen();
    void aNullTextTakesTheKeyAway();
    void anEmptyTextStays();
    void whatElseIsStoredStays();
    void onAFullDiskTheStoreStaysAsItWas();
    void whereTheFolderCannotBeMadeNothingIsStored();
    void aLinkedStoreStaysALink();
    void theStoreIsForItsUserAlone();
    void whatAPowerCutLeftOfADraftIsNotWaitedFor();
};

void tst_SettingsStore::init()
{
    ZelvanTest::init();
    const QString folder = QFileInfo(QSettings().fileName()).absolutePath();
    QSettings().clear();
    QDir(folder).removeRecursively();
    QFile::remove(folder);
}

void tst_SettingsStore::aStoredTextIsReadBySettings()
{
    const QString text = QString::fromUtf8("/home/Alice's/餐厅;a=b,\"100%20\".db");

    QVERIFY(SettingsStore::store({{"database/path", text}}));

    QCOMPARE(QSettings().value("database/path").toString(), text);
}

void tst_SettingsStore::changesAtOnceAreEachSeen()
{
    for (int number = 100; number < 150; ++number) {
        const QString text = QString::number(number);

        QVERIFY(SettingsStore::store({{"database/path", text}}));

        QCOMPARE(QSettings().value("database/path").toString(), text);
    }
}

void tst_SettingsStore::aNullTextTakesTheKeyAway()
{
    QVERIFY(SettingsStore::store({{"a/key", "text"}, {"b/key", "text"}}));

    QVERIFY(SettingsStore::store({{"a/key", QString()}, {"b/key", "other"}}));

    QVERIFY(!QSettings().contains("a/key"));
    QCOMPARE(QSettings().value("b/key").toString(), QStringLiteral("other"));
}

void tst_SettingsStore::anEmptyTextStays()
{
    QVERIFY(SettingsStore::store({{"a/key", ""}}));

    QVERIFY(QSettings().contains("a/key"));
}

void tst_SettingsStore::whatElseIsStoredStays()
{
    QSettings().setValue("window/size", 17);

    QVERIFY(SettingsStore::store({{"a/key", "text"}}));

    QCOMPARE(QSettings().value("window/size").toInt(), 17);
}

void tst_SettingsStore::onAFullDiskTheStoreStaysAsItWas()
{
    QVERIFY(SettingsStore::store({{"database/path", "/old.db"}}));
    {
        const FullSettingsDisk full;
        const QByteArray before = FullSettingsDisk::stored();

        QVERIFY(!SettingsStore::store({{"database/path", "/a/much/longer/path/to/new.db"}}));

        QCOMPARE(FullSettingsDisk::stored(), before);
        QCOMPARE(QSettings().value("database/path").toString(), QStringLiteral("/old.db"));
        QCOMPARE(FullSettingsDisk::leftovers(), QStringList());
    }
    QVERIFY(SettingsStore::store({{"database/path", "/new.db"}}));
    QCOMPARE(QSettings().value("database/path").toString(), QStringLiteral("/new.db"));
}

void tst_SettingsStore::whereTheFolderCannotBeMadeNothingIsStored()
{
    QFile inTheWay(QFileInfo(QSettings().fileName()).absolutePath());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));

    QVERIFY(!SettingsStore::store({{"a/key", "text"}}));
}

void tst_SettingsStore::aLinkedStoreStaysALink()
{
    const QString store = QSettings().fileName();
    const QString elsewhere = QDir::tempPath() + "/elsewhere.conf";
    QVERIFY(SettingsStore::store({{"a/key", "text"}}));
    QVERIFY(QFile::rename(store, elsewhere) && QFile::link(elsewhere, store));

    QVERIFY(SettingsStore::store({{"a/key", "other"}}));

    QVERIFY(QFileInfo(store).isSymLink());
    QCOMPARE(QSettings().value("a/key").toString(), QStringLiteral("other"));
    QVERIFY(QFile::remove(elsewhere));
}

void tst_SettingsStore::theStoreIsForItsUserAlone()
{
    QVERIFY(SettingsStore::store({{"a/key", "text"}}));

    const QFileInfo store(QSettings().fileName());
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!(store.permissions() & others));
    QVERIFY(!(QFileInfo(store.absolutePath()).permissions() & others));
}

void tst_SettingsStore::whatAPowerCutLeftOfADraftIsNotWaitedFor()
{
    constexpr int anyDraft = 200;
    const QString store = QSettings().fileName();
    QVERIFY(QDir().mkpath(QFileInfo(store).absolutePath()));
    for (int number = 1; number <= anyDraft; ++number) {
        for (const char *ending : {"", ".lock"}) {
            QFile left(QStringLiteral("%1.new%2%3").arg(store).arg(number).arg(ending));
            QVERIFY(left.open(QIODevice::WriteOnly));
        }
    }
    QElapsedTimer clock;
    clock.start();

    QVERIFY(SettingsStore::store({{"a/key", "text"}}));

    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(QSettings().value("a/key").toString(), QStringLiteral("text"));
}

ZELVAN_TEST(tst_SettingsStore)
#include "tst_settingsstore.moc"
