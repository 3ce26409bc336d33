// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/CheckoutService.h"
#include "support/DatabaseDump.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <memory>

namespace {
const QString servedAt = QStringLiteral("2026-11-20T12:00:00");

QVariantMap theFirst(const QVariantList &list)
{
    return list.value(0).toMap();
}
} // namespace

/// Totals, and what the checkout screen is given.
class tst_CheckoutLoaders : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void linesAreCutBeforeTheyAreAdded_data();
    void linesAreCutBeforeTheyAreAdded();
    void onlyTaxableLinesAreTaxed();
    void withoutATaxRowThereIsNoTax();
    void theTotalNeverGoesBelowZero();
    void totalsOfAnUnknownSessionAnswerFalse();
    void openSessionsAreShownWithFreshTotals();
    void anOpenSessionsTableMayBeMissing();
    void paidSessionsAreNotAmongTheOpen();
    void detailsRepeatTheSessionsFiguresInEveryOrder();
    void detailsOfAnUnknownSessionAreEmpty();
    void paidDetailsShowFiguresAsStored();
    void theLastTwentyPaymentsAreListedNewestFirst();

private:
    QString figures() const;

    std::unique_ptr<TestStore> m_store;
    int m_soup = 0;
    int m_table = 0;
    int m_session = 0;
};

void tst_CheckoutLoaders::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<TestStore>();
    m_soup = m_store->addDish({"Soup", 1050, true, true, "Cup"});
    m_table = m_store->addTable("T1");
    m_session =
        m_store->sessionOf(m_store->orderAtTable(m_table, {TestStore::line(m_soup, 3, "hot")}));
}

QString tst_CheckoutLoaders::figures() const
{
    return m_store->text("SELECT subtotal || ' ' || tax || ' ' || discount || ' ' || total "
                         "FROM order_sessions WHERE id = 1");
}

void tst_CheckoutLoaders::linesAreCutBeforeTheyAreAdded_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<int>("quantity");
    QTest::addColumn<QString>("stored");

    QTest::newRow("1000.5 twice is 2000") << 333.5 << 3 << QStringLiteral("2000 120 0 2000+120");
    QTest::newRow("negative lines are cut towards zero")
        << 333.5 << -3 << QStringLiteral("-2000 -120 0 0");
    QTest::newRow("whole cents") << 999.0 << 1 << QStringLiteral("1998 119 0 1998+119");
    QTest::newRow("beyond 32 bits")
        << 1e9 << 4 << QStringLiteral("8000000000 480000000 0 8000000000+480000000");
}

void tst_CheckoutLoaders::linesAreCutBeforeTheyAreAdded()
{
    QFETCH(double, price);
    QFETCH(int, quantity);
    QFETCH(QString, stored);
    m_store->setTax(600);
    m_store->orderAtTable(m_table, {TestStore::line(m_soup)});
    m_store->database.run(QStringLiteral("UPDATE order_items SET price = %1, quantity = %2")
                              .arg(QString::number(price, 'f', 1), QString::number(quantity)));

    QVERIFY(m_store->services.checkout.recalculateTotals(m_session));

    const QStringList parts = stored.split(QLatin1Char(' '));
    const QStringList summands = parts.last().split(QLatin1Char('+'));
    const qint64 total = summands.value(0).toLongLong() + summands.value(1).toLongLong();
    QCOMPARE(figures(),
             QStringList(parts.mid(0, 3) << QString::number(total)).join(QLatin1Char(' ')));
}

void tst_CheckoutLoaders::onlyTaxableLinesAreTaxed()
{
    m_store->setTax(1000);
    const int card = m_store->addDish({"Gift card", 5000, true, false});
    m_store->orderAtTable(m_table, {TestStore::line(card)});

    QVERIFY(m_store->services.checkout.recalculateTotals(m_session));
    QCOMPARE(figures(), QStringLiteral("8150 315 0 8465"));

    m_store->database.run("UPDATE order_items SET is_taxable = 0");
    QVERIFY(m_store->services.checkout.recalculateTotals(m_session));
    QCOMPARE(figures(), QStringLiteral("8150 0 0 8150"));
}

