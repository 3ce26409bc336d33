// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/DatabaseFileTest.h"

#include "core/DatabaseManager.h"

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
