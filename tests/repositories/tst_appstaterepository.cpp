// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/AppStateRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    AppStateRepository state{db.handle()};
};
} // namespace

class tst_AppStateRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aSavedValueIsFetched();
    void savingAnExistingKeyReplacesTheValueAndMovesOnlyTheTimeOfChange();
    void anEmptyValueIsNotAnAbsentOne();
    void aRemovedKeyIsGone();
    void everyFailureIsLogged();
};

void tst_AppStateRepository::aSavedValueIsFetched()
{
    Fixture f;

    QVERIFY(f.state.save({QStringLiteral("receipt.counter"), QStringLiteral("17")}));

    QCOMPARE(f.state.fetch(QStringLiteral("receipt.counter")), std::optional(QStringLiteral("17")));
    QVERIFY(f.state.exists(QStringLiteral("receipt.counter")));
    QVERIFY(!f.state.fetch(QStringLiteral("receipt.year")));
    QVERIFY(!f.state.exists(QStringLiteral("receipt.year")));
}

void tst_AppStateRepository::savingAnExistingKeyReplacesTheValueAndMovesOnlyTheTimeOfChange()
{
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO app_state VALUES ('receipt.counter', '1', "
                            "'2001-01-01 00:00:00', '2001-01-01 00:00:00')"));

    QVERIFY(f.state.save({QStringLiteral("receipt.counter"), QStringLiteral("2")}));

    QCOMPARE(f.state.fetch(QStringLiteral("receipt.counter")), std::optional(QStringLiteral("2")));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM app_state")).toInt(), 1);
    QCOMPARE(f.db.value(QStringLiteral("SELECT created_at FROM app_state")).toString(),
             QStringLiteral("2001-01-01 00:00:00"));
    QVERIFY(f.db.value(QStringLiteral("SELECT updated_at > '2020-01-01' FROM app_state")).toBool());
}

void tst_AppStateRepository::anEmptyValueIsNotAnAbsentOne()
{
    Fixture f;

    QVERIFY(f.state.save({QStringLiteral("key"), QString()}));

    QCOMPARE(f.state.fetch(QStringLiteral("key")), std::optional(QString()));
    QVERIFY(f.db.value(QStringLiteral("SELECT value = '' FROM app_state")).toBool());
}

void tst_AppStateRepository::aRemovedKeyIsGone()
{
    Fixture f;
    QVERIFY(f.state.save({QStringLiteral("a"), QStringLiteral("1")}));
    QVERIFY(f.state.save({QStringLiteral("b"), QStringLiteral("2")}));

    QVERIFY(f.state.remove(QStringLiteral("a")));

    QVERIFY(!f.state.exists(QStringLiteral("a")));
    QVERIFY(f.state.exists(QStringLiteral("b")));
}

void tst_AppStateRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    const QString key = QStringLiteral("key");
    f.db.run(QStringLiteral("DROP TABLE app_state"));

    QCOMPARE(logOf([&] { QVERIFY(!f.state.save({key, key})); }), line("Failed to save app state:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.state.exists(key)); }),
             line("Failed to check app state existence:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.state.remove(key)); }), line("Failed to delete app state:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.state.fetch(key)); }), line("Failed to get app state:"));
}

ZELVAN_TEST(tst_AppStateRepository)
#include "tst_appstaterepository.moc"
