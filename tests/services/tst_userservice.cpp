// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/PasswordHasher.h"
#include "repositories/UserRepository.h"
#include "services/UserService.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>
#include <QThread>
#include <QThreadPool>

#include <memory>

class tst_UserService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theListIsFilledAtConstruction();
    void withoutADatabaseTheListIsEmptyAndALineIsLogged();
    void theFirstUserIsAlwaysAnAdmin();
    void aLaterUserGetsTheRoleAsAsked();
    void theNameIsStoredWithoutBlanksAround();
    void badInputCreatesNobody_data();
    void badInputCreatesNobody();
    void aNameOfAnActiveUserIsRefused();
    void aNameOfADeactivatedUserReportsSuccessAndStoresNothing();
    void aFailedQuestionForUsersCreatesNobody();
    void theCallReturnsAtOnceAndFinishesOnTheGuiThread();
    void theListIsRefilledOnThePoolThread();
    void aRefusalRefillsNothing();
    void aUserUnderWayWhenTheServiceGoesIsDropped();

    void anEditStoresTrimmedNameAndAnyRole();
    void anEditOfANameTakenReportsSuccessAndChangesNothing();
    void anEditIsRefused_data();
    void anEditIsRefused();
    void theLastAdminMayBeDemotedAndDeactivated();

    void aPasswordIsChangedByWhoKnowsTheOldOne();
    void aPasswordChangeIsRefused_data();
    void aPasswordChangeIsRefused();

    void deactivatingTwiceKeepsTheFirstStamp();
    void deactivatingAnUnknownUserIsRefused();

private:
    /// Waits for the answer; whether it was a success.
    bool create(const QString &name, const QString &password, const QString &confirm,
                const QString &role);

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<UserRepository> m_users;
    std::unique_ptr<UserService> m_service;
};

void tst_UserService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_users = std::make_unique<UserRepository>(m_database->handle());
    m_service = std::make_unique<UserService>(m_users.get());
}

void tst_UserService::cleanup()
{
    m_service.reset();
    QThreadPool::globalInstance()->waitForDone();
    m_users.reset();
    m_database.reset();
}

bool tst_UserService::create(const QString &name, const QString &password, const QString &confirm,
                             const QString &role)
{
    QSignalSpy finished(m_service.get(), &UserService::createUserFinished);
    m_service->createUser(name, password, confirm, role);
    if (!finished.wait()) {
        qFatal("createUser did not finish");
    }
    return finished.constFirst().constFirst().toBool();
}

void tst_UserService::theListIsFilledAtConstruction()
{
    m_database->run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");

    const UserService service(m_users.get());

    QCOMPARE(ModelRows::column(*service.userModel(), "username"), QVariantList({"mei"}));
    QCOMPARE(service.userModel()->parent(), &service);
}

void tst_UserService::withoutADatabaseTheListIsEmptyAndALineIsLogged()
{
    UserRepository unopened{QSqlDatabase()};

    expectLog(QtWarningMsg, "QSqlQuery::prepare: database not open");
    expectLog(QtWarningMsg, "Failed to fetch all users:");
    const UserService service(&unopened);

    QCOMPARE(service.userModel()->rowCount(), 0);
}

void tst_UserService::theFirstUserIsAlwaysAnAdmin()
{
    QVERIFY(create("mei", "pw", "pw", "kitchen_staff"));

    QCOMPARE(m_database->value("SELECT role FROM users").toString(), QStringLiteral("admin"));
    QCOMPARE(ModelRows::column(*m_service->userModel(), "username"), QVariantList({"mei"}));
    QVERIFY(verifyPassword("pw", m_database->value("SELECT password FROM users").toString()));
}

void tst_UserService::aLaterUserGetsTheRoleAsAsked()
{
    QVERIFY(create("mei", "pw", "pw", "admin"));

    QVERIFY(create("tom", "pw", "pw", "Kitchen Staff"));

    QCOMPARE(m_database->value("SELECT role FROM users WHERE username = 'tom'").toString(),
             QStringLiteral("Kitchen Staff"));
}

void tst_UserService::theNameIsStoredWithoutBlanksAround()
{
    QVERIFY(create("  mei \t", " pw ", " pw ", "admin"));

    QCOMPARE(m_database->value("SELECT username FROM users").toString(), QStringLiteral("mei"));
    QVERIFY(verifyPassword(" pw ", m_database->value("SELECT password FROM users").toString()));
}

