// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipRepository.h"
#include "repositories/MembershipSettingsRepository.h"
#include "repositories/MembershipTransactionRepository.h"
#include "services/MembershipService.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <memory>

namespace {
const QString phone = QStringLiteral("0123456789");

struct Rules
{
    bool enabled = true;
    int earnPoints = 1;
    int earnSpend = 1000;
    int redeemPoints = 100;
    int redeemValue = 100;
    const char *earnOn = "total";
};

struct Bill
{
    int subtotal = 0;
    int total = 0;
    int requested = 0;
};

struct Expected
{
    int redeemed = 0;
    int discount = 0;
    int earned = 0;
    int remaining = 0;
};
} // namespace
Q_DECLARE_METATYPE(Rules)
Q_DECLARE_METATYPE(Bill)
Q_DECLARE_METATYPE(Expected)

/// The one rule, through both of its doors: what the screen is told is what the payment does.
class tst_MembershipRules : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void previewAndPaymentFollowTheSameRule_data();
    void previewAndPaymentFollowTheSameRule();

private:
    void checkPreview(const Bill &bill, int points, const Expected &expected);
    void checkPayment(const Bill &bill, int points, const Expected &expected);

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<MembershipRepository> m_memberships;
    std::unique_ptr<MembershipSettingsRepository> m_settings;
    std::unique_ptr<MembershipTransactionRepository> m_transactions;
    std::unique_ptr<MembershipService> m_service;
};

void tst_MembershipRules::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_memberships = std::make_unique<MembershipRepository>(m_database->handle());
    m_settings = std::make_unique<MembershipSettingsRepository>(m_database->handle());
    m_transactions = std::make_unique<MembershipTransactionRepository>(m_database->handle());
    m_service = std::make_unique<MembershipService>(m_memberships.get(), m_settings.get(),
                                                    m_transactions.get());
}

void tst_MembershipRules::cleanup()
{
    m_service.reset();
    m_transactions.reset();
    m_settings.reset();
    m_memberships.reset();
    m_database.reset();
}

