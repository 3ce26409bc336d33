// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/SettingsStore.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <limits>
#include <memory>

/// The maps that the settings screens save and read.
class tst_SettingMaps : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void withoutRowsTheMapsAreEmpty();

    void theRestaurantIsSavedInRowOneWhateverTheId();
    void missingRestaurantTextsAreEmptyAndNotNull();
    void aNullTextIsReadAsEmpty();

    void aPrinterIsInsertedUpdatedAndRemoved();
    void aPrinterIdNotAboveZeroInserts_data();
    void aPrinterIdNotAboveZeroInserts();
    void anUnknownPrinterIdChangesNothingAndReportsSuccess();
    void aRefusedPrinterReportsSuccess();

    void theTaxIsSavedUnchecked();
    void wholeNumbersOutOfRangeEndAtTheBounds_data();
    void wholeNumbersOutOfRangeEndAtTheBounds();
    void membershipAmountsAreTruncatedToCents_data();
    void membershipAmountsAreTruncatedToCents();
    void membershipSettingsAreReadInUnits();
    void theKitchenIsSavedWithFlagsFromNumbers();
    void aMissingKitchenModeIsStoredEmptyAndCachedEmpty();
    void missingRegionalKeysHaveTheirDefaults();
    void aMissingLayoutModeIsSimple();

private:
    [[nodiscard]] QVariant stored(const QString &sql) const { return m_database->value(sql); }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<SettingsStore> m_store;
};

void tst_SettingMaps::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_store = std::make_unique<SettingsStore>(m_database->handle());
}

void tst_SettingMaps::cleanup()
{
    m_store.reset();
    m_database.reset();
}

void tst_SettingMaps::withoutRowsTheMapsAreEmpty()
{
    for (const char *table :
         {"membership_settings", "kitchen_settings", "table_settings", "tax_settings"}) {
        m_database->run(QStringLiteral("DELETE FROM %1").arg(table));
    }
    const SettingService &service = m_store->service;

    QVERIFY(service.getRestaurant().isEmpty());
    QVERIFY(service.getPrinter(1).isEmpty());
    QVERIFY(service.getPrinters().isEmpty());
    QVERIFY(service.getTaxSettings().isEmpty());
    QVERIFY(service.getMembershipSettings().isEmpty());
    QVERIFY(service.getKitchenSettings().isEmpty());
    QVERIFY(service.getRegionalSettings().isEmpty());
    QVERIFY(service.getTableSettings().isEmpty());
}

void tst_SettingMaps::theRestaurantIsSavedInRowOneWhateverTheId()
{
    const QVariantMap given{{"id", 5},
                            {"name", "Corner Cafe"},
                            {"address", "1 High St"},
                            {"phone_number", "555"},
                            {"email", "a@b"},
                            {"website", "w.example"}};

    QVERIFY(m_store->service.saveRestaurantSetting(given));
    QVERIFY(m_store->service.saveRestaurantSetting(given));

    QVariantMap expected = given;
    expected.insert("id", 1);
    QCOMPARE(m_store->service.getRestaurant(), expected);
    QCOMPARE(stored("SELECT COUNT(*) FROM restaurant"), QVariant(1));
}

void tst_SettingMaps::missingRestaurantTextsAreEmptyAndNotNull()
{
    QVERIFY(m_store->service.saveRestaurantSetting({}));

    QCOMPARE(stored("SELECT name || address || phone_number || email || website || '.' "
                    "FROM restaurant"),
             QVariant("."));
}

void tst_SettingMaps::aNullTextIsReadAsEmpty()
{
    m_database->run("INSERT INTO restaurant (id, name, address) VALUES (1, 'Cafe', 'Street')");
    m_database->run("UPDATE tax_settings SET registration_number = NULL");

    const QVariantMap expected{
        {"id", 1},     {"name", "Cafe"}, {"address", "Street"}, {"phone_number", ""},
        {"email", ""}, {"website", ""}};
    QCOMPARE(m_store->service.getRestaurant(), expected);
    QCOMPARE(m_store->service.getTaxSettings().value("registration_number"), QVariant(""));
}

