// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/PasswordHasher.h"
#include "repositories/UserRepository.h"
#include "services/AuthService.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <memory>

class tst_AuthService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void everyRunBeginsLoggedOut();
    void theRightPasswordLogsIn();
    void aWrongLoginIsRefused_data();
    void aWrongLoginIsRefused();
    void anEmptyDeactivationStampIsActive();
    void aRefusalKeepsWhoWasLoggedIn();
    void aSecondLoginReplacesTheUser();
    void loggingOutForgetsTheUser();
    void loggingInAndOutTellsNobody();
    void aLaterChangeOfTheUserIsNotSeen();
    void aFailedLookUpIsAnUnknownUser();
    void aSetupIsNeededWhileThereIsNoUserAtAll();
    void aFailedQuestionIsNoNeedOfASetup();
    void theRolesHaveTheirNumbers();

private:
    QString m_hash;
    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<UserRepository> m_users;
    std::unique_ptr<AuthService> m_auth;
};

void tst_AuthService::initTestCase()
{
    m_hash = hashPassword("right");
}

void tst_AuthService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_users = std::make_unique<UserRepository>(m_database->handle());
    m_auth = std::make_unique<AuthService>(m_users.get());
    const QString insert =
        QStringLiteral("INSERT INTO users (username, password, role, deactivated_at) VALUES "
                       "('mei', '%1', 'admin', NULL), ('tom', '%1', 'service_staff', NULL), "
                       "('old', '%1', 'admin', '2026-01-01 00:00:00'), ('odd', '%1', 'admin', '')")
            .arg(m_hash);
    m_database->run(insert);
}

void tst_AuthService::cleanup()
{
    m_auth.reset();
    m_users.reset();
    m_database.reset();
}

void tst_AuthService::everyRunBeginsLoggedOut()
{
    QCOMPARE(m_auth->currentUsername(), QString());
    QCOMPARE(m_auth->currentUserRole(), QString());
    QVERIFY(!m_auth->currentUser());
}

void tst_AuthService::theRightPasswordLogsIn()
{
    QVERIFY(m_auth->login("mei", "right"));

    QCOMPARE(m_auth->currentUsername(), QStringLiteral("mei"));
    QCOMPARE(m_auth->currentUserRole(), QStringLiteral("admin"));
    QCOMPARE(m_auth->property("currentUsername").toString(), QStringLiteral("mei"));
    QCOMPARE(m_auth->property("currentUserRole").toString(), QStringLiteral("admin"));
    QCOMPARE(m_auth->currentUser()->password, m_hash);
}

void tst_AuthService::aWrongLoginIsRefused_data()
{
    QTest::addColumn<QString>("username");
    QTest::addColumn<QString>("password");

    QTest::newRow("wrong password") << "mei"
                                    << "wrong";
    QTest::newRow("unknown name") << "ann"
                                  << "right";
    QTest::newRow("another letter case") << "Mei"
                                         << "right";
    QTest::newRow("blanks around") << " mei "
                                   << "right";
    QTest::newRow("deactivated") << "old"
                                 << "right";
    QTest::newRow("both empty") << ""
                                << "";
}

void tst_AuthService::aWrongLoginIsRefused()
{
    QFETCH(QString, username);
    QFETCH(QString, password);

    QVERIFY(!m_auth->login(username, password));

    QVERIFY(!m_auth->currentUser());
}

void tst_AuthService::anEmptyDeactivationStampIsActive()
{
    QVERIFY(m_auth->login("odd", "right"));
}

void tst_AuthService::aRefusalKeepsWhoWasLoggedIn()
{
    QVERIFY(m_auth->login("mei", "right"));

    QVERIFY(!m_auth->login("tom", "wrong"));

    QCOMPARE(m_auth->currentUsername(), QStringLiteral("mei"));
}

void tst_AuthService::aSecondLoginReplacesTheUser()
{
    QVERIFY(m_auth->login("mei", "right"));

    QVERIFY(m_auth->login("tom", "right"));

    QCOMPARE(m_auth->currentUsername(), QStringLiteral("tom"));
    QCOMPARE(m_auth->currentUserRole(), QStringLiteral("service_staff"));
}

void tst_AuthService::loggingOutForgetsTheUser()
{
    QVERIFY(m_auth->login("mei", "right"));

    m_auth->logout();
    m_auth->logout();

    QCOMPARE(m_auth->currentUsername(), QString());
    QCOMPARE(m_auth->currentUserRole(), QString());
}

void tst_AuthService::loggingInAndOutTellsNobody()
{
    QSignalSpy changed(m_auth.get(), &AuthService::currentUserChanged);

    QVERIFY(m_auth->login("mei", "right"));
    m_auth->logout();

    QCOMPARE(changed.count(), 0);
}

void tst_AuthService::aLaterChangeOfTheUserIsNotSeen()
{
    QVERIFY(m_auth->login("mei", "right"));

    m_database->run("UPDATE users SET username = 'ann', deactivated_at = CURRENT_TIMESTAMP "
                    "WHERE username = 'mei'");

    QCOMPARE(m_auth->currentUsername(), QStringLiteral("mei"));
}

void tst_AuthService::aFailedLookUpIsAnUnknownUser()
{
    m_database->run("DROP TABLE users");

    expectLog(QtWarningMsg, "findByUsername failed:");
    QVERIFY(!m_auth->login("mei", "right"));
}

void tst_AuthService::aSetupIsNeededWhileThereIsNoUserAtAll()
{
    QVERIFY(!m_auth->isFirstAdminSetupNeeded());

    m_database->run("DELETE FROM users");

    QVERIFY(m_auth->isFirstAdminSetupNeeded());
}

void tst_AuthService::aFailedQuestionIsNoNeedOfASetup()
{
    m_database->run("DROP TABLE users");

    expectLog(QtWarningMsg, "isEmpty failed:");
    expectLog(QtWarningMsg, "Failed to check if users table is empty.");
    QVERIFY(!m_auth->isFirstAdminSetupNeeded());
}

void tst_AuthService::theRolesHaveTheirNumbers()
{
    const QHash<QString, QSet<int>> expected{
        {"admin", {0, 1, 2, 3, 4, 5}}, {"service_staff", {2, 3, 4}}, {"kitchen_staff", {3}}};
    QCOMPARE(AuthService::rolePermissions(), expected);
}

ZELVAN_TEST(tst_AuthService)
#include "tst_authservice.moc"