void tst_MembershipRules::previewAndPaymentFollowTheSameRule_data()
{
    QTest::addColumn<Rules>("rules");
    QTest::addColumn<int>("points");
    QTest::addColumn<Bill>("bill");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const Rules &rules, int points, const Bill &bill,
                        const Expected &expected) {
        QTest::newRow(name) << rules << points << bill << expected;
    };
    const Rules seeded;

    row("seeded rules earn on the total", seeded, 0, {2300, 2500, 0}, {0, 0, 2, 2500});
    row("seeded rules redeem 150 of 150", seeded, 150, {2300, 2500, 150}, {150, 150, 2, 2350});
    row("a redemption worth more than the bill pays it all", seeded, 500, {300, 300, 500},
        {300, 300, 0, 0});
    row("a redemption worth just the bill", seeded, 300, {300, 300, 300}, {300, 300, 0, 0});
    // No cap: the points are not reckoned back from the bill, which would make them 4.
    row("a cut worth that is just the bill", {true, 1, 1000, 7, 10}, 100, {7, 7, 5}, {5, 7, 0, 0});
    row("one cent below the bill", seeded, 299, {300, 300, 299}, {299, 299, 0, 1});
    row("points of the cap are cut", {true, 1, 1000, 10, 3}, 10, {1, 1, 10}, {3, 1, 0, 0});
    row("a cap down to no points leaves the discount", {true, 1, 1000, 1, 1000}, 1, {1, 1, 1},
        {0, 1, 0, 0});
    row("more than the balance is cut to the balance", seeded, 40, {2000, 2000, 90},
        {40, 40, 1, 1960});
    row("less than the balance", seeded, 90, {2000, 2000, 40}, {40, 40, 1, 1960});
    row("the worth of points is cut", {true, 1, 1000, 7, 10}, 100, {2000, 2000, 5},
        {5, 7, 1, 1993});
    row("nothing requested", seeded, 90, {2000, 2000, 0}, {0, 0, 2, 2000});
    row("a negative request", seeded, 90, {2000, 2000, -5}, {0, 0, 2, 2000});
    row("no points to redeem", seeded, 0, {2000, 2000, 50}, {0, 0, 2, 2000});
    row("redeem_points 0", {true, 1, 1000, 0, 100}, 90, {2000, 2000, 50}, {0, 0, 2, 2000});
    row("redeem_points negative", {true, 1, 1000, -1, 100}, 90, {2000, 2000, 50}, {0, 0, 2, 2000});
    row("redeem_value 0", {true, 1, 1000, 100, 0}, 90, {2000, 2000, 50}, {0, 0, 2, 2000});
    row("redeem_value negative", {true, 1, 1000, 100, -1}, 90, {2000, 2000, 50}, {0, 0, 2, 2000});
    row("a bill of nothing takes a discount of nothing", seeded, 50, {0, 0, 50}, {0, 0, 0, 0});

    row("1999 cents are one unit of 1000", seeded, 0, {1999, 1999, 0}, {0, 0, 1, 1999});
    row("the division comes before the points", {true, 3, 1000}, 0, {1999, 1999, 0},
        {0, 0, 3, 1999});
    row("999 cents earn nothing", seeded, 0, {999, 999, 0}, {0, 0, 0, 999});
    row("on the subtotal: no tax, discount ignored", {true, 1, 1000, 100, 100, "subtotal"}, 500,
        {2000, 2120, 500}, {500, 500, 2, 1620});
    row("on the total: tax counts, discount does not", {true, 1, 1000, 100, 100, "total"}, 500,
        {2900, 3074, 500}, {500, 500, 2, 2574});
    row("any other word earns on the total", {true, 1, 1000, 100, 100, "SUBTOTAL"}, 0,
        {900, 2000, 0}, {0, 0, 2, 2000});
    row("no word earns on the total", {true, 1, 1000, 100, 100, ""}, 0, {900, 2000, 0},
        {0, 0, 2, 2000});
    row("switched off: redeems all the same, earns nothing", {false}, 50, {2000, 2000, 50},
        {50, 50, 0, 1950});
    row("earn_points 0", {true, 0, 1000}, 0, {2000, 2000, 0}, {0, 0, 0, 2000});
    row("earn_points negative", {true, -1, 1000}, 0, {2000, 2000, 0}, {0, 0, 0, 2000});
    row("earn_spend 0", {true, 1, 0}, 0, {2000, 2000, 0}, {0, 0, 0, 2000});
    row("earn_spend negative", {true, 1, -1000}, 0, {2000, 2000, 0}, {0, 0, 0, 2000});
    row("one cent a point", {true, 1, 1}, 0, {123, 130, 0}, {0, 0, 130, 130});

    // 2,000,000 x 2000 is 4,000,000,000, which wraps to -294,967,296.
    row("the worth of the points wraps", {false, 1, 1000, 100, 2000}, 2'000'000,
        {1000, 1000, 2'000'000}, {2'000'000, -2'949'672, 0, 2'950'672});
    // 6 x 1,000,000,000 wraps to 1,705,032,704.
    row("a wrapped worth is capped like any other", {false, 1, 1000, 10, 1'000'000'000}, 6,
        {1000, 1000, 6}, {0, 1000, 0, 0});
    // 1,705,032,704 once more, this time as points.
    row("earned points wrap", {true, 3, 1}, 0, {2'000'000'000, 2'000'000'000, 0},
        {0, 0, 1'705'032'704, 2'000'000'000});
    // -1,000,000,000 x 10 wraps to -1,410,065,408.
    row("a refund's cap wraps", {false, 1, 1000, 10, 100}, 10, {0, -1'000'000'000, 10},
        {-14'100'654, -1'000'000'000, 0, 0});
}

void tst_MembershipRules::previewAndPaymentFollowTheSameRule()
{
    QFETCH(Rules, rules);
    QFETCH(int, points);
    QFETCH(Bill, bill);
    QFETCH(Expected, expected);
    m_settings->save({1, rules.enabled, rules.earnPoints, rules.earnSpend, rules.redeemPoints,
                      rules.redeemValue, QString::fromLatin1(rules.earnOn)});
    m_memberships->create({-1, phone, points, QStringLiteral("active")});

    checkPreview(bill, points, expected);
    checkPayment(bill, points, expected);
}

void tst_MembershipRules::checkPreview(const Bill &bill, int points, const Expected &expected)
{
    const QVariantMap preview =
        m_service->preview(phone, bill.subtotal, bill.total, bill.requested);

    const QVariantMap whole{
        {QStringLiteral("success"), true},
        {QStringLiteral("memberFound"), true},
        {QStringLiteral("memberId"), 1},
        {QStringLiteral("currentPoints"), points},
        {QStringLiteral("redeemedPoints"), expected.redeemed},
        {QStringLiteral("redeemDiscountCents"), expected.discount},
        {QStringLiteral("earnedPoints"), expected.earned},
        {QStringLiteral("finalTotalCents"), expected.remaining},
    };
    QCOMPARE(preview, whole);
    QCOMPARE(m_memberships->getByPhone(phone).total_points, points);
}

void tst_MembershipRules::checkPayment(const Bill &bill, int points, const Expected &expected)
{
    const int session = m_database->insert(QStringLiteral(
        "INSERT INTO order_sessions (display_number, order_type) VALUES (4001, 'takeaway')"));

    const MembershipResult result =
        m_service->applyCheckout(session, phone, bill.subtotal, bill.total, bill.requested);

    QVERIFY(result.success);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.redeemedPoints, expected.redeemed);
    QCOMPARE(result.redeemDiscountCents, double(expected.discount));
    QCOMPARE(result.earnedPoints, expected.earned);
    const int taken = qMax(0, expected.redeemed);
    QCOMPARE(m_memberships->getByPhone(phone).total_points, points - taken + expected.earned);
    QCOMPARE(m_transactions->getRedeemedPoints(session), taken);
    QCOMPARE(m_transactions->getEarnedPoints(session), expected.earned);
}

ZELVAN_TEST(tst_MembershipRules)
#include "tst_membershiprules.moc"
