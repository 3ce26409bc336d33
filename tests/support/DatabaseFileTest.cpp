// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/DatabaseFileTest.h"

#include "core/DatabaseManager.h"
#include "support/DatabaseFiles.h"

#include <QDir>
#include <QSettings>

void DatabaseFileTest::init()
{
    ZelvanTest::init();
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
}

void DatabaseFileTest::cleanup()
{
    DatabaseManager::closeDatabase();
}

void DatabaseFileTest::addFolderNames()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << "data";
    QTest::newRow("apostrophe") << "Alice's";
    QTest::newRow("blank") << "my data";
    QTest::newRow("hash") << "a#b";
    QTest::newRow("percent") << "100%20 %1 %";
    QTest::newRow("Chinese") << QString::fromUtf8("餐厅");
}

void DatabaseFileTest::makeUnfitFiles() const
{
    QDir().mkpath(inFolder(QStringLiteral("folder")));
    DatabaseFiles::makeForeign(inFolder(QStringLiteral("foreign.db")));
    DatabaseFiles::makeText(inFolder(QStringLiteral("text.db")));
    DatabaseFiles::makeDamaged(inFolder(QStringLiteral("damaged.db")));
}

void DatabaseFileTest::expectRefusal(const QString &connectionLine, const QString &ownLine)
{
    if (!connectionLine.isEmpty()) {
        expectLog(QtWarningMsg, connectionLine);
    }
    expectLog(QtWarningMsg, ownLine);
}
