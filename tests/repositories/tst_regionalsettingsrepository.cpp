// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/RegionalSettingsRepository.h"
#include "support/LogRecorder.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    RegionalSettingsRepository repository{db.handle()};
};

RegionalSettings first()
{
    RegionalSettings settings;
    settings.locale = QStringLiteral("zh_CN");
    settings.currency_code = QStringLiteral("CNY");
    return settings;
}

RegionalSettings second()
{
    RegionalSettings settings;
    settings.locale = QStringLiteral("en_US");
    settings.currency_code = QStringLiteral("EUR");
    return settings;
}
} // namespace

class tst_RegionalSettingsRepository : public ZelvanTest
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

void tst_RegionalSettingsRepository::anEmptyTableYieldsNothing()
{
    Fixture f;

    QVERIFY(!f.repository.fetch().has_value());
}

void tst_RegionalSettingsRepository::aSavedRowIsReadBackWhole()
{
    Fixture f;

    f.repository.save(first());

    const std::optional<RegionalSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->locale, QStringLiteral("zh_CN"));
    QCOMPARE(found->currency_code, QStringLiteral("CNY"));
}

void tst_RegionalSettingsRepository::aSecondSaveReplacesTheFirst()
{
    Fixture f;
    f.repository.save(first());

    f.repository.save(second());

    const std::optional<RegionalSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->locale, QStringLiteral("en_US"));
    QCOMPARE(found->currency_code, QStringLiteral("EUR"));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM regional_settings")).toInt(), 1);
}

void tst_RegionalSettingsRepository::theRowIsNumberOneWhateverTheRecordSays()
{
    Fixture f;
    RegionalSettings settings = first();
    settings.id = 5;

    f.repository.save(settings);

    QCOMPARE(f.db.value(QStringLiteral("SELECT id FROM regional_settings")).toInt(), 1);
}

void tst_RegionalSettingsRepository::savingMovesNoTimeStamp()
{
    Fixture f;
    f.repository.save(first());
    f.db.run(
        QStringLiteral("UPDATE regional_settings SET created_at = '2001', updated_at = '2001'"));

    f.repository.save(second());

    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM regional_settings WHERE created_at = "
                                       "'2001' AND updated_at = '2001'"))
                 .toInt(),
             1);
}

void tst_RegionalSettingsRepository::everyFailureIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE regional_settings"));

    QCOMPARE(logOf([&] { f.repository.save(first()); }),
             QStringLiteral("warning [database] Failed to save regional setting: <error text>"));
    QCOMPARE(logOf([&] { QVERIFY(!f.repository.fetch().has_value()); }),
             QStringLiteral("warning [database] Failed to fetch regional setting: <error text>"));
}

ZELVAN_TEST(tst_RegionalSettingsRepository)
#include "tst_regionalsettingsrepository.moc"
