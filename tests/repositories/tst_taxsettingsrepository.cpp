// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TaxSettingsRepository.h"
#include "support/SettingsRowTest.h"
#include "support/TestDatabase.h"

class tst_TaxSettingsRepository final
    : public SettingsRowTestOf<TaxSettingsRepository, TaxSettings, &TaxSettings::enabled,
                               &TaxSettings::rate, &TaxSettings::registration_number,
                               &TaxSettings::name>
{
    Q_OBJECT

public:
    tst_TaxSettingsRepository();

private slots:
    void theTimeOfTheFirstSaveIsRead();
    void absentFieldsAreNullAndEmptyTextsAreNot();
};

tst_TaxSettingsRepository::tst_TaxSettingsRepository()
    : SettingsRowTestOf(
          {QStringLiteral("tax_settings"),
           QStringLiteral("warning [database] Failed to save tax_settings: <error text>"),
           QStringLiteral("warning [database] Failed to fetch tax_settings: <error text>")},
          {.enabled = true,
           .rate = 825,
           .registration_number = QStringLiteral("R-1"),
           .name = QStringLiteral("VAT"),
           .created_at = {}},
          {.enabled = false,
           .rate = 600,
           .registration_number = QStringLiteral("R-2"),
           .name = QStringLiteral("GST"),
           .created_at = {}})
{}

void tst_TaxSettingsRepository::theTimeOfTheFirstSaveIsRead()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    TaxSettingsRepository repository(db.handle());

    repository.save(TaxSettings());

    QVERIFY(repository.fetch());
    QCOMPARE(repository.fetch()->created_at,
             db.value(QStringLiteral("SELECT created_at FROM tax_settings")).toString());
    QVERIFY(!repository.fetch()->created_at.isEmpty());
}

void tst_TaxSettingsRepository::absentFieldsAreNullAndEmptyTextsAreNot()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    TaxSettingsRepository repository(db.handle());

    repository.save(TaxSettings());

    QVERIFY(repository.fetch());
    QVERIFY(!repository.fetch()->registration_number.has_value());
    TaxSettings blank;
    blank.registration_number = QString();
    repository.save(blank);
    QVERIFY(repository.fetch()->registration_number.has_value());
}

ZELVAN_TEST(tst_TaxSettingsRepository)
#include "tst_taxsettingsrepository.moc"