void tst_SettingMaps::aPrinterIsInsertedUpdatedAndRemoved()
{
    SettingService &service = m_store->service;

    QVERIFY(service.savePrinter({{"system_name", "TM88"},
                                 {"role", "both"},
                                 {"paper_width", "80"},
                                 {"cut_mode", "partial"}}));
    const QVariantMap expected{{"id", 1},
                               {"system_name", "TM88"},
                               {"role", "both"},
                               {"paper_width", 80},
                               {"cut_mode", "partial"}};
    QCOMPARE(service.getPrinter(1), expected);
    QCOMPARE(service.getPrinters(), QVariantList({expected}));

    QVERIFY(service.savePrinter({{"id", 1}, {"system_name", "TM20"}}));
    const QVariantMap updated{
        {"id", 1}, {"system_name", "TM20"}, {"role", ""}, {"paper_width", 0}, {"cut_mode", ""}};
    QCOMPARE(service.getPrinter(1), updated);

    QVERIFY(service.removePrinter(1));
    QVERIFY(service.getPrinters().isEmpty());
}

void tst_SettingMaps::aPrinterIdNotAboveZeroInserts_data()
{
    QTest::addColumn<QVariantMap>("printer");

    QTest::newRow("zero") << QVariantMap{{"id", 0}, {"system_name", "TM88"}};
    QTest::newRow("negative") << QVariantMap{{"id", -1}, {"system_name", "TM88"}};
    QTest::newRow("none") << QVariantMap{{"system_name", "TM88"}};
}

void tst_SettingMaps::aPrinterIdNotAboveZeroInserts()
{
    QFETCH(QVariantMap, printer);

    QVERIFY(m_store->service.savePrinter(printer));

    QCOMPARE(stored("SELECT id FROM printers WHERE system_name = 'TM88'"), QVariant(1));
}

void tst_SettingMaps::anUnknownPrinterIdChangesNothingAndReportsSuccess()
{
    QVERIFY(m_store->service.savePrinter({{"id", 7}, {"system_name", "TM88"}}));
    QVERIFY(m_store->service.removePrinter(7));

    QCOMPARE(stored("SELECT COUNT(*) FROM printers"), QVariant(0));
}

void tst_SettingMaps::aRefusedPrinterReportsSuccess()
{
    QVERIFY(m_store->service.savePrinter({{"system_name", "TM88"}}));

    expectLog(QtWarningMsg, "Failed to insert printer:");
    QVERIFY(m_store->service.savePrinter({{"system_name", "TM88"}}));

    QCOMPARE(stored("SELECT COUNT(*) FROM printers"), QVariant(1));
}

void tst_SettingMaps::theTaxIsSavedUnchecked()
{
    QVERIFY(m_store->service.saveTaxSettings({{"enabled", true},
                                              {"rate", 123456},
                                              {"registration_number", "R %2"},
                                              {"name", "VAT %1"}}));

    const QVariantMap expected{{"id", 1},
                               {"enabled", true},
                               {"rate", 123456},
                               {"registration_number", "R %2"},
                               {"name", "VAT %1"}};
    QCOMPARE(m_store->service.getTaxSettings(), expected);
}

void tst_SettingMaps::wholeNumbersOutOfRangeEndAtTheBounds_data()
{
    QTest::addColumn<double>("typed");
    QTest::addColumn<int>("stored");

    const int highest = std::numeric_limits<int>::max();
    const int lowest = std::numeric_limits<int>::min();
    QTest::newRow("highest") << 2147483647.0 << highest;
    QTest::newRow("one above") << 2147483648.0 << highest;
    QTest::newRow("eight nines in per cent") << 9999999900.0 << highest;
    QTest::newRow("beyond 64 bits") << 1e30 << highest;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << highest;
    QTest::newRow("lowest") << -2147483648.0 << lowest;
    QTest::newRow("far below") << -1e30 << lowest;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
    QTest::newRow("nearest") << 712.5 << 713;
}