void tst_CheckoutLoaders::withoutATaxRowThereIsNoTax()
{
    m_store->setTax(1000);
    m_store->database.run("DELETE FROM tax_settings");

    QVERIFY(m_store->services.checkout.recalculateTotals(m_session));

    QCOMPARE(figures(), QStringLiteral("3150 0 0 3150"));
}

void tst_CheckoutLoaders::theTotalNeverGoesBelowZero()
{
    m_store->setTax(1000);
    m_store->database.run("UPDATE order_sessions SET discount = 4000");

    QVERIFY(m_store->services.checkout.recalculateTotals(m_session));
    QCOMPARE(figures(), QStringLiteral("3150 315 4000 0"));

    // The discount lowers the total and never the tax.
    m_store->database.run("UPDATE order_sessions SET discount = 3000");
    QVERIFY(m_store->services.checkout.recalculateTotals(m_session));
    QCOMPARE(figures(), QStringLiteral("3150 315 3000 465"));
}

void tst_CheckoutLoaders::totalsOfAnUnknownSessionAnswerFalse()
{
    QVERIFY(!m_store->services.checkout.recalculateTotals(99));
}

void tst_CheckoutLoaders::openSessionsAreShownWithFreshTotals()
{
    m_store->database.run("UPDATE order_items SET price = 999");
    m_store->database.run("UPDATE order_sessions SET opened_at = '2026-11-20 10:00:00', "
                          "display_number = 4711");

    const QVariantList sessions = m_store->services.checkout.loadActiveCheckoutSessions();

    QCOMPARE(sessions.size(), 1);
    const QVariantMap expected{
        {"id", m_session},
        {"display_number", 4711},
        {"table_name", "T1"},
        {"order_type", "dine_in"},
        {"status", "open"},
        {"subtotal", 29.97},
        {"tax", 0.0},
        {"discount", 0.0},
        {"total", 29.97},
        {"opened_at", "2026-11-20 10:00:00"},
        {"closed_at", QVariant::fromValue(nullptr)},
    };
    QCOMPARE(theFirst(sessions), expected);
    // This read writes.
    QCOMPARE(figures(), QStringLiteral("2997 0 0 2997"));
}

void tst_CheckoutLoaders::anOpenSessionsTableMayBeMissing()
{
    m_store->orderTakeaway({TestStore::line(m_soup)});
    m_store->database.run("PRAGMA foreign_keys = OFF");
    m_store->database.run("DELETE FROM tables");

    const QVariantList sessions = m_store->services.checkout.loadActiveCheckoutSessions();

    QCOMPARE(sessions.size(), 2);
    QCOMPARE(theFirst(sessions).value("table_name"), QVariant(QString("")));
    QVERIFY(sessions[1].toMap().value("table_name").isNull());
}

void tst_CheckoutLoaders::paidSessionsAreNotAmongTheOpen()
{
    QVERIFY(m_store->services.checkout.completeCheckout(m_session, {}, 0));

    QCOMPARE(m_store->services.checkout.loadActiveCheckoutSessions(), QVariantList());
}

