// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/SettingsStore.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>

#include <limits>
#include <memory>

class tst_SettingService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itsSignaturesAreThoseTheScreensCall();
    void storedSettingsAreCachedAtConstruction();
    void withoutRowsTheDefaultsHold();
    void withoutADatabaseTheDefaultsHoldAndLinesAreLogged();
    void withoutRowsTheMapsAreEmpty();

    void aCurrencyHasItsSymbol_data();
    void aCurrencyHasItsSymbol();
    void theSymbolFollowsTheCurrencyAtOnce();
    void anUnknownCurrencyIsReadBackWithADollarSign();

    void theRestaurantIsSavedInRowOneWhateverTheId();
    void missingRestaurantTextsAreEmptyAndNotNull();
    void aNullTextIsReadAsEmpty();

    void aPrinterIsInsertedUpdatedAndRemoved();
    void aPrinterIdNotAboveZeroInserts_data();
    void aPrinterIdNotAboveZeroInserts();
    void anUnknownPrinterIdChangesNothingAndReportsSuccess();
    void aRefusedPrinterReportsSuccess();

    void theTaxIsSavedUnchecked();
    void membershipAmountsAreTruncatedToCents_data();
    void membershipAmountsAreTruncatedToCents();
    void membershipSettingsAreReadInUnits();
    void theKitchenIsSavedWithFlagsFromNumbers();
    void aMissingKitchenModeIsStoredEmptyAndCachedEmpty();
    void missingRegionalKeysHaveTheirDefaults();
    void aMissingLayoutModeIsSimple();

    void aCachedSettingTellsItsChangeOnce_data();
    void aCachedSettingTellsItsChangeOnce();
    void aSaveThatChangesNothingTellsNothing();
    void aFailedStatementReportsSuccessAndIsCached();

private:
    [[nodiscard]] QVariant stored(const QString &sql) const { return m_database->value(sql); }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<SettingsStore> m_store;
};

void tst_SettingService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_store = std::make_unique<SettingsStore>(m_database->handle());
}

void tst_SettingService::cleanup()
{
    m_store.reset();
    m_database.reset();
}

void tst_SettingService::itsSignaturesAreThoseTheScreensCall()
{
    const QMetaObject &meta = SettingService::staticMetaObject;
    for (const char *signature :
         {"currencySymbol()", "getRestaurant()", "saveRestaurantSetting(QVariantMap)",
          "getPrinter(int)", "getPrinters()", "savePrinter(QVariantMap)", "removePrinter(int)",
          "getTaxSettings()", "saveTaxSettings(QVariantMap)", "getMembershipSettings()",
          "saveMembershipSettings(QVariantMap)", "getKitchenSettings()",
          "saveKitchenSettings(QVariantMap)", "getRegionalSettings()",
          "saveRegionalSettings(QVariantMap)", "getTableSettings()",
          "saveTableSettings(QVariantMap)"}) {
        QVERIFY2(meta.indexOfMethod(signature) >= 0, signature);
    }
    for (const char *property :
         {"membershipEnabled", "kitchenMode", "currencyCode", "tableLayoutMode"}) {
        QVERIFY2(!meta.property(meta.indexOfProperty(property)).isWritable(), property);
    }
}

void tst_SettingService::storedSettingsAreCachedAtConstruction()
{
    m_database->run("UPDATE membership_settings SET enabled = 1");
    m_database->run("UPDATE kitchen_settings SET mode = 'hybrid'");
    m_database->run("UPDATE table_settings SET layout_mode = 'floor_plan'");
    m_database->run("INSERT INTO regional_settings (id, locale, currency_code) "
                    "VALUES (1, 'zh_CN', 'CNY')");

    const SettingsStore store(m_database->handle());

    QCOMPARE(store.service.membershipEnabled(), true);
    QCOMPARE(store.service.kitchenMode(), QStringLiteral("hybrid"));
    QCOMPARE(store.service.currencyCode(), QStringLiteral("CNY"));
    QCOMPARE(store.service.tableLayoutMode(), QStringLiteral("floor_plan"));
}

