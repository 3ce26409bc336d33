// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db;
    MembershipRepository members{db.handle()};
};

Membership member(const QString &phone, int points = 0,
                  const QString &status = QStringLiteral("active"))
{
    Membership membership;
    membership.phone_number = phone;
    membership.total_points = points;
    membership.status = status;
    return membership;
}

QStringList phonesOf(const QList<Membership> &members)
{
    QStringList phones;
    for (const Membership &membership : members) {
        phones.append(membership.phone_number);
    }
    return phones;
}
} // namespace

class tst_MembershipRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedMemberIsFoundByIdAndByTheExactPhone();
    void anUnknownMemberHasTheIdMinusOne();
    void aPhoneIsTakenOnce();
    void pointsMove_data();
    void pointsMove();
    void movingPointsStampsTheChange();
    void negativePointsAndOtherOperationsAreRefused();
    void anUpdateNeverTouchesThePoints();
    void aRemovedMemberIsGone();
    void aMemberWithMovementsCannotBeRemoved();
    void aSearchMatchesAnywhereNewestFirst();
    void membersAreListedByStatus();
    void everyFailureIsLogged();
};

void tst_MembershipRepository::aCreatedMemberIsFoundByIdAndByTheExactPhone()
{
    Fixture f;

    QVERIFY(f.members.create(member(QStringLiteral("555 01"), 7, QStringLiteral("revoked"))));

    for (const Membership &found :
         {f.members.getById(1), f.members.getByPhone(QStringLiteral("555 01"))}) {
        QCOMPARE(found.id, 1);
        QCOMPARE(found.phone_number, QStringLiteral("555 01"));
        QCOMPARE(found.total_points, 7);
        QCOMPARE(found.status, QStringLiteral("revoked"));
    }
}

void tst_MembershipRepository::anUnknownMemberHasTheIdMinusOne()
{
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("55501"))));

    QCOMPARE(f.members.getById(2).id, -1);
    QCOMPARE(f.members.getByPhone(QStringLiteral("5550")).id, -1);
    QCOMPARE(f.members.getByPhone(QStringLiteral("%")).id, -1);
}

void tst_MembershipRepository::aPhoneIsTakenOnce()
{
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("55501"))));

    QCOMPARE(logOf([&] { QVERIFY(!f.members.create(member(QStringLiteral("55501")))); }),
             QStringLiteral("warning [membership] Failed to insert membership: <QSqlError>"));
}

void tst_MembershipRepository::pointsMove_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("balance");

    QTest::newRow("add") << "add" << 20 << 120;
    QTest::newRow("add nothing") << "add" << 0 << 100;
    QTest::newRow("subtract") << "subtract" << 30 << 70;
    QTest::newRow("subtract all") << "subtract" << 100 << 0;
    QTest::newRow("subtract more than there is") << "subtract" << 101 << 0;
}

void tst_MembershipRepository::pointsMove()
{
    QFETCH(QString, operation);
    QFETCH(int, points);
    QFETCH(int, balance);
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("1"), 100)));
    QVERIFY(f.members.create(member(QStringLiteral("2"), 100)));

    QVERIFY(f.members.adjustPoints(1, operation, points));

    QCOMPARE(f.members.getById(1).total_points, balance);
    QCOMPARE(f.members.getById(2).total_points, 100);
}

void tst_MembershipRepository::movingPointsStampsTheChange()
{
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO memberships (phone_number, created_at, updated_at) "
                            "VALUES ('1', '2001', '2001'), ('2', '2001', '2001')"));

    QVERIFY(f.members.adjustPoints(1, QStringLiteral("add"), 1));
    QVERIFY(f.members.adjustPoints(2, QStringLiteral("subtract"), 1));

    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM memberships WHERE created_at = '2001' "
                                       "AND updated_at > '2020-01-01'"))
                 .toInt(),
             2);
}

void tst_MembershipRepository::negativePointsAndOtherOperationsAreRefused()
{
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("1"), 100)));

    QCOMPARE(logOf([&] { QVERIFY(!f.members.adjustPoints(1, QStringLiteral("add"), -1)); }),
             QStringLiteral("warning [membership] Points to adjust must be non-negative."));
    QCOMPARE(
        logOf([&] { QVERIFY(!f.members.adjustPoints(1, QStringLiteral("double"), 1)); }),
        QStringLiteral("warning [membership] Invalid points adjustment operation: \"double\""));
    QCOMPARE(f.members.getById(1).total_points, 100);
}

