// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/MembershipService.h"
#include "support/DatabaseDump.h"
#include "support/LogCapture.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>

#include <memory>

namespace {
const QString phone = QStringLiteral("0123456789");

QVariantMap untouchedPreview(int totalCents)
{
    return {
        {QStringLiteral("success"), false},    {QStringLiteral("memberFound"), false},
        {QStringLiteral("memberId"), 0},       {QStringLiteral("currentPoints"), 0},
        {QStringLiteral("redeemedPoints"), 0}, {QStringLiteral("redeemDiscountCents"), 0},
        {QStringLiteral("earnedPoints"), 0},   {QStringLiteral("finalTotalCents"), totalCents},
    };
}
} // namespace

class tst_MembershipService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }
    void anEmptyPhonePreviewsNothing();
    void anUnknownPhonePreviewsWhatANewMemberWouldEarn();
    void aRevokedMemberCannotPreview();
    void aPreviewWithoutSettingsSaysSo();
    void previewWritesNothing();
    void onlyRevokedRefusesAPayment_data();
    void onlyRevokedRefusesAPayment();
    void aPaymentWithoutSettingsFailsButHasEnrolled();
    void aNewPhoneIsEnrolledEvenWhenItEarnsNothing();
    void aPhoneThatCannotBeEnrolledStillCountsAsPaid();
    void redeemIsWrittenBeforeEarn();
    void failedWritesOfPointsAreNotExamined();
    void paymentIsNotForTheScreens();

private:
    int newSession();

    std::unique_ptr<TestStore> m_store;
};

void tst_MembershipService::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_store->database.run(QStringLiteral("UPDATE membership_settings SET enabled = 1"));
}

int tst_MembershipService::newSession()
{
    return m_store->database.insert(QStringLiteral(
        "INSERT INTO order_sessions (display_number, order_type) VALUES (4001, 'takeaway')"));
}

void tst_MembershipService::anEmptyPhonePreviewsNothing()
{
    QCOMPARE(m_store->services.membership.preview(QString(), 2300, 2500, 10),
             untouchedPreview(2500));
}

void tst_MembershipService::anUnknownPhonePreviewsWhatANewMemberWouldEarn()
{
    QVariantMap expected = untouchedPreview(2500);
    expected[QStringLiteral("success")] = true;
    expected[QStringLiteral("earnedPoints")] = 2;

    QCOMPARE(m_store->services.membership.preview(phone, 2300, 2500, 10), expected);
}

void tst_MembershipService::aRevokedMemberCannotPreview()
{
    const int member = m_store->addMember(phone, 250, QStringLiteral("revoked"));
    QVariantMap expected = untouchedPreview(2500);
    expected[QStringLiteral("memberFound")] = true;
    expected[QStringLiteral("memberId")] = member;
    expected[QStringLiteral("currentPoints")] = 250;
    expected[QStringLiteral("error")] = QStringLiteral("MEMBER_REVOKED");

    QCOMPARE(m_store->services.membership.preview(phone, 2300, 2500, 10), expected);
}

void tst_MembershipService::aPreviewWithoutSettingsSaysSo()
{
    const int member = m_store->addMember(phone, 250);
    m_store->database.run(QStringLiteral("DELETE FROM membership_settings"));
    QVariantMap expected = untouchedPreview(2500);
    expected[QStringLiteral("memberFound")] = true;
    expected[QStringLiteral("memberId")] = member;
    expected[QStringLiteral("currentPoints")] = 250;
    expected[QStringLiteral("error")] = QStringLiteral("MEMBERSHIP_SETTINGS_NOT_FOUND");

    QCOMPARE(m_store->services.membership.preview(phone, 2300, 2500, 10), expected);
}

void tst_MembershipService::previewWritesNothing()
{
    m_store->addMember(phone, 250);
    const QStringList before = dumpOf(m_store->database);

    m_store->services.membership.preview(phone, 2300, 2500, 100);
    m_store->services.membership.preview(QStringLiteral("999"), 2300, 2500, 100);

    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_MembershipService::onlyRevokedRefusesAPayment_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("pays");

    QTest::newRow("active") << QStringLiteral("active") << true;
    QTest::newRow("empty") << QStringLiteral("") << true;
    QTest::newRow("an unknown word") << QStringLiteral("gold") << true;
    QTest::newRow("another case") << QStringLiteral("Revoked") << true;
    QTest::newRow("revoked") << QStringLiteral("revoked") << false;
}

