// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipTransactionRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
/// Members 1 and 2, sessions 1 (number 4001) and 2 (number 4002).
struct Fixture
{
    Fixture()
    {
        db.run(QStringLiteral("INSERT INTO memberships (phone_number) VALUES ('1'), ('2')"));
        db.run(QStringLiteral("INSERT INTO order_sessions (display_number, order_type) "
                              "VALUES (4001, 'takeaway'), (4002, 'takeaway')"));
    }

    void movement(const QString &values)
    {
        db.run(QStringLiteral("INSERT INTO membership_transactions (membership_id, "
                              "order_session_id, type, points, created_at) VALUES (%1)")
                   .arg(values));
    }

    TestDatabase db;
    MembershipTransactionRepository transactions{db.handle()};
};

MembershipTransaction earned(int points, int memberId = 1, int sessionId = 1)
{
    MembershipTransaction transaction;
    transaction.membership_id = memberId;
    transaction.order_session_id = sessionId;
    transaction.type = QStringLiteral("earn");
    transaction.points = points;
    return transaction;
}

QList<int> idsOf(const QList<MembershipTransaction> &transactions)
{
    QList<int> ids;
    for (const MembershipTransaction &transaction : transactions) {
        ids.append(transaction.id);
    }
    return ids;
}

QString sqlFailure(const char *text)
{
    return QStringLiteral("warning [membership] %1 <QSqlError>").arg(QLatin1String(text));
}
} // namespace

class tst_MembershipTransactionRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedMovementIsReadBack();
    void badMovementsAreRefused_data();
    void badMovementsAreRefused();
    void anIdBelowOneIsRefused();
    void anUnknownMovementIsTold();
    void pointsAreSummedBySessionAndType();
    void theMemberOfASessionIsThatOfAnyMovement();
    void listsComeNewestFirst();
    void aTypeOutsideTheTwoListsNothing();
    void theHistoryCarriesTimeAndNumber();
    void theHistoryOutlivesItsSession();
    void everyFailureIsLogged();
};

void tst_MembershipTransactionRepository::aCreatedMovementIsReadBack()
{
    Fixture f;
    MembershipTransaction redeemed = earned(5, 2, 2);
    redeemed.type = QStringLiteral("redeem");

    QVERIFY(f.transactions.create(redeemed));

    const std::optional<MembershipTransaction> found = f.transactions.getById(1);
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->membership_id, 2);
    QCOMPARE(found->order_session_id, 2);
    QCOMPARE(found->type, QStringLiteral("redeem"));
    QCOMPARE(found->points, 5);
}

void tst_MembershipTransactionRepository::badMovementsAreRefused_data()
{
    QTest::addColumn<int>("memberId");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("told");

    QTest::newRow("no member") << 0 << 1 << "earn"
                               << "Invalid membership ID: 0";
    QTest::newRow("negative member") << -1 << 0 << "gift"
                                     << "Invalid membership ID: -1";
    QTest::newRow("no points") << 1 << 0 << "gift"
                               << "Points must be greater than zero.";
    QTest::newRow("negative points") << 1 << -5 << "earn"
                                     << "Points must be greater than zero.";
    QTest::newRow("other type") << 1 << 1 << "gift"
                                << "Invalid transaction type: \"gift\"";
    QTest::newRow("other letter case") << 1 << 1 << "Earn"
                                       << "Invalid transaction type: \"Earn\"";
}

void tst_MembershipTransactionRepository::badMovementsAreRefused()
{
    QFETCH(int, memberId);
    QFETCH(int, points);
    QFETCH(QString, type);
    QFETCH(QString, told);
    Fixture f;
    MembershipTransaction transaction = earned(points, memberId);
    transaction.type = type;

    const QString log = logOf([&] { QVERIFY(!f.transactions.create(transaction)); });

    QCOMPARE(log, QStringLiteral("warning [membership] ") + told);
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM membership_transactions")).toInt(), 0);
}

void tst_MembershipTransactionRepository::anIdBelowOneIsRefused()
{
    Fixture f;

    QCOMPARE(logOf([&] { QVERIFY(!f.transactions.getById(0)); }),
             QStringLiteral("warning [membership] Invalid transaction ID: 0"));
    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getByOrderSession(0).isEmpty()); }),
             QStringLiteral("warning [membership] Invalid order session ID: 0"));
    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getByMembership(-2).isEmpty()); }),
             QStringLiteral("warning [membership] Invalid membership ID: -2"));
    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getHistory(0).isEmpty()); }),
             QStringLiteral("warning [membership] Invalid membership ID: 0"));
}

void tst_MembershipTransactionRepository::anUnknownMovementIsTold()
{
    Fixture f;

    QCOMPARE(logOf([&] { QVERIFY(!f.transactions.getById(7)); }),
             QStringLiteral("warning [membership] No membership transaction found with ID: 7"));
}