void tst_SettingMaps::wholeNumbersOutOfRangeEndAtTheBounds()
{
    QFETCH(double, typed);
    QFETCH(int, stored);

    QVERIFY(m_store->service.saveTaxSettings({{"rate", typed}}));
    QVERIFY(m_store->service.saveMembershipSettings(
        {{"earn_points", typed}, {"redeem_points", typed}}));

    QCOMPARE(m_store->service.getTaxSettings().value("rate"), QVariant(stored));
    const QVariantMap membership = m_store->service.getMembershipSettings();
    QCOMPARE(membership.value("earn_points"), QVariant(stored));
    QCOMPARE(membership.value("redeem_points"), QVariant(stored));
}

void tst_SettingMaps::membershipAmountsAreTruncatedToCents_data()
{
    QTest::addColumn<double>("units");
    QTest::addColumn<int>("cents");

    QTest::newRow("19.99") << 19.99 << 1998;
    QTest::newRow("0.29") << 0.29 << 28;
    QTest::newRow("10") << 10.0 << 1000;
    QTest::newRow("negative") << -0.299 << -29;
    QTest::newRow("out of range") << 1e9 << std::numeric_limits<int>::max();
}

void tst_SettingMaps::membershipAmountsAreTruncatedToCents()
{
    QFETCH(double, units);
    QFETCH(int, cents);

    QVERIFY(
        m_store->service.saveMembershipSettings({{"earn_spend", units}, {"redeem_value", units}}));

    QCOMPARE(stored("SELECT earn_spend FROM membership_settings"), QVariant(cents));
    QCOMPARE(stored("SELECT redeem_value FROM membership_settings"), QVariant(cents));
}

void tst_SettingMaps::membershipSettingsAreReadInUnits()
{
    QVERIFY(m_store->service.saveMembershipSettings({{"id", 9},
                                                     {"enabled", true},
                                                     {"earn_points", 2},
                                                     {"earn_spend", 12.5},
                                                     {"redeem_points", 50},
                                                     {"redeem_value", 1.25},
                                                     {"earn_on", "subtotal"}}));

    const QVariantMap expected{{"id", 1},
                               {"enabled", true},
                               {"earn_points", 2},
                               {"earn_spend", 12.5},
                               {"redeem_points", 50},
                               {"redeem_value", 1.25},
                               {"earn_on", "subtotal"}};
    QCOMPARE(m_store->service.getMembershipSettings(), expected);
}

void tst_SettingMaps::theKitchenIsSavedWithFlagsFromNumbers()
{
    QVERIFY(m_store->service.saveKitchenSettings({{"mode", "kds"},
                                                  {"ticket_print_timing", "order_created"},
                                                  {"require_ready_for_checkout", 1},
                                                  {"allow_edit_after_send", 0}}));

    const QVariantMap expected{{"id", 1},
                               {"mode", "kds"},
                               {"ticket_print_timing", "order_created"},
                               {"require_ready_for_checkout", true},
                               {"allow_edit_after_send", false}};
    QCOMPARE(m_store->service.getKitchenSettings(), expected);
}

void tst_SettingMaps::aMissingKitchenModeIsStoredEmptyAndCachedEmpty()
{
    QVERIFY(m_store->service.saveKitchenSettings({}));

    QCOMPARE(stored("SELECT mode FROM kitchen_settings"), QVariant(""));
    QCOMPARE(m_store->service.kitchenMode(), QString());
}

void tst_SettingMaps::missingRegionalKeysHaveTheirDefaults()
{
    QVERIFY(m_store->service.saveRegionalSettings({}));

    QCOMPARE(stored("SELECT locale || currency_code FROM regional_settings"), QVariant("en_USUSD"));
}

void tst_SettingMaps::aMissingLayoutModeIsSimple()
{
    QVERIFY(m_store->service.saveTableSettings({{"layout_mode", "floor_plan"}}));
    const QVariantMap expected{{"id", 1}, {"layout_mode", "floor_plan"}};
    QCOMPARE(m_store->service.getTableSettings(), expected);

    QVERIFY(m_store->service.saveTableSettings({}));

    QCOMPARE(stored("SELECT layout_mode FROM table_settings"), QVariant("simple"));
}

ZELVAN_TEST(tst_SettingMaps)
#include "tst_settingmaps.moc"
