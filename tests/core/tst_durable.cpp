// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Durable.h"
#include "support/FileSizeLimit.h"
#include "support/ZelvanTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

class tst_Durable : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();

    void aCopyHoldsAllOfIt_data();
    void aCopyHoldsAllOfIt();
    void aCopyNeverOverwrites();
    void aCopyOfNothingFails();
    void aCopyCutShortLeavesNothingAndSaysWhy();
    void whatAnEarlierCopyLeftBehindGoes();
    void foldersAreMadeWithAllAboveThem();
    void aFolderThatExistsIsEnough();
    void aFolderBelowAFileCannotBeMade();
    void aRenamedFileHasItsNewNameOnly();
    void aRenameNeverOverwrites();
    void whatIsMadeIsForItsUserAlone();

private:
    [[nodiscard]] QString in(const QString &name) const { return m_folder->filePath(name); }
    void make(const QString &name, const QByteArray &content) const;
    [[nodiscard]] QByteArray content(const QString &name) const;
    [[nodiscard]] QStringList names() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_Durable::init()
{
    ZelvanTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_Durable::make(const QString &name, const QByteArray &content) const
{
    QFile file(in(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray tst_Durable::content(const QString &name) const
{
    QFile file(in(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

QStringList tst_Durable::names() const
{
    return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void tst_Durable::aCopyHoldsAllOfIt_data()
{
    QTest::addColumn<int>("bytes");

    for (int bytes : {0, 1, (1 << 20) - 1, 1 << 20, (1 << 20) + 1, 5'000'000}) {
        QTest::addRow("%d", bytes) << bytes;
    }
}

void tst_Durable::aCopyHoldsAllOfIt()
{
    QFETCH(int, bytes);
    QByteArray all(bytes, 'x');
    for (int at = 0; at < bytes; at += 4099) {
        all[at] = char(at);
    }
    make("source", all);

    QVERIFY(Durable::copy(in("source"), in("target")));

    QVERIFY(content("target") == all);
    QVERIFY(content("source") == all);
    QCOMPARE(names(), QStringList({"source", "target"}));
}

void tst_Durable::aCopyNeverOverwrites()
{
    make("source", "new");
    make("target", "old");

    QVERIFY(!Durable::copy(in("source"), in("target")));

    QCOMPARE(content("target"), QByteArray("old"));
    QCOMPARE(names(), QStringList({"source", "target"}));
}

void tst_Durable::aCopyOfNothingFails()
{
    QVERIFY(!Durable::copy(in("source"), in("target")));

    QVERIFY(names().isEmpty());
}

void tst_Durable::aCopyCutShortLeavesNothingAndSaysWhy()
{
    make("source", QByteArray(3'000'000, 'x'));
    QString reason;
    {
        const FileSizeLimit fullDisk(2'500'000);
        QVERIFY(!Durable::copy(in("source"), in("target"), &reason));
    }

    QCOMPARE(reason, FileSizeLimit::reason());
    QCOMPARE(names(), QStringList("source"));
}

void tst_Durable::whatAnEarlierCopyLeftBehindGoes()
{
    make("source", "new");
    make("target.part", "a longer old content");

    QVERIFY(Durable::copy(in("source"), in("target")));

    QCOMPARE(content("target"), QByteArray("new"));
    QCOMPARE(names(), QStringList({"source", "target"}));
}

void tst_Durable::foldersAreMadeWithAllAboveThem()
{
    QVERIFY(Durable::makeFolder(in("a/b/../c/")));

    QVERIFY(QFileInfo(in("a/c")).isDir());
}

void tst_Durable::aFolderThatExistsIsEnough()
{
    QVERIFY(Durable::makeFolder(m_folder->path()));
    QVERIFY(Durable::makeFolder("/"));
}

void tst_Durable::aFolderBelowAFileCannotBeMade()
{
    make("file", "");

    QVERIFY(!Durable::makeFolder(in("file/a")));
    QVERIFY(!Durable::makeFolder(in("file")));
}

void tst_Durable::aRenamedFileHasItsNewNameOnly()
{
    make("old", "content");

    QVERIFY(Durable::rename(in("old"), in("new")));

    QCOMPARE(names(), QStringList("new"));
    QCOMPARE(content("new"), QByteArray("content"));
}

void tst_Durable::aRenameNeverOverwrites()
{
    make("old", "content");
    make("new", "other");
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QVERIFY(QFile::link(in("nowhere"), in("link")));

    QVERIFY(!Durable::rename(in("old"), in("new")));
    QVERIFY(!Durable::rename(in("old"), in("folder")));
    QVERIFY(!Durable::rename(in("old"), in("link")));

    QCOMPARE(content("old"), QByteArray("content"));
    QCOMPARE(content("new"), QByteArray("other"));
}

void tst_Durable::whatIsMadeIsForItsUserAlone()
{
    const QFile::Permissions mine =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    make("source", "content");
    QVERIFY(QFile::setPermissions(in("source"), mine | QFile::ReadGroup | QFile::ReadOther));

    QVERIFY(Durable::copy(in("source"), in("target")));
    QVERIFY(Durable::makeFolder(in("a/b")));

    QCOMPARE(QFileInfo(in("target")).permissions(), mine);
    for (const char *folder : {"a", "a/b"}) {
        QCOMPARE(QFileInfo(in(folder)).permissions(), mine | QFile::ExeOwner | QFile::ExeUser);
    }
}

ZELVAN_TEST(tst_Durable)
#include "tst_durable.moc"
