// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/UserRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
User userNamed(const QString &name, const QString &role = QStringLiteral("service_staff"))
{
    User user;
    user.username = name;
    user.password = QStringLiteral("hash of ") + name;
    user.role = role;
    return user;
}

struct Fixture
{
    TestDatabase db;
    UserRepository users{db.handle()};
};
} // namespace

class tst_UserRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedUserIsActiveAndFoundWhole();
    void namesAreCaseSensitive();
    void aNewTableIsEmptyUntilTheFirstUser();
    void anUpdateChangesNameAndRoleOnly();
    void aPasswordUpdateChangesTheHashOnly();
    void aDeactivatedUserIsStampedAndNoLongerFound();
    void anEmptyStampCountsAsActive();
    void theNameOfADeactivatedUserStaysTaken();
    void theStampIsLeftOutOfAUserFoundByName();
    void theListHoldsEveryUserAndNoHash();
    void anUnsetTextIsStoredAsAnEmptyOne();
    void everyFailureIsLoggedAndAnswersNothing();
};

void tst_UserRepository::aCreatedUserIsActiveAndFoundWhole()
{
    Fixture f;

    QVERIFY(f.users.createUser(userNamed(QStringLiteral("anna"))));

    const std::optional<User> found = f.users.findById(1);
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->username, QStringLiteral("anna"));
    QCOMPARE(found->password, QStringLiteral("hash of anna"));
    QCOMPARE(found->role, QStringLiteral("service_staff"));
    QCOMPARE(found->deactivated_at, QString());
    QVERIFY(f.db.value(QStringLiteral("SELECT deactivated_at IS NULL FROM users")).toBool());
    QVERIFY(f.users.usernameExists(QStringLiteral("anna")));
    QVERIFY(!f.users.usernameExists(QStringLiteral("bert")));
    QVERIFY(!f.users.findById(2));
}

void tst_UserRepository::namesAreCaseSensitive()
{
    Fixture f;
    QVERIFY(f.users.createUser(userNamed(QStringLiteral("anna"))));

    QVERIFY(!f.users.usernameExists(QStringLiteral("Anna")));
    QVERIFY(!f.users.findByUsername(QStringLiteral("Anna")));
    QVERIFY(f.users.findByUsername(QStringLiteral("anna")));
}

void tst_UserRepository::aNewTableIsEmptyUntilTheFirstUser()
{
    Fixture f;

    QCOMPARE(f.users.isEmpty(), std::optional(true));
    QVERIFY(f.users.createUser(userNamed(QStringLiteral("anna"))));
    QVERIFY(f.users.remove(1));

    // A deactivated user is a row like any other.
    QCOMPARE(f.users.isEmpty(), std::optional(false));
}

void tst_UserRepository::anUpdateChangesNameAndRoleOnly()
{
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO users (username, password, role, updated_at) "
                            "VALUES ('anna', 'hash', 'admin', '2001-02-03 04:05:06')"));
    User changed = userNamed(QStringLiteral("berta"), QStringLiteral("kitchen_staff"));
    changed.id = 1;

    QVERIFY(f.users.update(changed));

    const std::optional<User> found = f.users.findById(1);
    QCOMPARE(found->username, QStringLiteral("berta"));
    QCOMPARE(found->role, QStringLiteral("kitchen_staff"));
    QCOMPARE(found->password, QStringLiteral("hash"));
    // Meant: nothing writes the time of the last change.
    QCOMPARE(f.db.value(QStringLiteral("SELECT updated_at FROM users")).toString(),
             QStringLiteral("2001-02-03 04:05:06"));
}

void tst_UserRepository::aPasswordUpdateChangesTheHashOnly()
{
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO users (username, password, role, updated_at) "
                            "VALUES ('anna', 'hash', 'admin', '2001-02-03 04:05:06')"));
    User changed = userNamed(QStringLiteral("not stored"));
    changed.id = 1;

    QVERIFY(f.users.updatePassword(changed));

    const std::optional<User> found = f.users.findById(1);
    QCOMPARE(found->username, QStringLiteral("anna"));
    QCOMPARE(found->role, QStringLiteral("admin"));
    QCOMPARE(found->password, QStringLiteral("hash of not stored"));
    QCOMPARE(f.db.value(QStringLiteral("SELECT updated_at FROM users")).toString(),
             QStringLiteral("2001-02-03 04:05:06"));
}

