// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/OrderSessionRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    Fixture() { db.run(QStringLiteral("INSERT INTO tables (table_name) VALUES ('T1'), ('T2')")); }

    int session(const QString &values)
    {
        return db.insert(QStringLiteral("INSERT INTO order_sessions (display_number, table_id, "
                                        "order_type, status, opened_at, closed_at) VALUES (%1)")
                             .arg(values));
    }

    TestDatabase db;
    OrderSessionRepository sessions{db.handle()};
};

OrderSession filledSession()
{
    OrderSession session;
    session.display_number = 4711;
    session.receipt_number = QStringLiteral("2026-7");
    session.table_id = 1;
    session.order_type = QStringLiteral("dine_in");
    session.status = QStringLiteral("open");
    session.points_earned = 3;
    session.points_redeemed = 4;
    session.subtotal = 1000.0;
    session.tax = 60.0;
    session.discount = 10.0;
    session.total = 1050.0;
    session.opened_at = QStringLiteral("1999-01-01 00:00:00");
    session.closed_at = QStringLiteral("1999-01-01 01:00:00");
    return session;
}

/// The fields that a creation and an update alike store.
void verifyFilled(const OrderSession &session)
{
    QCOMPARE(session.display_number, 4711);
    QCOMPARE(session.table_id, std::optional(1));
    QCOMPARE(session.order_type, QStringLiteral("dine_in"));
    QCOMPARE(session.status, QStringLiteral("open"));
    QCOMPARE(session.points_earned, 3);
    QCOMPARE(session.points_redeemed, 4);
    QCOMPARE(session.subtotal, 1000.0);
    QCOMPARE(session.tax, 60.0);
    QCOMPARE(session.discount, 10.0);
    QCOMPARE(session.total, 1050.0);
}

QList<int> idsOf(const QList<OrderSession> &sessions)
{
    QList<int> ids;
    for (const OrderSession &session : sessions) {
        ids.append(session.id);
    }
    return ids;
}
} // namespace

class tst_OrderSessionRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aDayWithoutSessionsHasTheHighestNumberZero();
    void theHighestNumberIsThatOfTheOpeningDate();
    void theOpenDineInSessionOfATableIsFound_data();
    void theOpenDineInSessionOfATableIsFound();
    void aCreatedSessionHasNoReceiptNumberAndNoClosingTime();
    void aSessionWithoutATableStoresNull();
    void anUpdateLeavesOpeningAndClosingTimeAlone();
    void anUpdateWritesAbsentFieldsAsNull();
    void payingSetsStatusAndClosingTimeInUtc();
    void aSessionIsFoundByOneOfItsOrders();
    void recentPaidSessionsComeNewestFirstUpToTheLimit();
    void openSessionsAreListed();
    void deletingASessionRemovesItsOrders();
    void everyFailureIsLogged();
};

void tst_OrderSessionRepository::aDayWithoutSessionsHasTheHighestNumberZero()
{
    Fixture f;

    QCOMPARE(f.sessions.getMaxDisplayNumber(QStringLiteral("2026-03-04")), 0);
}

void tst_OrderSessionRepository::theHighestNumberIsThatOfTheOpeningDate()
{
    Fixture f;
    f.session(QStringLiteral("4711, 1, 'dine_in', 'paid', '2026-03-04 00:00:00', NULL"));
    f.session(QStringLiteral("4710, 1, 'dine_in', 'paid', '2026-03-04 23:59:59', NULL"));
    f.session(QStringLiteral("9999, 1, 'dine_in', 'paid', '2026-03-05 00:00:00', NULL"));

    QCOMPARE(f.sessions.getMaxDisplayNumber(QStringLiteral("2026-03-04")), 4711);
}

void tst_OrderSessionRepository::theOpenDineInSessionOfATableIsFound_data()
{
    QTest::addColumn<QString>("values");
    QTest::addColumn<int>("id");

    QTest::newRow("open dine-in") << "1, 1, 'dine_in', 'open', '2026-03-04', NULL" << 1;
    QTest::newRow("paid") << "1, 1, 'dine_in', 'paid', '2026-03-04', NULL" << 0;
    QTest::newRow("takeaway") << "1, 1, 'takeaway', 'open', '2026-03-04', NULL" << 0;
    QTest::newRow("delivery") << "1, 1, 'delivery', 'open', '2026-03-04', NULL" << 0;
    QTest::newRow("other table") << "1, 2, 'dine_in', 'open', '2026-03-04', NULL" << 0;
}

