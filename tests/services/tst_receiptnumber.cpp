// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QDate>

#include <memory>

/// The running number of receipts, through real payments.
class tst_ReceiptNumber : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void aNumberFollowsTheStoredYearAndCounter_data();
    void aNumberFollowsTheStoredYearAndCounter();
    void theYearOfTheSetupStartsAtZero();
    void numbersFollowEachOther();
    void aFailedPaymentBurnsNoNumber();
    void failedWritesOfTheCounterAreNotLookedAt();

private:
    int newSession()
    {
        return m_store->sessionOf(m_store->orderTakeaway({TestStore::line(m_soup)}));
    }
    QString pay(int session);
    QString stored() const;

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
};

void tst_ReceiptNumber::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({});
}

/// The number given, without its year.
QString tst_ReceiptNumber::pay(int session)
{
    if (!m_store->services.checkout.completeCheckout(session, {}, 0)) {
        return QStringLiteral("failed");
    }
    const QString number = m_store->text(
        QStringLiteral("SELECT receipt_number FROM order_sessions WHERE id = %1").arg(session));
    const QString year = QString::number(QDate::currentDate().year()) + QLatin1Char('-');
    return number.startsWith(year) ? number.mid(year.size()) : number;
}

QString tst_ReceiptNumber::stored() const
{
    const QString year = m_store->text("SELECT value FROM app_state WHERE key = 'receipt.year'");
    const bool isThisYear = year == QString::number(QDate::currentDate().year());
    return (isThisYear ? QString() : year) +
           m_store->text("SELECT value FROM app_state WHERE key = 'receipt.counter'");
}

void tst_ReceiptNumber::aNumberFollowsTheStoredYearAndCounter_data()
{
    QTest::addColumn<QString>("year");
    QTest::addColumn<QString>("counter");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("next");
    const QString thisYear = QString::number(QDate::currentDate().year());
    const QString lastYear = QString::number(QDate::currentDate().year() - 1);
    const QString nextYear = QString::number(QDate::currentDate().year() + 1);
    const auto row = [](const char *name, const QString &year, const char *counter,
                        const char *number, const char *next) {
        QTest::newRow(name) << year << QString::fromLatin1(counter) << QString::fromLatin1(number)
                            << QString::fromLatin1(next);
    };

    row("42", thisYear, "42", "000042", "43");
    row("the last of six digits", thisYear, "999999", "999999", "1000000");
    row("a seventh digit is never cut", thisYear, "1000000", "1000000", "1000001");
    row("the year turned", lastYear, "42", "000001", "2");
    row("a later year rolls over just the same", nextYear, "42", "000001", "2");
    row("the year is no number", "this year", "42", "000001", "2");
    row("the year is empty", "", "42", "000001", "2");
    row("the year is out of range", "99999999999", "42", "000001", "2");
    row("blanks around the year", " " + thisYear + " ", "42", "000042", "43");
    row("the counter is no number", thisYear, "x", "000000", "1");
    row("the counter is a fraction", thisYear, "4.5", "000000", "1");
    row("the counter is out of range", thisYear, "2147483648", "000000", "1");
    row("the counter is hexadecimal", thisYear, "0x10", "000000", "1");
    row("the counter is negative", thisYear, "-5", "-00005", "-4");
    row("the highest counter wraps", thisYear, "2147483647", "2147483647", "-2147483648");
    row("no year", "absent", "42", "000001", "2");
    row("no counter", thisYear, "absent", "000001", "2");
    row("neither", "absent", "absent", "000001", "2");
}

void tst_ReceiptNumber::aNumberFollowsTheStoredYearAndCounter()
{
    QFETCH(QString, year);
    QFETCH(QString, counter);
    QFETCH(QString, number);
    QFETCH(QString, next);
    const auto store = [this](const QString &key, const QString &value) {
        m_store->database.run(QStringLiteral("DELETE FROM app_state WHERE key = '%1'").arg(key));
        if (value != QLatin1String("absent")) {
            m_store->repositories.appState.save({key, value});
        }
    };
    store("receipt.year", year);
    store("receipt.counter", counter);

    QCOMPARE(pay(newSession()), number);
    QCOMPARE(stored(), next);
}

void tst_ReceiptNumber::theYearOfTheSetupStartsAtZero()
{
    QCOMPARE(pay(newSession()), QStringLiteral("000000"));
    QCOMPARE(stored(), QStringLiteral("1"));
}

void tst_ReceiptNumber::numbersFollowEachOther()
{
    QCOMPARE(pay(newSession()), QStringLiteral("000000"));
    QCOMPARE(pay(newSession()), QStringLiteral("000001"));
    QCOMPARE(pay(newSession()), QStringLiteral("000002"));
}

void tst_ReceiptNumber::aFailedPaymentBurnsNoNumber()
{
    const int session = newSession();
    m_store->refuse("INSERT ON receipt_snapshot");
    expectLog(QtWarningMsg, "Failed to create receipt snapshot:");
    expectLog(QtWarningMsg, "Failed creating receipt snapshot");
    expectLog(QtWarningMsg, "Rolling back transaction");
    QCOMPARE(pay(session), QStringLiteral("failed"));
    m_store->database.run("DROP TRIGGER \"refuse INSERT ON receipt_snapshot\"");

    QCOMPARE(pay(session), QStringLiteral("000000"));
}

void tst_ReceiptNumber::failedWritesOfTheCounterAreNotLookedAt()
{
    m_store->refuse("UPDATE ON app_state");
    expectLog(QtWarningMsg, "Failed to save app state:");
    expectLog(QtWarningMsg, "Failed to save app state:");

    QCOMPARE(pay(newSession()), QStringLiteral("000000"));
    QCOMPARE(stored(), QStringLiteral("0"));
}

ZELVAN_TEST(tst_ReceiptNumber)
#include "tst_receiptnumber.moc"
