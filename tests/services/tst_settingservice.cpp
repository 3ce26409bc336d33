// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/SettingsStore.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>

#include <memory>

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

/// What the service keeps and tells. What it stores and reads is tst_SettingMaps's.
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

    void aCurrencyHasItsSymbol_data();
    void aCurrencyHasItsSymbol();
    void theSymbolFollowsTheCurrencyAtOnce();
    void anUnknownCurrencyIsReadBackWithADollarSign();

    void aCachedSettingTellsItsChangeOnce_data();
    void aCachedSettingTellsItsChangeOnce();
    void aSaveThatChangesNothingTellsNothing();
    void aFailedStatementReportsSuccessAndIsCached();

private:
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
    QCOMPARE(m_database->value("SELECT ticket_print_timing FROM kitchen_settings"),
             QVariant("order_created"));
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
