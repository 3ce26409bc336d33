// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TableSettingsRepository.h"
#include "support/LogRecorder.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    TableSettingsRepository repository{db.handle()};
};

TableSettings first()
{
    TableSettings settings;
    settings.layout_mode = QStringLiteral("floor_plan");
    return settings;
}

TableSettings second()
{
    TableSettings settings;
    settings.layout_mode = QStringLiteral("simple");
    return settings;
}
} // namespace

class tst_TableSettingsRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anEmptyTableYieldsNothing();
    void aSavedRowIsReadBackWhole();
    void aSecondSaveReplacesTheFirst();
    void theRowIsNumberOneWhateverTheRecordSays();
    void savingMovesNoTimeStamp();
    void everyFailureIsLogged();
};

void tst_TableSettingsRepository::anEmptyTableYieldsNothing()
{
    Fixture f;

    QVERIFY(!f.repository.fetch().has_value());
}

void tst_TableSettingsRepository::aSavedRowIsReadBackWhole()
{
    Fixture f;

    f.repository.save(first());

    const std::optional<TableSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->layout_mode, QStringLiteral("floor_plan"));
}

void tst_TableSettingsRepository::aSecondSaveReplacesTheFirst()
{
    Fixture f;
    f.repository.save(first());

    f.repository.save(second());

    const std::optional<TableSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->layout_mode, QStringLiteral("simple"));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM table_settings")).toInt(), 1);
}

void tst_TableSettingsRepository::theRowIsNumberOneWhateverTheRecordSays()
{
    Fixture f;
    TableSettings settings = first();
    settings.id = 5;

    f.repository.save(settings);

    QCOMPARE(f.db.value(QStringLiteral("SELECT id FROM table_settings")).toInt(), 1);
}

void tst_TableSettingsRepository::savingMovesNoTimeStamp()
{
    Fixture f;
    f.repository.save(first());
    f.db.run(QStringLiteral("UPDATE table_settings SET created_at = '2001', updated_at = '2001'"));

    f.repository.save(second());

    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM table_settings WHERE created_at = "
                                       "'2001' AND updated_at = '2001'"))
                 .toInt(),
             1);
}

void tst_TableSettingsRepository::everyFailureIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE table_settings"));

    QCOMPARE(logOf([&] { f.repository.save(first()); }),
             QStringLiteral("warning [database] Failed to save table_settings: <error text>"));
    QCOMPARE(logOf([&] { QVERIFY(!f.repository.fetch().has_value()); }),
             QStringLiteral("warning [database] Failed to fetch table_settings: <error text>"));
}

ZELVAN_TEST(tst_TableSettingsRepository)
#include "tst_tablesettingsrepository.moc"