void tst_MembershipService::onlyRevokedRefusesAPayment()
{
    QFETCH(QString, status);
    QFETCH(bool, pays);
    m_store->addMember(phone, 250, status);
    const int session = newSession();
    const QStringList before = dumpOf(m_store->database);

    const MembershipResult result =
        m_store->services.membership.applyCheckout(session, phone, 2300, 2500, 100);

    QCOMPARE(result.success, pays);
    QCOMPARE(result.error, pays ? QString() : QStringLiteral("MEMBER_REVOKED"));
    QCOMPARE(result.redeemedPoints, pays ? 100 : 0);
    QCOMPARE(result.earnedPoints, pays ? 2 : 0);
    QCOMPARE(dumpOf(m_store->database) == before, !pays);
    QCOMPARE(m_store->services.membership.preview(phone, 2300, 2500, 0)
                 .value(QStringLiteral("success"))
                 .toBool(),
             pays);
}

void tst_MembershipService::aPaymentWithoutSettingsFailsButHasEnrolled()
{
    m_store->database.run(QStringLiteral("DELETE FROM membership_settings"));

    const MembershipResult result =
        m_store->services.membership.applyCheckout(newSession(), phone, 2300, 2500, 0);

    QVERIFY(!result.success);
    QCOMPARE(result.error, QStringLiteral("MEMBERSHIP_SETTINGS_NOT_FOUND"));
    // Undone by the rollback of the payment that it is a step of.
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM memberships"), qint64(1));
}

void tst_MembershipService::aNewPhoneIsEnrolledEvenWhenItEarnsNothing()
{
    const MembershipResult first =
        m_store->services.membership.applyCheckout(newSession(), phone, 500, 500, 10);
    const MembershipResult second =
        m_store->services.membership.applyCheckout(newSession(), phone, 500, 500, 10);

    QVERIFY(first.success && second.success);
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM memberships"), qint64(1));
    const Membership member = m_store->services.membership.getOrCreateMember(phone);
    QCOMPARE(member.phone_number, phone);
    QCOMPARE(member.total_points, 0);
    QCOMPARE(member.status, QStringLiteral("active"));
    QCOMPARE(m_store->number("SELECT COUNT(*) FROM membership_transactions"), qint64(0));
}

void tst_MembershipService::aPhoneThatCannotBeEnrolledStillCountsAsPaid()
{
    m_store->refuse("INSERT ON memberships");
    const int session = newSession();
    const LogCapture log;

    const MembershipResult result =
        m_store->services.membership.applyCheckout(session, phone, 2300, 2500, 10);

    QVERIFY(result.success);
    QCOMPARE(result.earnedPoints, 2);
    QCOMPARE(log.lines(),
             QStringList(
                 {QStringLiteral("warning [membership] Failed to insert membership: <QSqlError>"),
                  QStringLiteral("warning [membership] Invalid membership ID: -1")}));
}

void tst_MembershipService::redeemIsWrittenBeforeEarn()
{
    const int member = m_store->addMember(phone, 150);
    const int session = newSession();

    const MembershipResult result =
        m_store->services.membership.applyCheckout(session, phone, 2300, 2500, 150);

    QVERIFY(result.success);
    QCOMPARE(
        dumpOf(m_store->database).filter(QStringLiteral("membership_transactions id=1 ")).size(),
        1);
    const auto cell = [this](int id, const char *column) {
        return m_store->database
            .value(QStringLiteral("SELECT %1 FROM membership_transactions WHERE id = %2")
                       .arg(QString::fromLatin1(column), QString::number(id)))
            .toString();
    };
    QCOMPARE(cell(1, "type"), QStringLiteral("redeem"));
    QCOMPARE(cell(1, "points"), QStringLiteral("150"));
    QCOMPARE(cell(1, "membership_id"), QString::number(member));
    QCOMPARE(cell(1, "order_session_id"), QString::number(session));
    QCOMPARE(cell(2, "type"), QStringLiteral("earn"));
    QCOMPARE(cell(2, "points"), QStringLiteral("2"));
    QCOMPARE(m_store->services.membership.getOrCreateMember(phone).total_points, 2);
}

void tst_MembershipService::failedWritesOfPointsAreNotExamined()
{
    m_store->addMember(phone, 150);
    const int session = newSession();
    m_store->refuse("UPDATE ON memberships");
    m_store->refuse("INSERT ON membership_transactions");
    const LogCapture log;

    const MembershipResult result =
        m_store->services.membership.applyCheckout(session, phone, 2300, 2500, 100);

    QVERIFY(result.success);
    QCOMPARE(result.redeemedPoints, 100);
    QCOMPARE(result.earnedPoints, 2);
    const QString adjust =
        QStringLiteral("warning [membership] Failed to adjust points: <QSqlError>");
    const QString insert =
        QStringLiteral("warning [membership] Failed to insert membership transaction: <QSqlError>");
    QCOMPARE(log.lines(), QStringList({adjust, insert, adjust, insert}));
}

void tst_MembershipService::paymentIsNotForTheScreens()
{
    QStringList offered;
    const QMetaObject &meta = MembershipService::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        offered.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }

    QCOMPARE(offered, QStringList{QStringLiteral("preview(QString,int,int,int)")});
}

ZELVAN_TEST(tst_MembershipService)
#include "tst_membershipservice.moc"