namespace {
void verifyDefaults(const SettingService &service)
{
    QCOMPARE(service.membershipEnabled(), false);
    QCOMPARE(service.kitchenMode(), QStringLiteral("none"));
    QCOMPARE(service.currencyCode(), QStringLiteral("USD"));
    QCOMPARE(service.currencySymbol(), QStringLiteral("$"));
    QCOMPARE(service.tableLayoutMode(), QStringLiteral("simple"));
}
} // namespace

void tst_SettingService::withoutRowsTheDefaultsHold()
{
    for (const char *table : {"membership_settings", "kitchen_settings", "table_settings"}) {
        m_database->run(QStringLiteral("DELETE FROM %1").arg(table));
    }

    verifyDefaults(SettingsStore(m_database->handle()).service);
}

void tst_SettingService::withoutADatabaseTheDefaultsHoldAndLinesAreLogged()
{
    for (const char *line :
         {"Failed to fetch membership_settings:", "Failed to fetch kitchen_settings:",
          "Failed to fetch regional setting:", "Failed to fetch table_settings:"}) {
        expectLog(QtWarningMsg, "QSqlQuery::prepare: database not open");
        expectLog(QtWarningMsg, line);
    }

    verifyDefaults(SettingsStore(QSqlDatabase()).service);
}

void tst_SettingService::withoutRowsTheMapsAreEmpty()
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

void tst_SettingService::aCurrencyHasItsSymbol_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("symbol");

    QTest::newRow("USD") << "USD"
                         << "$";
    QTest::newRow("EUR") << "EUR" << QString(QChar(0x20AC));
    QTest::newRow("JPY") << "JPY" << QString(QChar(0x00A5));
    QTest::newRow("MYR") << "MYR"
                         << "RM";
    QTest::newRow("GBP") << "GBP" << QString(QChar(0x00A3));
    QTest::newRow("CNY") << "CNY" << QString(QChar(0x00A5));
    QTest::newRow("unknown") << "XYZ"
                             << "$";
    QTest::newRow("empty") << ""
                           << "$";
}

void tst_SettingService::aCurrencyHasItsSymbol()
{
    QFETCH(QString, code);
    QFETCH(QString, symbol);

    QVERIFY(m_store->service.saveRegionalSettings({{"currency_code", code}}));

    QCOMPARE(m_store->service.currencySymbol(), symbol);
    QCOMPARE(m_store->service.getRegionalSettings().value("currency_symbol").toString(), symbol);
}

void tst_SettingService::theSymbolFollowsTheCurrencyAtOnce()
{
    QCOMPARE(m_store->service.currencySymbol(), QStringLiteral("$"));

    QVERIFY(m_store->service.saveRegionalSettings({{"currency_code", "MYR"}}));

    QCOMPARE(m_store->service.currencySymbol(), QStringLiteral("RM"));
}

void tst_SettingService::anUnknownCurrencyIsReadBackWithADollarSign()
{
    QVERIFY(m_store->service.saveRegionalSettings({{"locale", "zh_CN"}, {"currency_code", "XYZ"}}));

    const QVariantMap expected{
        {"id", 1}, {"locale", "zh_CN"}, {"currency_code", "XYZ"}, {"currency_symbol", "$"}};
    QCOMPARE(m_store->service.getRegionalSettings(), expected);
}

void tst_SettingService::theRestaurantIsSavedInRowOneWhateverTheId()
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

void tst_SettingService::missingRestaurantTextsAreEmptyAndNotNull()
{
    QVERIFY(m_store->service.saveRestaurantSetting({}));

    QCOMPARE(stored("SELECT name || address || phone_number || email || website || '.' "
                    "FROM restaurant"),
             QVariant("."));
}

void tst_SettingService::aNullTextIsReadAsEmpty()
{
    m_database->run("INSERT INTO restaurant (id, name, address) VALUES (1, 'Cafe', 'Street')");
    m_database->run("UPDATE tax_settings SET registration_number = NULL");

    const QVariantMap expected{
        {"id", 1},     {"name", "Cafe"}, {"address", "Street"}, {"phone_number", ""},
        {"email", ""}, {"website", ""}};
    QCOMPARE(m_store->service.getRestaurant(), expected);
    QCOMPARE(m_store->service.getTaxSettings().value("registration_number"), QVariant(""));
}

