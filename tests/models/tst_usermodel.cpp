// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/UserModel.h"
#include "repositories/UserRepository.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

class tst_UserModel : public ZelvanTest
{
    Q_OBJECT

private slots:
    void itsRolesAreNumberedFromTheFirstUserRole();
    void aDeactivatedUserStaysInTheListAndIsNotActive();
    void anUnknownRowOrRoleHasNoValue();
    void itHoldsNoHash();
    void aRefillIsOneReset();
    void deactivatingThroughTheModelStampsTheUserAndRefills();
    void aFailedReadLeavesAnEmptyList();
};

void tst_UserModel::itsRolesAreNumberedFromTheFirstUserRole()
{
    const TestDatabase database;
    UserRepository users(database.handle());
    const UserModel model(&users);

    QCOMPARE(ModelRows::roles(model),
             QStringList({"257 id", "258 username", "259 role", "260 active"}));
}

void tst_UserModel::aDeactivatedUserStaysInTheListAndIsNotActive()
{
    const TestDatabase database;
    database.run(
        "INSERT INTO users (username, password, role, deactivated_at) VALUES "
        "('mei', 'x', 'admin', NULL), ('tom', 'x', 'Kitchen Staff', '2026-01-02 03:04:05'), "
        "('ann', 'x', 'service_staff', '')");
    UserRepository users(database.handle());
    UserModel model(&users);

    model.reload();

    QCOMPARE(ModelRows::column(model, "id"), QVariantList({1, 2, 3}));
    QCOMPARE(ModelRows::column(model, "username"), QVariantList({"mei", "tom", "ann"}));
    QCOMPARE(ModelRows::column(model, "role"),
             QVariantList({"admin", "Kitchen Staff", "service_staff"}));
    QCOMPARE(ModelRows::column(model, "active"), QVariantList({true, false, true}));
}

void tst_UserModel::anUnknownRowOrRoleHasNoValue()
{
    const TestDatabase database;
    database.run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    UserRepository users(database.handle());
    UserModel model(&users);
    model.reload();

    const QModelIndex first = model.index(0);
    QVERIFY(!model.data(QModelIndex(), UserModel::IdRole).isValid());
    QVERIFY(!model.data(model.index(1), UserModel::IdRole).isValid());
    QVERIFY(!model.data(first, Qt::DisplayRole).isValid());
    QVERIFY(!model.data(first, UserModel::ActiveRole + 1).isValid());
    QCOMPARE(model.rowCount(first), 0);
}

void tst_UserModel::itHoldsNoHash()
{
    const TestDatabase database;
    database.run("INSERT INTO users (username, password, role) VALUES ('mei', 'secret', 'admin')");
    UserRepository users(database.handle());
    UserModel model(&users);
    model.reload();

    for (int role = 0; role < UserModel::ActiveRole + 10; ++role) {
        QVERIFY(model.data(model.index(0), role).toString() != QStringLiteral("secret"));
    }
    QVERIFY(users.fetchAll().constFirst().password.isEmpty());
}

void tst_UserModel::aRefillIsOneReset()
{
    const TestDatabase database;
    UserRepository users(database.handle());
    UserModel model(&users);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);

    database.run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    model.reload();

    QCOMPARE(resets.count(), 1);
    QCOMPARE(insertions.count(), 0);
    QCOMPARE(model.rowCount(), 1);
}

void tst_UserModel::deactivatingThroughTheModelStampsTheUserAndRefills()
{
    const TestDatabase database;
    database.run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    UserRepository users(database.handle());
    UserModel model(&users);
    model.reload();

    model.deactivateUser(1);

    QCOMPARE(ModelRows::value(model, 0, "active"), QVariant(false));
    QVERIFY(!database.value("SELECT deactivated_at FROM users").toString().isEmpty());
}

void tst_UserModel::aFailedReadLeavesAnEmptyList()
{
    const TestDatabase database;
    database.run("INSERT INTO users (username, password, role) VALUES ('mei', 'x', 'admin')");
    UserRepository users(database.handle());
    UserModel model(&users);
    model.reload();

    database.run("DROP TABLE users");
    expectLog(QtWarningMsg, "Failed to fetch all users:");
    model.reload();

    QCOMPARE(model.rowCount(), 0);
}

ZELVAN_TEST(tst_UserModel)
#include "tst_usermodel.moc"