void tst_MembershipTransactionRepository::pointsAreSummedBySessionAndType()
{
    Fixture f;
    f.movement(QStringLiteral("1, 1, 'earn', 7, '2026'"));
    f.movement(QStringLiteral("1, 1, 'redeem', 100, '2026'"));
    f.movement(QStringLiteral("2, 1, 'earn', 3, '2026'"));
    f.movement(QStringLiteral("1, 2, 'earn', 50, '2026'"));

    QCOMPARE(f.transactions.getEarnedPoints(1), 10);
    QCOMPARE(f.transactions.getRedeemedPoints(1), 100);
    QCOMPARE(f.transactions.sumPoints(2, QStringLiteral("earn")), 50);
    QCOMPARE(f.transactions.getRedeemedPoints(2), 0);
}

void tst_MembershipTransactionRepository::theMemberOfASessionIsThatOfAnyMovement()
{
    Fixture f;
    f.movement(QStringLiteral("2, 1, 'earn', 7, '2026'"));

    QCOMPARE(f.transactions.getMembershipIdBySession(1), 2);
    QCOMPARE(f.transactions.getMembershipIdBySession(2), 0);
}

void tst_MembershipTransactionRepository::listsComeNewestFirst()
{
    Fixture f;
    f.movement(QStringLiteral("1, 1, 'earn', 1, '2026-01-01'"));
    f.movement(QStringLiteral("1, 1, 'redeem', 2, '2026-01-03'"));
    f.movement(QStringLiteral("2, 1, 'earn', 3, '2026-01-02'"));
    f.movement(QStringLiteral("1, 2, 'earn', 4, '2026-01-04'"));

    QCOMPARE(idsOf(f.transactions.getByOrderSession(1)), (QList<int>{2, 3, 1}));
    QCOMPARE(idsOf(f.transactions.getByType(QStringLiteral("earn"))), (QList<int>{4, 3, 1}));
    QCOMPARE(idsOf(f.transactions.getByMembership(1)), (QList<int>{4, 2, 1}));
    QCOMPARE(idsOf(f.transactions.getHistory(1)), (QList<int>{4, 2, 1}));
    QCOMPARE(f.transactions.getByMembership(1).at(1).points, 2);
}

void tst_MembershipTransactionRepository::aTypeOutsideTheTwoListsNothing()
{
    Fixture f;
    f.movement(QStringLiteral("1, 1, 'gift', 1, '2026-01-01'"));

    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getByType(QStringLiteral("gift")).isEmpty()); }),
             QStringLiteral("warning [membership] Invalid transaction type: \"gift\""));
}

void tst_MembershipTransactionRepository::theHistoryCarriesTimeAndNumber()
{
    Fixture f;
    f.movement(QStringLiteral("1, 2, 'earn', 9, '2026-01-02 03:04:05'"));

    const QList<MembershipTransaction> history = f.transactions.getHistory(1);

    QCOMPARE(history.size(), 1);
    QCOMPARE(history.at(0).id, 1);
    QCOMPARE(history.at(0).membership_id, 1);
    QCOMPARE(history.at(0).order_session_id, 2);
    QCOMPARE(history.at(0).type, QStringLiteral("earn"));
    QCOMPARE(history.at(0).points, 9);
    QCOMPARE(history.at(0).created_at, QStringLiteral("2026-01-02 03:04:05"));
    QCOMPARE(history.at(0).display_number, 4002);
}

void tst_MembershipTransactionRepository::theHistoryOutlivesItsSession()
{
    Fixture f;
    f.movement(QStringLiteral("1, 2, 'earn', 9, '2026-01-02 03:04:05'"));
    f.db.run(QStringLiteral("PRAGMA foreign_keys = OFF"));
    f.db.run(QStringLiteral("DELETE FROM order_sessions"));

    const QList<MembershipTransaction> history = f.transactions.getHistory(1);

    QCOMPARE(history.size(), 1);
    QCOMPARE(history.at(0).display_number, 0);
}

void tst_MembershipTransactionRepository::everyFailureIsLogged()
{
    Fixture f;
    const QString earn = QStringLiteral("earn");
    f.db.run(QStringLiteral("ALTER TABLE membership_transactions RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QVERIFY(!f.transactions.create(earned(1))); }),
             sqlFailure("Failed to insert membership transaction:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.transactions.getById(1)); }),
             sqlFailure("Failed to fetch membership transaction:"));
    QCOMPARE(logOf([&] { QCOMPARE(f.transactions.sumPoints(1, earn), 0); }),
             sqlFailure("Failed to sum points:"));
    // The search for a session's member fails without a word.
    QCOMPARE(logOf([&] { QCOMPARE(f.transactions.getMembershipIdBySession(1), 0); }), QString());
    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getByOrderSession(1).isEmpty()); }),
             sqlFailure("Failed to fetch transactions for order session:"));
    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getByType(earn).isEmpty()); }),
             sqlFailure("Failed to fetch transactions by type:"));
    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getByMembership(1).isEmpty()); }),
             sqlFailure("Failed to fetch transactions for membership:"));
    QCOMPARE(logOf([&] { QVERIFY(f.transactions.getHistory(1).isEmpty()); }),
             sqlFailure("Failed to fetch membership transaction history:"));
}

ZELVAN_TEST(tst_MembershipTransactionRepository)
#include "tst_membershiptransactionrepository.moc"