void tst_OrderSessionRepository::theOpenDineInSessionOfATableIsFound()
{
    QFETCH(QString, values);
    QFETCH(int, id);
    Fixture f;
    f.session(values);

    QCOMPARE(f.sessions.findOpenDineInSession(1), id);
}

void tst_OrderSessionRepository::aCreatedSessionHasNoReceiptNumberAndNoClosingTime()
{
    Fixture f;
    OrderSession session = filledSession();

    const int id = f.sessions.create(session);

    QCOMPARE(id, 1);
    QCOMPARE(session.id, 1);
    const std::optional<OrderSession> found = f.sessions.getSessionById(1);
    QVERIFY(found);
    QVERIFY(!found->receipt_number.has_value());
    verifyFilled(*found);
    QVERIFY(found->opened_at.has_value());
    QVERIFY(*found->opened_at > QStringLiteral("2000"));
    QVERIFY(!found->closed_at.has_value());
    QVERIFY(!f.sessions.getSessionById(2));
}

void tst_OrderSessionRepository::aSessionWithoutATableStoresNull()
{
    Fixture f;
    OrderSession session = filledSession();
    session.table_id = std::nullopt;

    f.sessions.create(session);

    QVERIFY(!f.sessions.getSessionById(1)->table_id.has_value());
    QVERIFY(f.db.value(QStringLiteral("SELECT table_id IS NULL FROM order_sessions")).toBool());
}

void tst_OrderSessionRepository::anUpdateLeavesOpeningAndClosingTimeAlone()
{
    Fixture f;
    const int id = f.session(QStringLiteral("1, 2, 'takeaway', 'paid', '2026-03-04 10:00:00', "
                                            "'2026-03-04 11:00:00'"));
    OrderSession changed = filledSession();
    changed.id = id;

    QVERIFY(f.sessions.update(changed));

    const std::optional<OrderSession> found = f.sessions.getSessionById(id);
    QVERIFY(found);
    QCOMPARE(found->receipt_number, std::optional(QStringLiteral("2026-7")));
    verifyFilled(*found);
    QCOMPARE(found->opened_at, std::optional(QStringLiteral("2026-03-04 10:00:00")));
    QCOMPARE(found->closed_at, std::optional(QStringLiteral("2026-03-04 11:00:00")));
}

void tst_OrderSessionRepository::anUpdateWritesAbsentFieldsAsNull()
{
    Fixture f;
    OrderSession session = filledSession();
    f.sessions.create(session);
    QVERIFY(f.sessions.update(session));
    session.receipt_number = std::nullopt;
    session.table_id = std::nullopt;

    QVERIFY(f.sessions.update(session));

    const std::optional<OrderSession> found = f.sessions.getSessionById(session.id);
    QVERIFY(!found->receipt_number.has_value());
    QVERIFY(!found->table_id.has_value());
}

void tst_OrderSessionRepository::payingSetsStatusAndClosingTimeInUtc()
{
    Fixture f;
    f.session(QStringLiteral("1, 1, 'dine_in', 'open', '2026-03-04', NULL"));
    f.session(QStringLiteral("2, 2, 'dine_in', 'open', '2026-03-04', NULL"));

    QVERIFY(f.sessions.markPaid(1));

    QCOMPARE(f.sessions.getSessionById(1)->status, QStringLiteral("paid"));
    QVERIFY(f.db.value(QStringLiteral("SELECT abs(julianday(closed_at) - julianday('now')) < 0.01 "
                                      "FROM order_sessions WHERE id = 1"))
                .toBool());
    QCOMPARE(f.sessions.getSessionById(2)->status, QStringLiteral("open"));
    QVERIFY(!f.sessions.getSessionById(2)->closed_at.has_value());
}