void tst_MembershipRepository::anUpdateNeverTouchesThePoints()
{
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO memberships (phone_number, total_points, status, "
                            "updated_at) VALUES ('1', 100, 'active', '2001')"));
    Membership changed = member(QStringLiteral("2"), 5, QStringLiteral("revoked"));
    changed.id = 1;

    QVERIFY(f.members.update(changed));

    QCOMPARE(f.members.getById(1).phone_number, QStringLiteral("2"));
    QCOMPARE(f.members.getById(1).status, QStringLiteral("revoked"));
    QCOMPARE(f.members.getById(1).total_points, 100);
    QVERIFY(
        f.db.value(QStringLiteral("SELECT updated_at > '2020-01-01' FROM memberships")).toBool());
}

void tst_MembershipRepository::aRemovedMemberIsGone()
{
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("1"))));
    QVERIFY(f.members.create(member(QStringLiteral("2"))));

    QVERIFY(f.members.remove(1));

    QCOMPARE(phonesOf(f.members.getAll()), QStringList{QStringLiteral("2")});
}

void tst_MembershipRepository::aMemberWithMovementsCannotBeRemoved()
{
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("1"))));
    f.db.run(QStringLiteral(
        "INSERT INTO order_sessions (display_number, order_type) VALUES (1, 'takeaway')"));
    f.db.run(QStringLiteral("INSERT INTO membership_transactions (membership_id, order_session_id, "
                            "type, points) VALUES (1, 1, 'earn', 1)"));

    QCOMPARE(logOf([&] { QVERIFY(!f.members.remove(1)); }),
             QStringLiteral("warning [membership] Failed to delete membership: <QSqlError>"));
    QCOMPARE(f.members.getById(1).id, 1);
}

void tst_MembershipRepository::aSearchMatchesAnywhereNewestFirst()
{
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("12345"))));
    QVERIFY(f.members.create(member(QStringLiteral("999"))));
    QVERIFY(f.members.create(member(QStringLiteral("0 234"))));

    QCOMPARE(phonesOf(f.members.search(QStringLiteral("234"))),
             (QStringList{QStringLiteral("0 234"), QStringLiteral("12345")}));
    QCOMPARE(f.members.search(QString()).size(), 3);
    QVERIFY(f.members.search(QStringLiteral("777")).isEmpty());
}

void tst_MembershipRepository::membersAreListedByStatus()
{
    Fixture f;
    QVERIFY(f.members.create(member(QStringLiteral("1"))));
    QVERIFY(f.members.create(member(QStringLiteral("2"), 0, QStringLiteral("revoked"))));

    QCOMPARE(phonesOf(f.members.getByStatus(QStringLiteral("revoked"))),
             QStringList{QStringLiteral("2")});
    QCOMPARE(f.members.getAll().size(), 2);
}

void tst_MembershipRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [membership] %1 <QSqlError>").arg(QLatin1String(text));
    };
    const QString text = QStringLiteral("x");
    f.db.run(QStringLiteral("ALTER TABLE memberships RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QCOMPARE(f.members.getById(1).id, -1); }),
             line("Failed to fetch membership:"));
    QCOMPARE(logOf([&] { QCOMPARE(f.members.getByPhone(text).id, -1); }),
             line("Failed to fetch membership:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.members.create(member(text))); }),
             line("Failed to insert membership:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.members.update(member(text))); }),
             line("Failed to update membership:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.members.remove(1)); }), line("Failed to delete membership:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.members.adjustPoints(1, QStringLiteral("add"), 1)); }),
             line("Failed to adjust points:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.members.adjustPoints(1, QStringLiteral("subtract"), 1)); }),
             line("Failed to adjust points:"));
    QCOMPARE(logOf([&] { QVERIFY(f.members.search(text).isEmpty()); }),
             line("Failed to search memberships:"));
    QCOMPARE(logOf([&] { QVERIFY(f.members.getAll().isEmpty()); }),
             line("Failed to fetch all memberships:"));
    QCOMPARE(logOf([&] { QVERIFY(f.members.getByStatus(text).isEmpty()); }),
             line("Failed to fetch memberships by status:"));
}

ZELVAN_TEST(tst_MembershipRepository)
#include "tst_membershiprepository.moc"
