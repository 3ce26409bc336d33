// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/SettingsStore.h"
#include "support/ZelvanTest.h"

#include <QSqlDriver>
#include <QSqlResult>

#include <stdexcept>

namespace {
/// Takes every statement and finds nothing; throws at a bound value once it is told to, as a driver
/// may that runs out of memory.
class EmptyResult final : public QSqlResult
{
public:
    EmptyResult(const QSqlDriver *driver, const bool *throws)
        : QSqlResult(driver)
        , m_throws(throws)
    {}

protected:
    bool reset(const QString &) override { return true; }
    bool prepare(const QString &) override
    {
        setActive(true);
        return true;
    }
    bool exec() override { return true; }
    void bindValue(int, const QVariant &, QSql::ParamType) override { throwIfTold(); }
    void bindValue(const QString &, const QVariant &, QSql::ParamType) override { throwIfTold(); }
    QVariant data(int) override { return {}; }
    bool isNull(int) override { return true; }
    bool fetch(int) override { return false; }
    bool fetchFirst() override { return false; }
    bool fetchLast() override { return false; }
    int size() override { return -1; }
    int numRowsAffected() override { return 0; }

private:
    void throwIfTold() const
    {
        if (*m_throws) {
            throw std::runtime_error("out of luck");
        }
    }

    const bool *m_throws;
};

class ThrowingDriver final : public QSqlDriver
{
public:
    bool throws = false;

    ThrowingDriver() { setOpen(true); }

    bool hasFeature(DriverFeature) const override { return true; }
    bool open(const QString &, const QString &, const QString &, const QString &, int,
              const QString &) override
    {
        return true;
    }
    void close() override {}
    QSqlResult *createResult() const override { return new EmptyResult(this, &throws); }
};
} // namespace

/// A save answers false for an exception only.
class tst_SettingExceptions : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anExceptionFailsTheSaveWithALine_data();
    void anExceptionFailsTheSaveWithALine();
    void anExceptionPassesThroughTheMembershipSave();
};

void tst_SettingExceptions::anExceptionFailsTheSaveWithALine_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QString>("line");

    QTest::newRow("restaurant") << QByteArray("saveRestaurantSetting")
                                << "Failed to save restaurant:";
    QTest::newRow("printer") << QByteArray("savePrinter") << "Failed to save printer:";
    QTest::newRow("printer removal") << QByteArray("removePrinter") << "Failed to remove printer:";
    QTest::newRow("tax") << QByteArray("saveTaxSettings") << "Failed to save tax settings:";
    QTest::newRow("kitchen") << QByteArray("saveKitchenSettings")
                             << "Failed to save kitchen settings:";
    QTest::newRow("regional") << QByteArray("saveRegionalSettings")
                              << "Failed to save regional settings:";
    QTest::newRow("table") << QByteArray("saveTableSettings") << "Failed to save table settings:";
}

void tst_SettingExceptions::anExceptionFailsTheSaveWithALine()
{
    QFETCH(QByteArray, operation);
    QFETCH(QString, line);
    auto *driver = new ThrowingDriver;
    {
        SettingsStore store(QSqlDatabase::addDatabase(driver, "throwing"));
        driver->throws = true;
        bool saved = true;

        expectLog(QtWarningMsg, line + " out of luck");
        if (operation == "removePrinter") {
            saved = store.service.removePrinter(1);
        } else {
            QVERIFY(QMetaObject::invokeMethod(&store.service, operation.constData(),
                                              Q_RETURN_ARG(bool, saved),
                                              Q_ARG(QVariantMap, QVariantMap())));
        }

        QVERIFY(!saved);
        QCOMPARE(store.service.kitchenMode(), QStringLiteral("none"));
    }
    QSqlDatabase::removeDatabase("throwing");
}

void tst_SettingExceptions::anExceptionPassesThroughTheMembershipSave()
{
    auto *driver = new ThrowingDriver;
    {
        SettingsStore store(QSqlDatabase::addDatabase(driver, "throwing"));
        driver->throws = true;

        QVERIFY_EXCEPTION_THROWN(store.service.saveMembershipSettings({}), std::runtime_error);
    }
    QSqlDatabase::removeDatabase("throwing");
}

ZELVAN_TEST(tst_SettingExceptions)
#include "tst_settingexceptions.moc"
