// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/ReceiptSnapshotRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    Fixture()
    {
        db.run(QStringLiteral("INSERT INTO order_sessions (display_number, order_type) "
                              "VALUES (4001, 'dine_in'), (4002, 'takeaway')"));
    }

    TestDatabase db;
    ReceiptSnapshotRepository snapshots{db.handle()};
};
} // namespace

class tst_ReceiptSnapshotRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aSnapshotIsReadBackWhole();
    void absentFieldsAreNullAndReadBackAbsent();
    void aSessionWithoutASnapshotYieldsNothing();
    void deletingTheSessionDeletesTheSnapshot();
    void everyFailureIsLogged();
};

void tst_ReceiptSnapshotRepository::aSnapshotIsReadBackWhole()
{
    Fixture f;
    ReceiptSnapshot snapshot;
    snapshot.order_session_id = 2;
    snapshot.cashier_name = QStringLiteral("anna");
    snapshot.store_name = QStringLiteral("Zelvan");
    snapshot.address = QStringLiteral("Main Street 1");
    snapshot.phone = QStringLiteral("123");
    snapshot.email = QStringLiteral("a@b");
    snapshot.website = QStringLiteral("w");
    snapshot.tax_name = QStringLiteral("VAT");
    snapshot.tax_rate = 825;
    snapshot.tax_registration_number = QStringLiteral("R-1");
    snapshot.member_phone = QStringLiteral("555");
    snapshot.points_balance_before = 343;
    snapshot.points_balance_after = 250;
    snapshot.order_type = QStringLiteral("takeaway");
    snapshot.table_name = QStringLiteral("T1");

    QCOMPARE(f.snapshots.create(snapshot), 1);

    const std::optional<ReceiptSnapshot> found = f.snapshots.getByOrderSession(2);
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->order_session_id, 2);
    QCOMPARE(found->cashier_name, snapshot.cashier_name);
    QCOMPARE(found->store_name, snapshot.store_name);
    QCOMPARE(found->address, snapshot.address);
    QCOMPARE(found->phone, snapshot.phone);
    QCOMPARE(found->email, snapshot.email);
    QCOMPARE(found->website, snapshot.website);
    QCOMPARE(found->tax_name, snapshot.tax_name);
    QCOMPARE(found->tax_rate, snapshot.tax_rate);
    QCOMPARE(found->tax_registration_number, snapshot.tax_registration_number);
    QCOMPARE(found->member_phone, snapshot.member_phone);
    QCOMPARE(found->points_balance_before, snapshot.points_balance_before);
    QCOMPARE(found->points_balance_after, snapshot.points_balance_after);
    QCOMPARE(found->order_type, snapshot.order_type);
    QCOMPARE(found->table_name, snapshot.table_name);
    QVERIFY(found->created_at.has_value());
    QVERIFY(f.db.value(QStringLiteral("SELECT abs(julianday(created_at) - julianday('now')) < 0.01 "
                                      "FROM receipt_snapshot"))
                .toBool());
}

void tst_ReceiptSnapshotRepository::absentFieldsAreNullAndReadBackAbsent()
{
    Fixture f;
    ReceiptSnapshot snapshot;
    snapshot.order_session_id = 1;
    // An empty text is not an absent one.
    snapshot.tax_name = QString();
    snapshot.tax_rate = 0;

    QCOMPARE(f.snapshots.create(snapshot), 1);

    const std::optional<ReceiptSnapshot> found = f.snapshots.getByOrderSession(1);
    QVERIFY(found);
    QVERIFY(!found->cashier_name && !found->store_name && !found->address && !found->phone);
    QVERIFY(!found->email && !found->website && !found->tax_registration_number);
    QVERIFY(!found->member_phone && !found->points_balance_before && !found->points_balance_after);
    QVERIFY(!found->order_type && !found->table_name);
    QCOMPARE(found->tax_name, std::optional(QString()));
    QCOMPARE(found->tax_rate, std::optional(0));
    QVERIFY(f.db.value(QStringLiteral("SELECT cashier_name IS NULL AND points_balance_before IS "
                                      "NULL AND tax_name = '' FROM receipt_snapshot"))
                .toBool());
}

void tst_ReceiptSnapshotRepository::aSessionWithoutASnapshotYieldsNothing()
{
    Fixture f;

    QVERIFY(!f.snapshots.getByOrderSession(1));
}

void tst_ReceiptSnapshotRepository::deletingTheSessionDeletesTheSnapshot()
{
    Fixture f;
    ReceiptSnapshot snapshot;
    snapshot.order_session_id = 1;
    f.snapshots.create(snapshot);

    f.db.run(QStringLiteral("DELETE FROM order_sessions WHERE id = 1"));

    QVERIFY(!f.snapshots.getByOrderSession(1));
}

void tst_ReceiptSnapshotRepository::everyFailureIsLogged()
{
    Fixture f;
    const QString createLine =
        QStringLiteral("warning [database] Failed to create receipt snapshot: <QSqlError>");
    ReceiptSnapshot ofNoSession;
    ofNoSession.order_session_id = 99;

    QCOMPARE(logOf([&] { QCOMPARE(f.snapshots.create(ofNoSession), 0); }), createLine);
    f.db.run(QStringLiteral("ALTER TABLE receipt_snapshot RENAME TO elsewhere"));
    QCOMPARE(logOf([&] { QCOMPARE(f.snapshots.create(ReceiptSnapshot()), 0); }), createLine);
    QCOMPARE(logOf([&] { QVERIFY(!f.snapshots.getByOrderSession(1)); }),
             QStringLiteral("warning [database] Failed to fetch receipt snapshot: <QSqlError>"));
}

ZELVAN_TEST(tst_ReceiptSnapshotRepository)
#include "tst_receiptsnapshotrepository.moc"