void tst_UserService::badInputCreatesNobody_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("confirm");

    QTest::newRow("blank name") << " \t"
                                << "pw"
                                << "pw";
    QTest::newRow("empty password") << "mei"
                                    << ""
                                    << "";
    QTest::newRow("passwords differ") << "mei"
                                      << "pw"
                                      << "PW";
}

void tst_UserService::badInputCreatesNobody()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(QString, confirm);

    QVERIFY(!create(name, password, confirm, "admin"));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users"), QVariant(0));
}

void tst_UserService::aNameOfAnActiveUserIsRefused()
{
    QVERIFY(create("mei", "pw", "pw", "admin"));

    QVERIFY(!create(" mei", "other", "other", "admin"));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users"), QVariant(1));
}

void tst_UserService::aNameOfADeactivatedUserReportsSuccessAndStoresNothing()
{
    QVERIFY(create("mei", "pw", "pw", "admin"));
    QVERIFY(create("tom", "pw", "pw", "admin"));
    QVERIFY(m_service->deactivateUser(2));

    expectLog(QtWarningMsg, "createUser failed:");
    QVERIFY(create("tom", "pw", "pw", "admin"));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users"), QVariant(2));
}

void tst_UserService::aFailedQuestionForUsersCreatesNobody()
{
    m_database->run("DROP TABLE users");

    expectLog(QtWarningMsg, "isEmpty failed:");
    QVERIFY(!create("mei", "pw", "pw", "admin"));
}

void tst_UserService::theCallReturnsAtOnceAndFinishesOnTheGuiThread()
{
    QSignalSpy finished(m_service.get(), &UserService::createUserFinished);
    const QThread *finishingThread = nullptr;
    connect(
        m_service.get(), &UserService::createUserFinished, m_service.get(),
        [&finishingThread] { finishingThread = QThread::currentThread(); }, Qt::DirectConnection);

    m_service->createUser("mei", "pw", "pw", "admin");

    // Nothing is asked of the store before the event loop runs.
    QCOMPARE(finished.count(), 0);
    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users"), QVariant(0));
    QVERIFY(finished.wait());
    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users"), QVariant(1));
    QCOMPARE(finishingThread, QThread::currentThread());
}

void tst_UserService::theListIsRefilledOnThePoolThread()
{
    const QThread *resetThread = nullptr;
    const QThread *relayoutThread = nullptr;
    const QThread *changedThread = nullptr;
    connect(
        m_service->userModel(), &QAbstractItemModel::modelReset, m_service.get(),
        [&resetThread] { resetThread = QThread::currentThread(); }, Qt::DirectConnection);
    connect(
        m_service->userModel(), &QAbstractItemModel::layoutChanged, m_service.get(),
        [&relayoutThread] { relayoutThread = QThread::currentThread(); }, Qt::DirectConnection);
    connect(
        m_service.get(), &UserService::usersChanged, m_service.get(),
        [&changedThread] { changedThread = QThread::currentThread(); }, Qt::DirectConnection);

    QVERIFY(create("mei", "pw", "pw", "admin"));

    QVERIFY(resetThread && resetThread != QThread::currentThread());
    QCOMPARE(changedThread, resetThread);
    // The views of this thread hear of it here.
    QCOMPARE(relayoutThread, QThread::currentThread());
}

void tst_UserService::aRefusalRefillsNothing()
{
    QSignalSpy resets(m_service->userModel(), &QAbstractItemModel::modelReset);
    QSignalSpy changed(m_service.get(), &UserService::usersChanged);

    QVERIFY(!create("", "pw", "pw", "admin"));

    QCOMPARE(resets.count(), 0);
    QCOMPARE(changed.count(), 0);
}

void tst_UserService::aUserUnderWayWhenTheServiceGoesIsDropped()
{
    m_service->createUser("mei", "pw", "pw", "admin");
    m_service->createUser("tom", "pw", "pw", "admin");

    m_service.reset();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users"), QVariant(0));
}

