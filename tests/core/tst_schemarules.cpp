// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSqlQuery>

/// What defaults, checks and foreign keys do to the rows.
class tst_SchemaRules : public ZelvanTest
{
    Q_OBJECT

private slots:
    void oneRowTablesRefuseASecondRow_data();
    void oneRowTablesRefuseASecondRow();
    void theDefaultCutModeIsAText();
    void deletingACategoryDeletesItsDishes();
    void deletingATableFreesItsSessionsAndRemovesItsDrawings();
    void deletingASessionTakesItsOrdersAlong();
    void aSessionWithPointsCannotBeDeleted();
};

void tst_SchemaRules::oneRowTablesRefuseASecondRow_data()
{
    QTest::addColumn<bool>("refused");

    QTest::newRow("tax_settings") << true;
    QTest::newRow("membership_settings") << true;
    QTest::newRow("regional_settings") << true;
    QTest::newRow("table_settings") << true;
    QTest::newRow("restaurant") << false;
}

void tst_SchemaRules::oneRowTablesRefuseASecondRow()
{
    QFETCH(bool, refused);
    const TestDatabase db(TestDatabase::Content::Schema);
    QSqlQuery query(db.handle());

    const bool ran = query.exec(QStringLiteral("INSERT INTO %1 (id) VALUES (2)")
                                    .arg(QLatin1String(QTest::currentDataTag())));

    QCOMPARE(ran, !refused);
}

void tst_SchemaRules::theDefaultCutModeIsAText()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral("INSERT INTO printers (system_name, role) VALUES ('TM88', 'both')"));

    QCOMPARE(db.value(QStringLiteral("SELECT cut_mode FROM printers")).toString(),
             QStringLiteral("none"));
    QCOMPARE(db.value(QStringLiteral("SELECT paper_width FROM printers")).toInt(), 58);
}

void tst_SchemaRules::deletingACategoryDeletesItsDishes()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')"));
    db.run(QStringLiteral("INSERT INTO menu (item, category_id, price, is_available, is_taxable) "
                          "VALUES ('Broth', 1, 500, 1, 1)"));

    db.run(QStringLiteral("DELETE FROM categories"));

    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM menu")).toInt(), 0);
}

void tst_SchemaRules::deletingATableFreesItsSessionsAndRemovesItsDrawings()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral("INSERT INTO tables (table_name) VALUES ('T1')"));
    db.run(QStringLiteral("INSERT INTO floors (name) VALUES ('Ground')"));
    db.run(QStringLiteral("INSERT INTO order_sessions (display_number, order_type, table_id) "
                          "VALUES (4001, 'dine_in', 1)"));
    db.run(
        QStringLiteral("INSERT INTO canvas_items (floor_id, table_id, type, x, y, width, height) "
                       "VALUES (1, 1, 'table', 0, 0, 1, 1)"));
    db.run(QStringLiteral("INSERT INTO reservations (table_id) VALUES (1)"));

    db.run(QStringLiteral("DELETE FROM tables"));

    QVERIFY(db.value(QStringLiteral("SELECT table_id IS NULL FROM order_sessions")).toBool());
    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM canvas_items")).toInt(), 0);
    QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM reservations")).toInt(), 0);
}

void tst_SchemaRules::deletingASessionTakesItsOrdersAlong()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral(
        "INSERT INTO order_sessions (display_number, order_type) VALUES (4001, 'takeaway')"));
    db.run(QStringLiteral("INSERT INTO orders (order_session_id, display_number) VALUES (1, 1)"));
    db.run(QStringLiteral("INSERT INTO order_items (order_id, is_taxable) VALUES (1, 1)"));
    db.run(QStringLiteral("INSERT INTO receipt_snapshot (order_session_id) VALUES (1)"));

    db.run(QStringLiteral("DELETE FROM order_sessions"));

    for (const char *table : {"orders", "order_items", "receipt_snapshot"}) {
        QCOMPARE(db.value(QStringLiteral("SELECT COUNT(*) FROM ") + QLatin1String(table)).toInt(),
                 0);
    }
}

void tst_SchemaRules::aSessionWithPointsCannotBeDeleted()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    db.run(QStringLiteral(
        "INSERT INTO order_sessions (display_number, order_type) VALUES (4001, 'takeaway')"));
    db.run(QStringLiteral("INSERT INTO memberships (phone_number) VALUES ('555')"));
    db.run(QStringLiteral("INSERT INTO membership_transactions (membership_id, order_session_id, "
                          "type, points) VALUES (1, 1, 'earn', 1)"));
    QSqlQuery query(db.handle());

    QVERIFY(!query.exec(QStringLiteral("DELETE FROM order_sessions")));
    QVERIFY(!query.exec(QStringLiteral("DELETE FROM memberships")));
}

ZELVAN_TEST(tst_SchemaRules)
#include "tst_schemarules.moc"