void tst_SettingService::aPrinterIsInsertedUpdatedAndRemoved()
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

void tst_SettingService::aPrinterIdNotAboveZeroInserts_data()
{
    QTest::addColumn<QVariantMap>("printer");

    QTest::newRow("zero") << QVariantMap{{"id", 0}, {"system_name", "TM88"}};
    QTest::newRow("negative") << QVariantMap{{"id", -1}, {"system_name", "TM88"}};
    QTest::newRow("none") << QVariantMap{{"system_name", "TM88"}};
}

void tst_SettingService::aPrinterIdNotAboveZeroInserts()
{
    QFETCH(QVariantMap, printer);

    QVERIFY(m_store->service.savePrinter(printer));

    QCOMPARE(stored("SELECT id FROM printers WHERE system_name = 'TM88'"), QVariant(1));
}

void tst_SettingService::anUnknownPrinterIdChangesNothingAndReportsSuccess()
{
    QVERIFY(m_store->service.savePrinter({{"id", 7}, {"system_name", "TM88"}}));
    QVERIFY(m_store->service.removePrinter(7));

    QCOMPARE(stored("SELECT COUNT(*) FROM printers"), QVariant(0));
}

void tst_SettingService::aRefusedPrinterReportsSuccess()
{
    QVERIFY(m_store->service.savePrinter({{"system_name", "TM88"}}));

    expectLog(QtWarningMsg, "Failed to insert printer:");
    QVERIFY(m_store->service.savePrinter({{"system_name", "TM88"}}));

    QCOMPARE(stored("SELECT COUNT(*) FROM printers"), QVariant(1));
}

void tst_SettingService::theTaxIsSavedUnchecked()
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

void tst_SettingService::membershipAmountsAreTruncatedToCents_data()
{
    QTest::addColumn<double>("units");
    QTest::addColumn<int>("cents");

    QTest::newRow("19.99") << 19.99 << 1998;
    QTest::newRow("0.29") << 0.29 << 28;
    QTest::newRow("10") << 10.0 << 1000;
    QTest::newRow("negative") << -0.299 << -29;
    QTest::newRow("out of range") << 1e9 << std::numeric_limits<int>::max();
}

void tst_SettingService::membershipAmountsAreTruncatedToCents()
{
    QFETCH(double, units);
    QFETCH(int, cents);

    QVERIFY(
        m_store->service.saveMembershipSettings({{"earn_spend", units}, {"redeem_value", units}}));

    QCOMPARE(stored("SELECT earn_spend FROM membership_settings"), QVariant(cents));
    QCOMPARE(stored("SELECT redeem_value FROM membership_settings"), QVariant(cents));
}

void tst_SettingService::membershipSettingsAreReadInUnits()
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

void tst_SettingService::theKitchenIsSavedWithFlagsFromNumbers()
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

void tst_SettingService::aMissingKitchenModeIsStoredEmptyAndCachedEmpty()
{
    QVERIFY(m_store->service.saveKitchenSettings({}));

    QCOMPARE(stored("SELECT mode FROM kitchen_settings"), QVariant(""));
    QCOMPARE(m_store->service.kitchenMode(), QString());
}

void tst_SettingService::missingRegionalKeysHaveTheirDefaults()
{
    QVERIFY(m_store->service.saveRegionalSettings({}));

    QCOMPARE(stored("SELECT locale || currency_code FROM regional_settings"), QVariant("en_USUSD"));
}

void tst_SettingService::aMissingLayoutModeIsSimple()
{
    QVERIFY(m_store->service.saveTableSettings({{"layout_mode", "floor_plan"}}));
    const QVariantMap expected{{"id", 1}, {"layout_mode", "floor_plan"}};
    QCOMPARE(m_store->service.getTableSettings(), expected);

    QVERIFY(m_store->service.saveTableSettings({}));

    QCOMPARE(stored("SELECT layout_mode FROM table_settings"), QVariant("simple"));
}