void tst_OrderSessionRepository::aSessionIsFoundByOneOfItsOrders()
{
    Fixture f;
    f.session(QStringLiteral("4001, 1, 'dine_in', 'open', '2026-03-04', NULL"));
    f.session(QStringLiteral("4002, NULL, 'takeaway', 'open', '2026-03-05', NULL"));
    f.db.run(
        QStringLiteral("INSERT INTO orders (id, order_session_id, display_number, status, "
                       "closed_at) VALUES (70, 1, 1, 'served', 'x'), (80, 2, 2, 'ready', 'y')"));

    const std::optional<OrderSession> found = f.sessions.getSessionByOrderId(80);

    QVERIFY(found);
    QCOMPARE(found->id, 2);
    QCOMPARE(found->display_number, 4002);
    QCOMPARE(found->status, QStringLiteral("open"));
    QVERIFY(!found->closed_at.has_value());
    QVERIFY(!f.sessions.getSessionByOrderId(1));
}

void tst_OrderSessionRepository::recentPaidSessionsComeNewestFirstUpToTheLimit()
{
    Fixture f;
    f.session(QStringLiteral("1, 1, 'dine_in', 'paid', '2026-03-04', '2026-03-04 10:00:00'"));
    f.session(QStringLiteral("2, 1, 'dine_in', 'paid', '2026-03-04', '2026-03-04 12:00:00'"));
    f.session(QStringLiteral("3, 1, 'dine_in', 'open', '2026-03-04', '2026-03-04 13:00:00'"));
    f.session(QStringLiteral("4, 1, 'dine_in', 'paid', '2026-03-04', '2026-03-04 11:00:00'"));

    QCOMPARE(idsOf(f.sessions.getRecentPaidSessions(20)), (QList<int>{2, 4, 1}));
    QCOMPARE(idsOf(f.sessions.getRecentPaidSessions(2)), (QList<int>{2, 4}));
}

void tst_OrderSessionRepository::openSessionsAreListed()
{
    Fixture f;
    f.session(QStringLiteral("1, 1, 'dine_in', 'open', '2026-03-04', NULL"));
    f.session(QStringLiteral("2, 1, 'dine_in', 'paid', '2026-03-04', NULL"));
    f.session(QStringLiteral("3, NULL, 'delivery', 'open', '2020-01-01', NULL"));

    QCOMPARE(idsOf(f.sessions.getOpenSessions()), (QList<int>{1, 3}));
}

void tst_OrderSessionRepository::deletingASessionRemovesItsOrders()
{
    Fixture f;
    f.session(QStringLiteral("1, 1, 'dine_in', 'open', '2026-03-04', NULL"));
    f.db.run(QStringLiteral("INSERT INTO orders (order_session_id, display_number) VALUES (1, 1)"));

    f.db.run(QStringLiteral("DELETE FROM order_sessions"));

    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM orders")).toInt(), 0);
}

void tst_OrderSessionRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE order_sessions RENAME TO elsewhere"));
    OrderSession session = filledSession();

    QCOMPARE(
        logOf([&] { QCOMPARE(f.sessions.getMaxDisplayNumber(QStringLiteral("2026-01-01")), 0); }),
        line("Failed to get max display number:"));
    // The search for a table's session fails without a word.
    QCOMPARE(logOf([&] { QCOMPARE(f.sessions.findOpenDineInSession(1), 0); }), QString());
    QCOMPARE(logOf([&] { QCOMPARE(f.sessions.create(session), 0); }),
             line("Failed to create order session:"));
    QCOMPARE(session.id, -1);
    QCOMPARE(logOf([&] { QVERIFY(!f.sessions.update(session)); }),
             line("Failed to update order session:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.sessions.markPaid(1)); }),
             line("Failed to mark order as closed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.sessions.getSessionById(1)); }),
             line("Failed to get order session by id:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.sessions.getSessionByOrderId(1)); }),
             line("Failed to get order session by order id:"));
    QCOMPARE(logOf([&] { QVERIFY(f.sessions.getRecentPaidSessions(20).isEmpty()); }),
             line("Failed to get recent paid sessions:"));
    QCOMPARE(logOf([&] { QVERIFY(f.sessions.getOpenSessions().isEmpty()); }),
             line("Failed to get active order sessions:"));
}

ZELVAN_TEST(tst_OrderSessionRepository)
#include "tst_ordersessionrepository.moc"
