// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipSettingsRepository.h"
#include "support/LogRecorder.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    MembershipSettingsRepository repository{db.handle()};
};

MembershipSettings first()
{
    MembershipSettings settings;
    settings.enabled = true;
    settings.earn_points = 2;
    settings.earn_spend = 1500;
    settings.redeem_points = 50;
    settings.redeem_value = 70;
    settings.earn_on = QStringLiteral("subtotal");
    return settings;
}

MembershipSettings second()
{
    MembershipSettings settings;
    settings.enabled = false;
    settings.earn_points = 3;
    settings.earn_spend = 1600;
    settings.redeem_points = 60;
    settings.redeem_value = 80;
    settings.earn_on = QStringLiteral("total");
    return settings;
}
} // namespace

class tst_MembershipSettingsRepository : public ZelvanTest
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

void tst_MembershipSettingsRepository::anEmptyTableYieldsNothing()
{
    Fixture f;

    QVERIFY(!f.repository.get().has_value());
}

void tst_MembershipSettingsRepository::aSavedRowIsReadBackWhole()
{
    Fixture f;

    f.repository.save(first());

    const std::optional<MembershipSettings> found = f.repository.get();
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->enabled, true);
    QCOMPARE(found->earn_points, 2);
    QCOMPARE(found->earn_spend, 1500);
    QCOMPARE(found->redeem_points, 50);
    QCOMPARE(found->redeem_value, 70);
    QCOMPARE(found->earn_on, QStringLiteral("subtotal"));
}

void tst_MembershipSettingsRepository::aSecondSaveReplacesTheFirst()
{
    Fixture f;
    f.repository.save(first());

    f.repository.save(second());

    const std::optional<MembershipSettings> found = f.repository.get();
    QVERIFY(found);
    QCOMPARE(found->enabled, false);
    QCOMPARE(found->earn_points, 3);
    QCOMPARE(found->earn_spend, 1600);
    QCOMPARE(found->redeem_points, 60);
    QCOMPARE(found->redeem_value, 80);
    QCOMPARE(found->earn_on, QStringLiteral("total"));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM membership_settings")).toInt(), 1);
}

void tst_MembershipSettingsRepository::theRowIsNumberOneWhateverTheRecordSays()
{
    Fixture f;
    MembershipSettings settings = first();
    settings.id = 5;

    f.repository.save(settings);

    QCOMPARE(f.db.value(QStringLiteral("SELECT id FROM membership_settings")).toInt(), 1);
}

void tst_MembershipSettingsRepository::savingMovesNoTimeStamp()
{
    Fixture f;
    f.repository.save(first());
    f.db.run(QStringLiteral("UPDATE membership_settings SET created_at = '2001'"));

    f.repository.save(second());

    QCOMPARE(f.db.value(QStringLiteral(
                            "SELECT COUNT(*) FROM membership_settings WHERE created_at = '2001'"))
                 .toInt(),
             1);
}

void tst_MembershipSettingsRepository::everyFailureIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE membership_settings"));

    QCOMPARE(
        logOf([&] { f.repository.save(first()); }),
        QStringLiteral("warning [membership] Failed to save membership_settings: <error text>"));
    QCOMPARE(
        logOf([&] { QVERIFY(!f.repository.get().has_value()); }),
        QStringLiteral("warning [membership] Failed to fetch membership_settings: <error text>"));
}

ZELVAN_TEST(tst_MembershipSettingsRepository)
#include "tst_membershipsettingsrepository.moc"
