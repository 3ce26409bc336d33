// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/KitchenSettingsRepository.h"
#include "support/LogRecorder.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    KitchenSettingsRepository repository{db.handle()};
};

KitchenSettings first()
{
    KitchenSettings settings;
    settings.mode = QStringLiteral("hybrid");
    settings.ticket_print_timing = QStringLiteral("order_created");
    settings.require_ready_for_checkout = true;
    settings.allow_edit_after_send = false;
    return settings;
}

KitchenSettings second()
{
    KitchenSettings settings;
    settings.mode = QStringLiteral("none");
    settings.ticket_print_timing = QStringLiteral("manual");
    settings.require_ready_for_checkout = false;
    settings.allow_edit_after_send = true;
    return settings;
}
} // namespace

class tst_KitchenSettingsRepository : public ZelvanTest
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

void tst_KitchenSettingsRepository::anEmptyTableYieldsNothing()
{
    Fixture f;

    QVERIFY(!f.repository.fetch().has_value());
}

void tst_KitchenSettingsRepository::aSavedRowIsReadBackWhole()
{
    Fixture f;

    f.repository.save(first());

    const std::optional<KitchenSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->mode, QStringLiteral("hybrid"));
    QCOMPARE(found->ticket_print_timing, QStringLiteral("order_created"));
    QCOMPARE(found->require_ready_for_checkout, true);
    QCOMPARE(found->allow_edit_after_send, false);
}

void tst_KitchenSettingsRepository::aSecondSaveReplacesTheFirst()
{
    Fixture f;
    f.repository.save(first());

    f.repository.save(second());

    const std::optional<KitchenSettings> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->mode, QStringLiteral("none"));
    QCOMPARE(found->ticket_print_timing, QStringLiteral("manual"));
    QCOMPARE(found->require_ready_for_checkout, false);
    QCOMPARE(found->allow_edit_after_send, true);
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM kitchen_settings")).toInt(), 1);
}

void tst_KitchenSettingsRepository::theRowIsNumberOneWhateverTheRecordSays()
{
    Fixture f;
    KitchenSettings settings = first();
    settings.id = 5;

    f.repository.save(settings);

    QCOMPARE(f.db.value(QStringLiteral("SELECT id FROM kitchen_settings")).toInt(), 1);
}

void tst_KitchenSettingsRepository::savingMovesNoTimeStamp()
{
    Fixture f;
    f.repository.save(first());
    f.db.run(
        QStringLiteral("UPDATE kitchen_settings SET created_at = '2001', updated_at = '2001'"));

    f.repository.save(second());

    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM kitchen_settings WHERE created_at = "
                                       "'2001' AND updated_at = '2001'"))
                 .toInt(),
             1);
}

void tst_KitchenSettingsRepository::everyFailureIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE kitchen_settings"));

    QCOMPARE(logOf([&] { f.repository.save(first()); }),
             QStringLiteral("warning [database] Failed to save kitchen_settings: <error text>"));
    QCOMPARE(logOf([&] { QVERIFY(!f.repository.fetch().has_value()); }),
             QStringLiteral("warning [database] Failed to fetch kitchen_settings: <error text>"));
}

ZELVAN_TEST(tst_KitchenSettingsRepository)
#include "tst_kitchensettingsrepository.moc"