void tst_UserRepository::aDeactivatedUserIsStampedAndNoLongerFound()
{
    Fixture f;
    QVERIFY(f.users.createUser(userNamed(QStringLiteral("anna"))));

    QVERIFY(f.users.remove(1));

    QVERIFY(!f.users.findById(1));
    QVERIFY(!f.users.findByUsername(QStringLiteral("anna")));
    QVERIFY(!f.users.usernameExists(QStringLiteral("anna")));
    QVERIFY(f.db.value(QStringLiteral("SELECT abs(julianday(deactivated_at) - julianday('now')) < "
                                      "0.01 FROM users"))
                .toBool());
}

void tst_UserRepository::anEmptyStampCountsAsActive()
{
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO users (username, password, role, deactivated_at) "
                            "VALUES ('anna', 'hash', 'admin', '')"));

    QVERIFY(f.users.findById(1));
    QVERIFY(f.users.findByUsername(QStringLiteral("anna")));
    QVERIFY(f.users.usernameExists(QStringLiteral("anna")));
}

void tst_UserRepository::theNameOfADeactivatedUserStaysTaken()
{
    Fixture f;
    QVERIFY(f.users.createUser(userNamed(QStringLiteral("anna"))));
    QVERIFY(f.users.remove(1));

    const QString log =
        logOf([&] { QVERIFY(!f.users.createUser(userNamed(QStringLiteral("anna")))); });

    QCOMPARE(log, QStringLiteral("warning [database] createUser failed: <QSqlError>"));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM users")).toInt(), 1);
}

void tst_UserRepository::theStampIsLeftOutOfAUserFoundByName()
{
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO users (username, password, role) "
                            "VALUES ('anna', 'hash', 'admin')"));

    const std::optional<User> found = f.users.findByUsername(QStringLiteral("anna"));

    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->username, QStringLiteral("anna"));
    QCOMPARE(found->password, QStringLiteral("hash"));
    QCOMPARE(found->role, QStringLiteral("admin"));
    QVERIFY(found->deactivated_at.isEmpty());
}

void tst_UserRepository::theListHoldsEveryUserAndNoHash()
{
    Fixture f;
    QVERIFY(f.users.createUser(userNamed(QStringLiteral("anna"))));
    QVERIFY(f.users.createUser(userNamed(QStringLiteral("bert"), QStringLiteral("Admin"))));
    QVERIFY(f.users.remove(1));

    const QList<User> all = f.users.fetchAll();

    QCOMPARE(all.size(), 2);
    QCOMPARE(all.at(0).username, QStringLiteral("anna"));
    QVERIFY(!all.at(0).deactivated_at.isEmpty());
    QCOMPARE(all.at(1).id, 2);
    QCOMPARE(all.at(1).role, QStringLiteral("Admin"));
    QVERIFY(all.at(1).deactivated_at.isEmpty());
    QVERIFY(all.at(0).password.isEmpty() && all.at(1).password.isEmpty());
}

void tst_UserRepository::anUnsetTextIsStoredAsAnEmptyOne()
{
    Fixture f;

    // The columns are NOT NULL, so a NULL would be refused.
    QVERIFY(f.users.createUser(User()));

    QCOMPARE(
        f.db.value(QStringLiteral("SELECT username || password || role FROM users")).toString(),
        QString());
}

void tst_UserRepository::everyFailureIsLoggedAndAnswersNothing()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE users RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QVERIFY(!f.users.usernameExists(QString())); }),
             line("usernameExists failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.users.createUser(User())); }), line("createUser failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.users.update(User())); }), line("update failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.users.updatePassword(User())); }),
             line("updatePassword failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.users.remove(1)); }), line("remove failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.users.findById(1)); }), line("findById failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.users.findByUsername(QString())); }),
             line("findByUsername failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.users.isEmpty().has_value()); }), line("isEmpty failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.users.fetchAll().isEmpty()); }),
             line("Failed to fetch all users:"));
}

ZELVAN_TEST(tst_UserRepository)
#include "tst_userrepository.moc"
