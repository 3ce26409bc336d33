// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TaxSettingsRepository.h"
#include "support/LogRecorder.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    TaxSettingsRepository repository{db.handle()};
};

TaxSettings first()
{
    TaxSettings settings;
    settings.enabled = true;
    settings.rate = 825;
    settings.registration_number = QStringLiteral("R-1");
    settings.name = QStringLiteral("VAT");
    return settings;
}

TaxSettings second()
{
    TaxSettings settings;
    settings.enabled = false;
    settings.rate = 600;
    settings.registration_number = QStringLiteral("R-2");
    settings.name = QStringLiteral("GST");
    return settings;
}
} // namespace

class tst_TaxSettingsRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anEmptyTableYieldsNothing();
    void aSavedRowIsReadBackWhole();
    void aSecondSaveReplacesTheFirst();
    void theRowIsNumberOneWhateverTheRecordSays();
    void savingMovesNoTimeStamp();
    void absentFieldsAreNullAndEmptyTextsAreNot();
    void everyFailureIsLogged();
};

void tst_TaxSettingsRepository::anEmptyTableYieldsNothing()
{
    Fixture f;

    QVERIFY(!f.repository.fetch().has_value());
}

void tst_TaxSettingsRepository::aSavedRowIsReadBackWhole()
{
    Fixture f;

    f.repository.save(first());

    const std::optional<TaxSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->enabled, true);
    QCOMPARE(found->rate, 825);
    QCOMPARE(found->registration_number, std::optional(QStringLiteral("R-1")));
    QCOMPARE(found->name, QStringLiteral("VAT"));
    QVERIFY(!found->created_at.isEmpty());
}

void tst_TaxSettingsRepository::aSecondSaveReplacesTheFirst()
{
    Fixture f;
    f.repository.save(first());

    f.repository.save(second());

    const std::optional<TaxSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->enabled, false);
    QCOMPARE(found->rate, 600);
    QCOMPARE(found->registration_number, std::optional(QStringLiteral("R-2")));
    QCOMPARE(found->name, QStringLiteral("GST"));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM tax_settings")).toInt(), 1);
}

void tst_TaxSettingsRepository::theRowIsNumberOneWhateverTheRecordSays()
{
    Fixture f;
    TaxSettings settings = first();
    settings.id = 5;

    f.repository.save(settings);

    QCOMPARE(f.db.value(QStringLiteral("SELECT id FROM tax_settings")).toInt(), 1);
}

void tst_TaxSettingsRepository::savingMovesNoTimeStamp()
{
    Fixture f;
    f.repository.save(first());
    f.db.run(QStringLiteral("UPDATE tax_settings SET created_at = '2001'"));

    f.repository.save(second());

    QCOMPARE(
        f.db.value(QStringLiteral("SELECT COUNT(*) FROM tax_settings WHERE created_at = '2001'"))
            .toInt(),
        1);
}

void tst_TaxSettingsRepository::absentFieldsAreNullAndEmptyTextsAreNot()
{
    Fixture f;

    f.repository.save(TaxSettings());

    QVERIFY(f.repository.fetch());
    QVERIFY(!f.repository.fetch()->registration_number.has_value());
    TaxSettings blank;
    blank.registration_number = QString();
    f.repository.save(blank);
    QVERIFY(f.repository.fetch()->registration_number.has_value());
}

void tst_TaxSettingsRepository::everyFailureIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE tax_settings"));

    QCOMPARE(logOf([&] { f.repository.save(first()); }),
             QStringLiteral("warning [database] Failed to save tax_settings: <error text>"));
    QCOMPARE(logOf([&] { QVERIFY(!f.repository.fetch().has_value()); }),
             QStringLiteral("warning [database] Failed to fetch tax_settings: <error text>"));
}

ZELVAN_TEST(tst_TaxSettingsRepository)
#include "tst_taxsettingsrepository.moc"
