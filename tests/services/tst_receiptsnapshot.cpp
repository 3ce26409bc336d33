// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <memory>

namespace {
const QString phone = QStringLiteral("0123456789");
} // namespace

/// What a payment freezes for the receipts to come.
class tst_ReceiptSnapshot : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void storeTaxTypeAndTableAreFrozen();
    void theCashierIsWhoeverIsLoggedIn();
    void absentDetailsOfTheStoreAreEmptyTexts();
    void taxSwitchedOffFreezesNoTax_data();
    void taxSwitchedOffFreezesNoTax();
    void anAbsentRegistrationNumberIsAnEmptyText();
    void theBalanceBeforeIsReckonedBackwards();
    void aMemberWithoutMovementLeavesNoTrace();
    void membershipSwitchedOffLeavesNoMember();
    void aTakeawayHasNoTable();
    void aSessionWithoutASnapshotCannotBePrinted();

private:
    [[nodiscard]] std::optional<ReceiptSnapshot> pay(const QString &memberPhone = {},
                                                     int points = 0);

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_session = 0;
};

void tst_ReceiptSnapshot::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({});
    const int table = m_store->addTable("T1");
    m_session = m_store->sessionOf(m_store->orderAtTable(table, {TestStore::line(m_soup, 7)}));
}

std::optional<ReceiptSnapshot> tst_ReceiptSnapshot::pay(const QString &memberPhone, int points)
{
    if (!m_store->services.checkout.completeCheckout(m_session, memberPhone, points)) {
        return std::nullopt;
    }
    return m_store->repositories.receiptSnapshots.getByOrderSession(m_session);
}

void tst_ReceiptSnapshot::storeTaxTypeAndTableAreFrozen()
{
    m_store->setTax(825, "VAT");

    const std::optional<ReceiptSnapshot> snapshot = pay();

    QVERIFY(snapshot);
    QCOMPARE(snapshot->order_session_id, m_session);
    QCOMPARE(snapshot->cashier_name, std::optional<QString>(""));
    QCOMPARE(snapshot->store_name, std::optional<QString>("Lotus"));
    QCOMPARE(snapshot->address, std::optional<QString>("1 Main St"));
    QCOMPARE(snapshot->phone, std::optional<QString>("555-0100"));
    QCOMPARE(snapshot->email, std::optional<QString>("hi@lotus.example"));
    QCOMPARE(snapshot->website, std::optional<QString>("lotus.example"));
    QCOMPARE(snapshot->tax_name, std::optional<QString>("VAT"));
    QCOMPARE(snapshot->tax_rate, std::optional<int>(825));
    QCOMPARE(snapshot->tax_registration_number, std::optional<QString>("REG-7"));
    QVERIFY(!snapshot->member_phone);
    QVERIFY(!snapshot->points_balance_before);
    QVERIFY(!snapshot->points_balance_after);
    QCOMPARE(snapshot->order_type, std::optional<QString>("dine_in"));
    QCOMPARE(snapshot->table_name, std::optional<QString>("T1"));
    QVERIFY(snapshot->created_at);
}

