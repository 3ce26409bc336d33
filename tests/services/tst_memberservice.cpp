// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/MembershipRepository.h"
#include "repositories/MembershipTransactionRepository.h"
#include "services/MemberService.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <memory>

class tst_MemberService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void bothListsBeginEmpty();
    void allMembersAreLoadedRevokedOnesToo();
    void anEmptySearchLoadsAll();
    void aSearchFindsAnyPartNewestFirst();
    void aSearchThatFindsNobodyEmptiesTheList();
    void aMembersDetailsAreAMap();
    void anUnknownMemberHasNoDetails_data();
    void anUnknownMemberHasNoDetails();
    void movementsComeNewestFirstWithTheirSession();

private:
    [[nodiscard]] QVariantList shownPhones() const
    {
        return ModelRows::column(*m_service->membersModel(), "phoneNumber");
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<MembershipRepository> m_members;
    std::unique_ptr<MembershipTransactionRepository> m_transactions;
    std::unique_ptr<MemberService> m_service;
};

void tst_MemberService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_database->run("INSERT INTO memberships (phone_number, total_points, status) VALUES "
                    "('5551234', 7, 'active'), ('5559999', 0, 'revoked'), ('123', 2, 'active')");
    m_members = std::make_unique<MembershipRepository>(m_database->handle());
    m_transactions = std::make_unique<MembershipTransactionRepository>(m_database->handle());
    m_service = std::make_unique<MemberService>(m_members.get(), m_transactions.get());
}

void tst_MemberService::cleanup()
{
    m_service.reset();
    m_transactions.reset();
    m_members.reset();
    m_database.reset();
}

void tst_MemberService::bothListsBeginEmpty()
{
    QCOMPARE(m_service->membersModel()->rowCount(), 0);
    QCOMPARE(m_service->transactionModel()->rowCount(), 0);
    QVERIFY(m_service->property("membersModel").value<MemberListModel *>());
    QVERIFY(m_service->property("transactionModel").value<MemberTransactionModel *>());
}

void tst_MemberService::allMembersAreLoadedRevokedOnesToo()
{
    m_service->loadMembers();

    QCOMPARE(shownPhones(), QVariantList({"5551234", "5559999", "123"}));
    QCOMPARE(ModelRows::column(*m_service->membersModel(), "status"),
             QVariantList({"active", "revoked", "active"}));
}

void tst_MemberService::anEmptySearchLoadsAll()
{
    m_service->searchMembers("");

    QCOMPARE(shownPhones(), QVariantList({"5551234", "5559999", "123"}));
}

void tst_MemberService::aSearchFindsAnyPartNewestFirst()
{
    m_service->searchMembers("123");
    QCOMPARE(shownPhones(), QVariantList({"123", "5551234"}));

    m_service->searchMembers("59");
    QCOMPARE(shownPhones(), QVariantList({"5559999"}));
}

void tst_MemberService::aSearchThatFindsNobodyEmptiesTheList()
{
    m_service->loadMembers();

    m_service->searchMembers("'; DROP TABLE memberships; --");

    QVERIFY(shownPhones().isEmpty());
    QCOMPARE(m_database->value("SELECT COUNT(*) FROM memberships"), QVariant(3));
}

void tst_MemberService::aMembersDetailsAreAMap()
{
    const QVariantMap expected{
        {"id", 2}, {"phoneNumber", "5559999"}, {"totalPoints", 0}, {"status", "revoked"}};
    QCOMPARE(m_service->getMemberDetails(2), expected);
}

void tst_MemberService::anUnknownMemberHasNoDetails_data()
{
    QTest::addColumn<int>("memberId");

    QTest::newRow("unknown") << 9;
    QTest::newRow("no id") << -1;
}

void tst_MemberService::anUnknownMemberHasNoDetails()
{
    QFETCH(int, memberId);

    QVERIFY(m_service->getMemberDetails(memberId).isEmpty());
}

void tst_MemberService::movementsComeNewestFirstWithTheirSession()
{
    m_database->run("INSERT INTO order_sessions (display_number, order_type, status) "
                    "VALUES (17, 'takeaway', 'paid')");
    m_database->run("PRAGMA foreign_keys = OFF");
    m_database->run(
        "INSERT INTO membership_transactions (membership_id, order_session_id, type, points, "
        "created_at) VALUES (1, 1, 'earn', 5, '2026-01-01 10:00:00'), "
        "(1, 99, 'redeem', 3, '2026-01-02 10:00:00'), (2, 1, 'earn', 1, '2026-01-03 10:00:00')");

    m_service->loadTransactions(1);

    const MemberTransactionModel &model = *m_service->transactionModel();
    QCOMPARE(ModelRows::column(model, "type"), QVariantList({"redeem", "earn"}));
    QCOMPARE(ModelRows::column(model, "points"), QVariantList({3, 5}));
    QCOMPARE(ModelRows::column(model, "orderDisplayNumber"), QVariantList({0, 17}));
}

ZELVAN_TEST(tst_MemberService)
#include "tst_memberservice.moc"