void tst_UserService::anEditStoresTrimmedNameAndAnyRole()
{
    m_database->run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    QSignalSpy changed(m_service.get(), &UserService::usersChanged);

    QVERIFY(m_service->updateUser(1, " ann ", "whatever"));

    QCOMPARE(m_database->value("SELECT username FROM users").toString(), QStringLiteral("ann"));
    QCOMPARE(m_database->value("SELECT role FROM users").toString(), QStringLiteral("whatever"));
    QCOMPARE(m_database->value("SELECT password FROM users").toString(), QStringLiteral("x"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(ModelRows::column(*m_service->userModel(), "username"), QVariantList({"ann"}));
}

void tst_UserService::anEditOfANameTakenReportsSuccessAndChangesNothing()
{
    m_database->run("INSERT INTO users (username, password, role) VALUES "
                    "('mei', 'x', 'admin'), ('tom', 'x', 'service_staff')");

    expectLog(QtWarningMsg, "update failed:");
    QVERIFY(m_service->updateUser(2, "mei", "admin"));

    QCOMPARE(m_database->value("SELECT username || role FROM users WHERE id = 2").toString(),
             QStringLiteral("tomservice_staff"));
}

void tst_UserService::anEditIsRefused_data()
{
    QTest::addColumn<int>("userId");
    QTest::addColumn<QString>("name");

    QTest::newRow("unknown user") << 9 << "ann";
    QTest::newRow("deactivated user") << 2 << "ann";
    QTest::newRow("blank name") << 1 << "  ";
}

void tst_UserService::anEditIsRefused()
{
    QFETCH(int, userId);
    QFETCH(QString, name);
    m_database->run("INSERT INTO users (username, password, role, deactivated_at) VALUES "
                    "('mei', 'x', 'admin', NULL), ('tom', 'x', 'admin', '2026-01-01')");
    QSignalSpy changed(m_service.get(), &UserService::usersChanged);

    QVERIFY(!m_service->updateUser(userId, name, "admin"));

    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_database->value("SELECT group_concat(username) FROM users").toString(),
             QStringLiteral("mei,tom"));
}

void tst_UserService::theLastAdminMayBeDemotedAndDeactivated()
{
    m_database->run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");

    QVERIFY(m_service->updateUser(1, "mei", "kitchen_staff"));
    QVERIFY(m_service->deactivateUser(1));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users WHERE role = 'admin'"), QVariant(0));
}

void tst_UserService::aPasswordIsChangedByWhoKnowsTheOldOne()
{
    QVERIFY(create("mei", "old", "old", "admin"));
    QSignalSpy changed(m_service.get(), &UserService::usersChanged);
    QSignalSpy resets(m_service->userModel(), &QAbstractItemModel::modelReset);

    QVERIFY(m_service->changePassword(1, "old", "new", "new"));

    QVERIFY(verifyPassword("new", m_database->value("SELECT password FROM users").toString()));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(resets.count(), 0);
}

void tst_UserService::aPasswordChangeIsRefused_data()
{
    QTest::addColumn<int>("userId");
    QTest::addColumn<QString>("oldPassword");
    QTest::addColumn<QString>("newPassword");
    QTest::addColumn<QString>("confirm");

    QTest::newRow("wrong old password") << 1 << "wrong"
                                        << "new"
                                        << "new";
    QTest::newRow("empty new password") << 1 << "old"
                                        << ""
                                        << "";
    QTest::newRow("new passwords differ") << 1 << "old"
                                          << "new"
                                          << "New";
    QTest::newRow("unknown user") << 9 << "old"
                                  << "new"
                                  << "new";
    QTest::newRow("deactivated user") << 2 << "old"
                                      << "new"
                                      << "new";
}

void tst_UserService::aPasswordChangeIsRefused()
{
    QFETCH(int, userId);
    QFETCH(QString, oldPassword);
    QFETCH(QString, newPassword);
    QFETCH(QString, confirm);
    const QString hash = hashPassword("old");
    m_database->run(
        QStringLiteral("INSERT INTO users (username, password, role, deactivated_at) VALUES "
                       "('mei', '%1', 'admin', NULL), ('tom', '%1', 'admin', '2026-01-01')")
            .arg(hash));

    QVERIFY(!m_service->changePassword(userId, oldPassword, newPassword, confirm));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM users WHERE password = '" + hash + "'"),
             QVariant(2));
}

void tst_UserService::deactivatingTwiceKeepsTheFirstStamp()
{
    m_database->run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    QSignalSpy changed(m_service.get(), &UserService::usersChanged);

    QVERIFY(m_service->deactivateUser(1));
    m_database->run("UPDATE users SET deactivated_at = '2026-01-01 00:00:00'");
    QVERIFY(!m_service->deactivateUser(1));

    QCOMPARE(m_database->value("SELECT deactivated_at FROM users").toString(),
             QStringLiteral("2026-01-01 00:00:00"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(ModelRows::column(*m_service->userModel(), "active"), QVariantList({false}));
}

void tst_UserService::deactivatingAnUnknownUserIsRefused()
{
    QVERIFY(!m_service->deactivateUser(9));
}

ZELVAN_TEST(tst_UserService)
#include "tst_userservice.moc"
