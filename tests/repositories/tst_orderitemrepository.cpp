// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/OrderItemRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
/// Orders 1 to 3 in one session; dishes 1 and 2.
struct Fixture
{
    Fixture()
    {
        db.run(QStringLiteral("INSERT INTO categories (category) VALUES ('Soups')"));
        db.run(QStringLiteral("INSERT INTO menu (item, category_id, price, is_available, "
                              "is_taxable) VALUES ('Broth', 1, 500, 1, 1), ('Tea', 1, 250, 1, 0)"));
        db.run(QStringLiteral(
            "INSERT INTO order_sessions (display_number, order_type) VALUES (4001, 'takeaway')"));
        db.run(QStringLiteral("INSERT INTO orders (order_session_id, display_number) "
                              "VALUES (1, 4001), (1, 4002), (1, 4003)"));
    }

    TestDatabase db;
    OrderItemRepository items{db.handle()};
};

OrderItem line(int orderId, const QString &name = QStringLiteral("Broth"))
{
    OrderItem item;
    item.order_id = orderId;
    item.item_id = 1;
    item.item_name = name;
    item.quantity = 3;
    item.portion_size = QStringLiteral("large");
    item.price = 1250.0;
    item.is_taxable = true;
    item.item_status = QStringLiteral("pending");
    item.notes = QStringLiteral("hot");
    return item;
}
} // namespace

class tst_OrderItemRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedLineIsReadBackWhole();
    void unsetTextsAreStoredAsEmptyOnes();
    void anUpdateChangesAllButTheOrder();
    void removingTakesOneLine();
    void removingByOrderTakesAllItsLines();
    void markingReachesTheLinesOfTheOrderOnly();
    void theLinesOfManyOrdersComeInOneList();
    void noOrdersNeedNoStatement();
    void everyFailureIsLogged();
};

void tst_OrderItemRepository::aCreatedLineIsReadBackWhole()
{
    Fixture f;

    f.items.create(line(2));

    const std::optional<OrderItem> found = f.items.getOrderItemById(1);
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->order_id, 2);
    QCOMPARE(found->item_id, 1);
    QCOMPARE(found->item_name, QStringLiteral("Broth"));
    QCOMPARE(found->quantity, 3);
    QCOMPARE(found->portion_size, QStringLiteral("large"));
    QCOMPARE(found->price, 1250.0);
    QCOMPARE(found->is_taxable, true);
    QCOMPARE(found->item_status, QStringLiteral("pending"));
    QCOMPARE(found->notes, QStringLiteral("hot"));
    QVERIFY(!f.items.getOrderItemById(2));
    // Whole cents stay whole in a NUMERIC column.
    QCOMPARE(f.db.value(QStringLiteral("SELECT typeof(price) FROM order_items")).toString(),
             QStringLiteral("integer"));
}

void tst_OrderItemRepository::unsetTextsAreStoredAsEmptyOnes()
{
    Fixture f;
    OrderItem item = line(1);
    item.portion_size = QString();
    item.notes = QString();

    f.items.create(item);

    QCOMPARE(
        f.db.value(QStringLiteral(
                       "SELECT COUNT(*) FROM order_items WHERE portion_size = '' AND notes = ''"))
            .toInt(),
        1);
}

void tst_OrderItemRepository::anUpdateChangesAllButTheOrder()
{
    Fixture f;
    f.items.create(line(1));
    OrderItem changed;
    changed.id = 1;
    changed.order_id = 2;
    changed.item_id = 2;
    changed.item_name = QStringLiteral("Tea");
    changed.quantity = 1;
    changed.portion_size = QStringLiteral("small");
    changed.price = 99.0;
    changed.is_taxable = false;
    changed.item_status = QStringLiteral("served");
    changed.notes = QStringLiteral("cold");

    f.items.update(changed);

    const std::optional<OrderItem> found = f.items.getOrderItemById(1);
    QCOMPARE(found->order_id, 1);
    QCOMPARE(found->item_id, 2);
    QCOMPARE(found->item_name, QStringLiteral("Tea"));
    QCOMPARE(found->quantity, 1);
    QCOMPARE(found->portion_size, QStringLiteral("small"));
    QCOMPARE(found->price, 99.0);
    QCOMPARE(found->is_taxable, false);
    QCOMPARE(found->item_status, QStringLiteral("served"));
    QCOMPARE(found->notes, QStringLiteral("cold"));
}

