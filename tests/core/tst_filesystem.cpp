// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/FileSystem.h"
#include "support/ZelvanTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <memory>

class tst_FileSystem : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();

    void aFileIsTheSameInEverySpelling();
    void twoFilesAreNotTheSame();
    void whatIsNotThereIsNoFile();
    void aFolderIsTheSameToo();
    void aNewFileIsTheOneThatOthersOpen_data();
    void aNewFileIsTheOneThatOthersOpen();
    void aFileThatMayNotBeWrittenGoes();
    void aFolderIsNotRemovedAsAFile();
    void anOpenFileGoesOrStaysAsItWas();
    void aDiskBeginsWithItsRootAlone();

private:
    [[nodiscard]] QString in(const QString &name) const { return m_folder->filePath(name); }
    void make(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FileSystem::init()
{
    ZelvanTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_FileSystem::make(const QString &name) const
{
    QFile file(in(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("content") == 7);
}

void tst_FileSystem::aFileIsTheSameInEverySpelling()
{
    QVERIFY(QDir().mkpath(in("a b")));
    make("a b/Store.db");
    const QString path = in("a b/Store.db");
    int spellings = 0;
    for (const QString &other :
         {path, in("./a b/../a b/Store.db"), QDir::toNativeSeparators(path), path.toUpper(),
          in("A B/sTORE.DB"), path + ".", QDir(m_folder->path()).relativeFilePath(path)}) {
        // Which of them lead to it, the system says.
        if (QFileInfo::exists(other)) {
            QVERIFY2(FileSystem::isSameFile(path, other), qPrintable(other));
            QVERIFY2(FileSystem::isSameFile(other, path), qPrintable(other));
            ++spellings;
        }
    }
    QVERIFY(spellings >= 3);
}

void tst_FileSystem::twoFilesAreNotTheSame()
{
    make("a.db");
    make("b.db");

    QVERIFY(!FileSystem::isSameFile(in("a.db"), in("b.db")));
}

void tst_FileSystem::whatIsNotThereIsNoFile()
{
    make("a.db");

    QVERIFY(!FileSystem::isSameFile(in("a.db"), in("gone.db")));
    QVERIFY(!FileSystem::isSameFile(in("gone.db"), in("a.db")));
    QVERIFY(!FileSystem::isSameFile(in("gone.db"), in("gone.db")));
    QVERIFY(!FileSystem::isSameFile(QString(), QString()));
}

void tst_FileSystem::aFolderIsTheSameToo()
{
    QVERIFY(FileSystem::isSameFile(m_folder->path(), in(".")));
    QVERIFY(!FileSystem::isSameFile(m_folder->path(), in("..")));
}

void tst_FileSystem::aNewFileIsTheOneThatOthersOpen_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << "store.db";
    QTest::newRow("Chinese") << QString::fromUtf8("餐厅.db");
    QTest::newRow("a dot at its end") << "store.db.";
}

void tst_FileSystem::aNewFileIsTheOneThatOthersOpen()
{
    QFETCH(QString, name);

    QVERIFY(FileSystem::createPrivateFile(in(name)));

    QFile file(in(name));
    QVERIFY(file.exists());
    QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
    file.close();
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
    QVERIFY(FileSystem::syncFile(in(name)));
    QVERIFY(FileSystem::remove(in(name)));
    QVERIFY(!file.exists());
}

void tst_FileSystem::aFileThatMayNotBeWrittenGoes()
{
    make("a.db");
    QVERIFY(QFile::setPermissions(in("a.db"), QFile::ReadOwner | QFile::ReadUser));

    QVERIFY(FileSystem::remove(in("a.db")));

    QVERIFY(!QFile::exists(in("a.db")));
}

void tst_FileSystem::aFolderIsNotRemovedAsAFile()
{
    QVERIFY(QDir().mkpath(in("folder")));

    QVERIFY(!FileSystem::remove(in("folder")));
    QVERIFY(!FileSystem::remove(in("gone")));

    QVERIFY(QFileInfo(in("folder")).isDir());
}

void tst_FileSystem::anOpenFileGoesOrStaysAsItWas()
{
    make("a.db");
    QFile open(in("a.db"));
    QVERIFY(open.open(QIODevice::ReadOnly));

    const bool removed = FileSystem::remove(in("a.db"));

    QCOMPARE(QFile::exists(in("a.db")), !removed);
    QCOMPARE(open.readAll(), QByteArray("content"));
    open.close();
    QVERIFY(removed || FileSystem::remove(in("a.db")));
}

void tst_FileSystem::aDiskBeginsWithItsRootAlone()
{
    QVERIFY(FileSystem::isVolumeRoot(QDir::rootPath()));
    QVERIFY(!FileSystem::isVolumeRoot(m_folder->path()));
    QVERIFY(!FileSystem::isVolumeRoot(m_folder->path() + "/"));
}

ZELVAN_TEST(tst_FileSystem)
#include "tst_filesystem.moc"