void tst_ReceiptSnapshot::theCashierIsWhoeverIsLoggedIn()
{
    QSignalSpy finished(&m_store->services.users, &UserService::createUserFinished);
    m_store->services.users.createUser("maria", "secret-Word1", "secret-Word1", "admin");
    QVERIFY(finished.wait(30'000));
    QVERIFY(m_store->services.auth.login("maria", "secret-Word1"));

    const std::optional<ReceiptSnapshot> snapshot = pay();

    QCOMPARE(snapshot->cashier_name, std::optional<QString>("maria"));
}

void tst_ReceiptSnapshot::absentDetailsOfTheStoreAreEmptyTexts()
{
    m_store->database.run(
        "UPDATE restaurant SET phone_number = NULL, email = NULL, website = NULL");

    const std::optional<ReceiptSnapshot> snapshot = pay();

    QCOMPARE(snapshot->phone, std::optional<QString>(""));
    QCOMPARE(snapshot->email, std::optional<QString>(""));
    QCOMPARE(snapshot->website, std::optional<QString>(""));
}

void tst_ReceiptSnapshot::taxSwitchedOffFreezesNoTax_data()
{
    QTest::addColumn<QString>("sql");

    QTest::newRow("switched off") << QStringLiteral("UPDATE tax_settings SET enabled = 0");
    QTest::newRow("no row") << QStringLiteral("DELETE FROM tax_settings");
}

void tst_ReceiptSnapshot::taxSwitchedOffFreezesNoTax()
{
    QFETCH(QString, sql);
    m_store->setTax(825, "VAT");
    m_store->database.run(sql);

    const std::optional<ReceiptSnapshot> snapshot = pay();

    QCOMPARE(snapshot->tax_name, std::optional<QString>(""));
    QCOMPARE(snapshot->tax_rate, std::optional<int>(0));
    QCOMPARE(snapshot->tax_registration_number, std::optional<QString>(""));
}

void tst_ReceiptSnapshot::anAbsentRegistrationNumberIsAnEmptyText()
{
    m_store->setTax(825, "VAT");
    m_store->database.run("UPDATE tax_settings SET registration_number = NULL");

    const std::optional<ReceiptSnapshot> snapshot = pay();

    QCOMPARE(snapshot->tax_name, std::optional<QString>("VAT"));
    QCOMPARE(snapshot->tax_registration_number, std::optional<QString>(""));
}

void tst_ReceiptSnapshot::theBalanceBeforeIsReckonedBackwards()
{
    m_store->setMembershipEnabled(true);
    m_store->database.run("UPDATE membership_settings SET earn_on = 'subtotal'");
    m_store->addMember(phone, 343);

    const std::optional<ReceiptSnapshot> snapshot = pay(phone, 100);

    // 7000 cents earn 7.
    QCOMPARE(snapshot->member_phone, std::optional<QString>(phone));
    QCOMPARE(snapshot->points_balance_before, std::optional<int>(343));
    QCOMPARE(snapshot->points_balance_after, std::optional<int>(250));
}

void tst_ReceiptSnapshot::aMemberWithoutMovementLeavesNoTrace()
{
    m_store->setMembershipEnabled(true);
    m_store->database.run("UPDATE membership_settings SET earn_points = 0");

    const std::optional<ReceiptSnapshot> snapshot = pay(phone);

    QCOMPARE(m_store->number("SELECT COUNT(*) FROM memberships"), qint64(1));
    QVERIFY(!snapshot->member_phone);
    QVERIFY(!snapshot->points_balance_before);
    QVERIFY(!snapshot->points_balance_after);
}

void tst_ReceiptSnapshot::membershipSwitchedOffLeavesNoMember()
{
    const int member = m_store->addMember(phone, 343);
    m_store->database.run(QStringLiteral("INSERT INTO membership_transactions (membership_id, "
                                         "order_session_id, type, points) VALUES (%1, %2, 'earn', "
                                         "5)")
                              .arg(member)
                              .arg(m_session));

    const std::optional<ReceiptSnapshot> snapshot = pay(phone);

    QVERIFY(!snapshot->member_phone);
}

void tst_ReceiptSnapshot::aTakeawayHasNoTable()
{
    m_session = m_store->sessionOf(m_store->orderTakeaway({TestStore::line(m_soup)}));

    const std::optional<ReceiptSnapshot> snapshot = pay();

    QCOMPARE(snapshot->order_type, std::optional<QString>("takeaway"));
    QVERIFY(!snapshot->table_name);
}

void tst_ReceiptSnapshot::aSessionWithoutASnapshotCannotBePrinted()
{
    m_store->addPrinter("Till", "receipt");
    QVERIFY(pay());
    QVERIFY(m_store->services.checkout.printReceipt(m_session, false));
    m_store->database.run("DELETE FROM receipt_snapshot");

    QVERIFY(!m_store->services.checkout.printReceipt(m_session, false));

    QCOMPARE(m_store->spooler.documents().size(), 1);
}

ZELVAN_TEST(tst_ReceiptSnapshot)
#include "tst_receiptsnapshot.moc"
