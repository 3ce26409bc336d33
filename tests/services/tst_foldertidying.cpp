// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/FolderTidying.h"
#include "support/DatabaseFiles.h"
#include "support/DatabaseFileTest.h"
#include "support/OddEntry.h"
#include "support/UnprivilegedUser.h"

#include <QFile>
#include <QTemporaryDir>

class tst_FolderTidying : public DatabaseFileTest
{
    Q_OBJECT

private slots:
    void foldersAloneAreNoFile();
    void anyKindOfEntryCounts_data();
    void anyKindOfEntryCounts();
    void aFolderThatIsNotThereCountsAsNotEmpty();
    void aFolderThatCannotBeReadCountsAsNotEmpty();
};

void tst_FolderTidying::foldersAloneAreNoFile()
{
    QDir().mkpath(inFolder("a/b/c"));
    QDir().mkpath(inFolder("a/.hidden folder"));

    QVERIFY(holdsNoFile(QDir(folder())));
}

void tst_FolderTidying::anyKindOfEntryCounts_data()
{
    QTest::addColumn<QString>("kind");

    for (const char *kind : {"file", "hidden file", "link to a file", "link to a folder",
                             "dangling link", "odd entry", "Chinese name"}) {
        QTest::newRow(kind) << kind;
    }
}

void tst_FolderTidying::anyKindOfEntryCounts()
{
    QFETCH(QString, kind);
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath("target");
    QDir().mkpath(inFolder("a/b"));

    if (kind == QLatin1String("link to a file")) {
        DatabaseFiles::makeText(target);
    } else if (kind == QLatin1String("link to a folder")) {
        QDir().mkpath(target);
    }
    if (kind.contains("link")) {
        QVERIFY(QFile::link(target, inFolder("a/b/entry")));
    } else if (kind == QLatin1String("odd entry")) {
        QVERIFY(makeOddEntry(inFolder("a/b/entry")));
    } else if (kind == QLatin1String("hidden file")) {
        DatabaseFiles::makeText(inFolder("a/b/.entry"));
    } else if (kind == QLatin1String("Chinese name")) {
        DatabaseFiles::makeText(inFolder(QString::fromUtf8("a/b/备份")));
    } else {
        DatabaseFiles::makeText(inFolder("a/b/entry"));
    }

    QVERIFY(!holdsNoFile(QDir(folder())));
}

void tst_FolderTidying::aFolderThatIsNotThereCountsAsNotEmpty()
{
    QVERIFY(!holdsNoFile(QDir(inFolder("gone"))));
}

void tst_FolderTidying::aFolderThatCannotBeReadCountsAsNotEmpty()
{
    const QString closedFolder = inFolder("a/closed");
    QDir().mkpath(closedFolder);
    QDir home(folder());
    for (int level = 0; level < 3; ++level) {
        UnprivilegedUser::setMode(home.absolutePath(), 0755);
        home.cdUp();
    }
    UnprivilegedUser::setMode(closedFolder, 0000);

    bool empty = true;
    bool emptyBesideIt = false;
    {
        const UnprivilegedUser nobody;
        empty = holdsNoFile(QDir(inFolder("a")));
    }
    UnprivilegedUser::setMode(closedFolder, 0755);
    {
        const UnprivilegedUser nobody;
        emptyBesideIt = holdsNoFile(QDir(inFolder("a")));
    }

    QVERIFY(!empty);
    QVERIFY(emptyBesideIt);
}

ZELVAN_TEST(tst_FolderTidying)
#include "tst_foldertidying.moc"
