// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/MemberListModel.h"
#include "models/MemberTransactionModel.h"
#include "support/ModelRows.h"
#include "support/TestEnvironment.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <ctime>

class tst_MemberModels : public ZelvanTest
{
    Q_OBJECT

private slots:
    void cleanup();

    void membersAreReplacedInOneReset();
    void transactionsAreReplacedInOneReset();
    void aStoredTimeIsReadAsUtcAndShownLocally_data();
    void aStoredTimeIsReadAsUtcAndShownLocally();
    void anUnknownRowOrRoleHasNoValue();
};

void tst_MemberModels::cleanup()
{
    TestEnvironment::setTimeZone({});
}

void tst_MemberModels::membersAreReplacedInOneReset()
{
    MemberListModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.setMembers({{3, "555-1", 7, "active"}, {4, "555-2", 0, "revoked"}});
    model.setMembers({{4, "555-2", 0, "revoked"}});

    QCOMPARE(resets.count(), 2);
    QCOMPARE(ModelRows::roles(model),
             QStringList({"257 id", "258 phoneNumber", "259 totalPoints", "260 status"}));
    QCOMPARE(ModelRows::column(model, "id"), QVariantList({4}));
    QCOMPARE(ModelRows::column(model, "phoneNumber"), QVariantList({"555-2"}));
    QCOMPARE(ModelRows::column(model, "totalPoints"), QVariantList({0}));
    QCOMPARE(ModelRows::column(model, "status"), QVariantList({"revoked"}));
}

void tst_MemberModels::transactionsAreReplacedInOneReset()
{
    MemberTransactionModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.setTransactions({{9, 3, 8, "earn", 12, "2026-01-02 03:04:05", 17}});

    QCOMPARE(resets.count(), 1);
    QCOMPARE(ModelRows::roles(model),
             QStringList({"257 id", "258 membershipId", "259 orderSessionId", "260 type",
                          "261 points", "262 orderDisplayNumber", "263 createdAt"}));
    QCOMPARE(ModelRows::value(model, 0, "id"), QVariant(9));
    QCOMPARE(ModelRows::value(model, 0, "membershipId"), QVariant(3));
    QCOMPARE(ModelRows::value(model, 0, "orderSessionId"), QVariant(8));
    QCOMPARE(ModelRows::value(model, 0, "type"), QVariant("earn"));
    QCOMPARE(ModelRows::value(model, 0, "points"), QVariant(12));
    QCOMPARE(ModelRows::value(model, 0, "orderDisplayNumber"), QVariant(17));
}

void tst_MemberModels::aStoredTimeIsReadAsUtcAndShownLocally_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");

    QTest::newRow("utc") << QByteArray("UTC") << "2026-01-02 03:04:05"
                         << "2026-01-02 03:04:05";
    QTest::newRow("east") << QByteArray("EAST-8") << "2026-01-02 23:04:05"
                          << "2026-01-03 07:04:05";
    QTest::newRow("west") << QByteArray("WEST+5") << "2026-01-02 03:04:05"
                          << "2026-01-01 22:04:05";
    // There was no half past two on that clock that night; UTC knows no such gap.
    QTest::newRow("the hour that the local clock left out")
        << QByteArray("CET-1CEST,M3.5.0,M10.5.0/3") << "2026-03-29 02:30:00"
        << "2026-03-29 04:30:00";
    QTest::newRow("no time") << QByteArray("UTC") << ""
                             << "";
}

void tst_MemberModels::aStoredTimeIsReadAsUtcAndShownLocally()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    TestEnvironment::setTimeZone(zone);
    MemberTransactionModel model;

    model.setTransactions({{9, 3, 8, "earn", 12, stored, 17}});

    QCOMPARE(ModelRows::value(model, 0, "createdAt"), QVariant(shown));
}

void tst_MemberModels::anUnknownRowOrRoleHasNoValue()
{
    MemberListModel members;
    members.setMembers({{3, "555-1", 7, "active"}});
    MemberTransactionModel transactions;
    transactions.setTransactions({{9, 3, 8, "earn", 12, "2026-01-02 03:04:05", 17}});

    QVERIFY(!members.data(QModelIndex(), MemberListModel::IdRole).isValid());
    QVERIFY(!members.data(members.index(1), MemberListModel::IdRole).isValid());
    QVERIFY(!members.data(members.index(0), Qt::DisplayRole).isValid());
    QVERIFY(!transactions.data(QModelIndex(), MemberTransactionModel::IdRole).isValid());
    QVERIFY(!transactions.data(transactions.index(1), MemberTransactionModel::IdRole).isValid());
    QVERIFY(!transactions.data(transactions.index(0), Qt::DisplayRole).isValid());
    QCOMPARE(members.rowCount(members.index(0)), 0);
    QCOMPARE(transactions.rowCount(transactions.index(0)), 0);
}

ZELVAN_TEST(tst_MemberModels)
#include "tst_membermodels.moc"