void tst_OrderItemRepository::removingTakesOneLine()
{
    Fixture f;
    f.items.create(line(1));
    f.items.create(line(1));

    f.items.remove(1);

    QCOMPARE(f.items.getAllOrderItems().size(), 1);
    QCOMPARE(f.items.getAllOrderItems().at(0).id, 2);
}

void tst_OrderItemRepository::removingByOrderTakesAllItsLines()
{
    Fixture f;
    f.items.create(line(1));
    f.items.create(line(2));
    f.items.create(line(1));

    f.items.removeByOrderId(1);

    QVERIFY(f.items.getOrderItemsByOrderId(1).isEmpty());
    QCOMPARE(f.items.getOrderItemsByOrderId(2).size(), 1);
}

void tst_OrderItemRepository::markingReachesTheLinesOfTheOrderOnly()
{
    Fixture f;
    f.items.create(line(1));
    f.items.create(line(1));
    f.items.create(line(2));

    QVERIFY(f.items.markItemsByOrderId(1, QStringLiteral("served")));

    QCOMPARE(f.items.getOrderItemById(1)->item_status, QStringLiteral("served"));
    QCOMPARE(f.items.getOrderItemById(2)->item_status, QStringLiteral("served"));
    QCOMPARE(f.items.getOrderItemById(3)->item_status, QStringLiteral("pending"));
}

void tst_OrderItemRepository::theLinesOfManyOrdersComeInOneList()
{
    Fixture f;
    f.items.create(line(1, QStringLiteral("a")));
    f.items.create(line(2, QStringLiteral("b")));
    f.items.create(line(3, QStringLiteral("c")));
    f.items.create(line(1, QStringLiteral("d")));

    QStringList names;
    for (const OrderItem &item : f.items.getOrderItemsByOrderIds({3, 1})) {
        names.append(item.item_name);
    }

    QCOMPARE(names, (QStringList{QStringLiteral("a"), QStringLiteral("c"), QStringLiteral("d")}));
}

void tst_OrderItemRepository::noOrdersNeedNoStatement()
{
    Fixture f;
    f.db.run(QStringLiteral("ALTER TABLE order_items RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QVERIFY(f.items.getOrderItemsByOrderIds({}).isEmpty()); }), QString());
}

void tst_OrderItemRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto told = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE order_items RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { f.items.create(line(1)); }), told("[OrderItemRepository] create failed:"));
    QCOMPARE(logOf([&] { f.items.update(line(1)); }), told("update failed:"));
    QCOMPARE(logOf([&] { f.items.remove(1); }), told("remove failed:"));
    QCOMPARE(logOf([&] { f.items.removeByOrderId(1); }),
             QStringLiteral("critical [default] Failed to remove order items: <QSqlError>"));
    QCOMPARE(logOf([&] { QVERIFY(!f.items.markItemsByOrderId(1, QString())); }),
             told("markItemsByOrderId failed:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.items.getOrderItemById(1)); }),
             told("getOrderItemById failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.items.getAllOrderItems().isEmpty()); }),
             told("getAllOrderItems failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.items.getOrderItemsByOrderId(1).isEmpty()); }),
             told("getOrderItemsByOrderId failed:"));
    QCOMPARE(logOf([&] { QVERIFY(f.items.getOrderItemsByOrderIds({1}).isEmpty()); }),
             told("getOrderItemsByOrderIds failed:"));
}

ZELVAN_TEST(tst_OrderItemRepository)
#include "tst_orderitemrepository.moc"
