// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/SettingsRowTest.h"

#include "support/LogCapture.h"
#include "support/TestDatabase.h"

void SettingsRowTest::anEmptyTableYieldsNothing()
{
    const TestDatabase db(TestDatabase::Content::Schema);

    QCOMPARE(fetched(db.handle()), QVariantList());
}

void SettingsRowTest::aSavedRowIsReadBackWhole()
{
    const TestDatabase db(TestDatabase::Content::Schema);

    save(db.handle(), Sample::First, 1);

    QCOMPARE(fetched(db.handle()), QVariantList{1} + fieldsOf(Sample::First));
}

void SettingsRowTest::aSecondSaveReplacesTheFirst()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    save(db.handle(), Sample::First, 1);

    save(db.handle(), Sample::Second, 1);

    QCOMPARE(fetched(db.handle()), QVariantList{1} + fieldsOf(Sample::Second));
    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM ") + m_table.name).toInt(), 1);
}

void SettingsRowTest::theRowIsNumberOneWhateverTheRecordSays()
{
    const TestDatabase db(TestDatabase::Content::Schema);

    save(db.handle(), Sample::First, 5);

    QCOMPARE(db.value(QStringLiteral("SELECT id FROM ") + m_table.name).toInt(), 1);
}

void SettingsRowTest::savingMovesNoTimeStamp()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    const QStringList stamps =
        db.value(QStringLiteral("SELECT group_concat(name) FROM pragma_table_info('%1') "
                                "WHERE name IN ('created_at', 'updated_at')")
                     .arg(m_table.name))
            .toString()
            .split(QLatin1Char(','));
    save(db.handle(), Sample::First, 1);
    for (const QString &stamp : stamps) {
        db.run(QStringLiteral("UPDATE %1 SET %2 = '2001'").arg(m_table.name, stamp));
    }

    save(db.handle(), Sample::Second, 1);

    QCOMPARE(stamps.first(), QStringLiteral("created_at"));
    for (const QString &stamp : stamps) {
        QCOMPARE(db.value(QStringLiteral("SELECT %1 FROM %2").arg(stamp, m_table.name)).toString(),
                 QStringLiteral("2001"));
    }
}

void SettingsRowTest::everyFailureIsLogged()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral("DROP TABLE ") + m_table.name);

    QCOMPARE(logOf([&] { save(db.handle(), Sample::First, 1); }), m_table.failedSave);
    QCOMPARE(logOf([&] { QCOMPARE(fetched(db.handle()), QVariantList()); }), m_table.failedFetch);
}