void tst_SettingService::aCachedSettingTellsItsChangeOnce_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QVariantMap>("map");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("membership") << QByteArray("saveMembershipSettings")
                                << QVariantMap{{"enabled", true}} << QByteArray("membershipEnabled")
                                << QVariant(true);
    QTest::newRow("kitchen") << QByteArray("saveKitchenSettings") << QVariantMap{{"mode", "kds"}}
                             << QByteArray("kitchenMode") << QVariant("kds");
    QTest::newRow("currency") << QByteArray("saveRegionalSettings")
                              << QVariantMap{{"currency_code", "EUR"}} << QByteArray("currencyCode")
                              << QVariant("EUR");
    QTest::newRow("layout") << QByteArray("saveTableSettings")
                            << QVariantMap{{"layout_mode", "floor_plan"}}
                            << QByteArray("tableLayoutMode") << QVariant("floor_plan");
}

void tst_SettingService::aCachedSettingTellsItsChangeOnce()
{
    QFETCH(QByteArray, operation);
    QFETCH(QVariantMap, map);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    SettingService &service = m_store->service;
    const QMetaObject *meta = service.metaObject();
    QSignalSpy changed(&service,
                       meta->property(meta->indexOfProperty(property.constData())).notifySignal());

    for (int time = 0; time < 2; ++time) {
        bool saved = false;
        QVERIFY(QMetaObject::invokeMethod(&service, operation.constData(),
                                          Q_RETURN_ARG(bool, saved), Q_ARG(QVariantMap, map)));
        QVERIFY(saved);
    }

    QCOMPARE(changed.count(), 1);
    QCOMPARE(service.property(property.constData()), value);
}

void tst_SettingService::aSaveThatChangesNothingTellsNothing()
{
    SettingService &service = m_store->service;
    QSignalSpy kitchen(&service, &SettingService::kitchenModeChanged);
    QSignalSpy layout(&service, &SettingService::tableLayoutModeChanged);

    QVERIFY(
        service.saveKitchenSettings({{"mode", "none"}, {"ticket_print_timing", "order_created"}}));
    QVERIFY(service.saveTableSettings({{"layout_mode", "simple"}}));

    QCOMPARE(kitchen.count(), 0);
    QCOMPARE(layout.count(), 0);
    QCOMPARE(stored("SELECT ticket_print_timing FROM kitchen_settings"), QVariant("order_created"));
}

void tst_SettingService::aFailedStatementReportsSuccessAndIsCached()
{
    SettingService &service = m_store->service;
    for (const char *table : {"restaurant", "tax_settings", "kitchen_settings", "regional_settings",
                              "table_settings", "membership_settings"}) {
        m_database->run(QStringLiteral("DROP TABLE %1").arg(table));
    }

    for (const char *line :
         {"Failed to save restaurant:", "Failed to save tax_settings:",
          "Failed to save kitchen_settings:", "Failed to save regional setting:",
          "Failed to save table_settings:", "Failed to save membership_settings:"}) {
        expectLog(QtWarningMsg, line);
    }
    QVERIFY(service.saveRestaurantSetting({}));
    QVERIFY(service.saveTaxSettings({}));
    QVERIFY(service.saveKitchenSettings({{"mode", "kds"}}));
    QVERIFY(service.saveRegionalSettings({{"currency_code", "EUR"}}));
    QVERIFY(service.saveTableSettings({{"layout_mode", "floor_plan"}}));
    QVERIFY(service.saveMembershipSettings({{"enabled", true}}));

    QCOMPARE(service.kitchenMode(), QStringLiteral("kds"));
    QCOMPARE(service.currencyCode(), QStringLiteral("EUR"));
    QCOMPARE(service.tableLayoutMode(), QStringLiteral("floor_plan"));
    QCOMPARE(service.membershipEnabled(), true);
}

ZELVAN_TEST(tst_SettingService)
#include "tst_settingservice.moc"