void tst_CheckoutLoaders::detailsRepeatTheSessionsFiguresInEveryOrder()
{
    m_store->orderAtTable(m_table, {TestStore::line(m_soup), TestStore::line(m_soup, -2)});
    m_store->database.run("UPDATE orders SET display_number = id + 5000, notes = 'n' || id");
    m_store->database.run(
        QStringLiteral("UPDATE orders SET closed_at = '%1' WHERE id = 2").arg(servedAt));
    m_store->database.run("UPDATE order_sessions SET discount = 100, subtotal = 0, total = 0");

    const QVariantList orders = m_store->services.checkout.loadCheckoutDetails(m_session);

    QCOMPARE(orders.size(), 2);
    const QVariantMap soup{
        {"id", 1},
        {"item_id", m_soup},
        {"item_name", "Soup"},
        {"quantity", 3},
        {"portion_size", "Cup"},
        {"unit_price", 10.5},
        {"total_price", 31.5},
        {"item_status", "served"},
        {"notes", "hot"},
    };
    const QVariantMap first{
        {"id", 1},
        {"display_number", 5001},
        {"status", "served"},
        {"notes", "n1"},
        {"closed_at", QVariant::fromValue(nullptr)},
        {"items", QVariantList{soup}},
        {"subtotal", 21.0},
        {"tax", 0.0},
        {"discount", 1.0},
        {"total", 20.0},
    };
    QCOMPARE(theFirst(orders), first);
    const QVariantMap second = orders[1].toMap();
    QCOMPARE(second.value("closed_at"), QVariant(servedAt));
    QCOMPARE(second.value("items").toList().size(), 2);
    QCOMPARE(second.value("items").toList()[1].toMap().value("total_price"), QVariant(-21.0));
    QCOMPARE(second.value("total"), QVariant(20.0));
    QCOMPARE(figures(), QStringLiteral("2100 0 100 2000"));
}

void tst_CheckoutLoaders::detailsOfAnUnknownSessionAreEmpty()
{
    QCOMPARE(m_store->services.checkout.loadCheckoutDetails(99), QVariantList());
    QCOMPARE(m_store->services.checkout.loadPaidOrderDetails(99), QVariantMap());
}

void tst_CheckoutLoaders::paidDetailsShowFiguresAsStored()
{
    m_store->database.run("UPDATE order_sessions SET display_number = 4711, subtotal = 123, "
                          "tax = 4, discount = 5, total = 122");
    m_store->database.run("UPDATE orders SET display_number = 5001");
    const QStringList before = dumpOf(m_store->database);

    const QVariantMap details = m_store->services.checkout.loadPaidOrderDetails(m_session);

    QStringList keys = details.keys();
    QCOMPARE(keys, QStringList(
                       {"discount", "display_number", "id", "orders", "subtotal", "tax", "total"}));
    QCOMPARE(details.value("display_number"), QVariant(4711));
    QCOMPARE(details.value("subtotal"), QVariant(1.23));
    QCOMPARE(details.value("tax"), QVariant(0.04));
    QCOMPARE(details.value("discount"), QVariant(0.05));
    QCOMPARE(details.value("total"), QVariant(1.22));
    const QVariantMap order = theFirst(details.value("orders").toList());
    keys = order.keys();
    QCOMPARE(keys, QStringList({"closed_at", "display_number", "id", "items", "notes", "status"}));
    QCOMPARE(order.value("display_number"), QVariant(5001));
    QCOMPARE(theFirst(order.value("items").toList()).value("notes"), QVariant("hot"));
    QCOMPARE(dumpOf(m_store->database), before);
}

void tst_CheckoutLoaders::theLastTwentyPaymentsAreListedNewestFirst()
{
    for (int payment = 1; payment <= 21; ++payment) {
        m_store->database.run(
            QStringLiteral("INSERT INTO order_sessions (display_number, order_type, status, total, "
                           "closed_at) VALUES (%1, 'takeaway', 'paid', %2, '2026-11-%3 10:00:00')")
                .arg(5000 + payment)
                .arg(payment * 150)
                .arg(payment % 2 == 0 ? payment + 2 : 31 - payment, 2, 10, QLatin1Char('0')));
    }

    const QVariantList recent = m_store->services.checkout.getRecentPaidOrders();

    QCOMPARE(recent.size(), 20);
    // Paid on the 30th; the oldest, of the 4th, is left out.
    QCOMPARE(theFirst(recent),
             QVariantMap({{"id", m_session + 1}, {"display_number", 5001}, {"total", 1.5}}));
    for (const QVariant &row : recent) {
        QVERIFY(row.toMap().value("display_number") != QVariant(5002));
    }
}

ZELVAN_TEST(tst_CheckoutLoaders)
#include "tst_checkoutloaders.moc"
