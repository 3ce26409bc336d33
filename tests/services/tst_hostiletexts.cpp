// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/DatabaseDump.h"
#include "support/TestStore.h"
#include "support/ZelvanTest.h"

#include <QSignalSpy>

#include <functional>

namespace {
/// Each is typed between two letters: what surrounds a name is cut off by some, as it is meant.
QMap<QString, QString> hostileTexts()
{
    return {
        {QStringLiteral("quotes"), QStringLiteral("a'); DELETE FROM users; -- \"`' OR 1=1 z")},
        {QStringLiteral("placeholders"), QStringLiteral("a :id ? ?1 %1 %2 %n %% {0} $x z")},
        {QStringLiteral("zero"), QStringLiteral("a") + QChar(0) + QStringLiteral("z")},
        {QStringLiteral("control bytes"), QStringLiteral("a\x01\x07\x08\t\r\n\x1b[2J\x1bp\x7f z")},
        {QStringLiteral("marks of direction"),
         QStringLiteral("a\u202e\u2066\u200f gnp.exe \u2069z")},
        {QStringLiteral("markup"),
         QStringLiteral("a<b>&amp;</b><img src='file:///etc/passwd'><script>1</script>z")},
        {QStringLiteral("emoji and combining"),
         QStringLiteral("a\U0001F35C e\u0301\u0323 \ufeff z")},
        {QStringLiteral("a megabyte"), QStringLiteral("a%1z").arg(QString(1 << 20, u'm'))},
    };
}

using Write = std::function<void(TestStore &store, const QString &text)>;

struct Operation
{
    QString name;
    Write write;
};

QVariantMap booking(const QString &name, const QString &phone, const QString &notes)
{
    return {{QStringLiteral("customerName"), name},
            {QStringLiteral("customerPhone"), phone},
            {QStringLiteral("pax"), 2},
            {QStringLiteral("tableId"), 2},
            {QStringLiteral("reservationDateTime"), QDateTime(QDate(2030, 1, 1), QTime(12, 0))},
            {QStringLiteral("durationMinutes"), 60},
            {QStringLiteral("status"), QStringLiteral("booked")},
            {QStringLiteral("notes"), notes}};
}

void drawAndSave(TestStore &store, const QVariantMap &item)
{
    const int floor = store.services.floorPlan.createFloor(QStringLiteral("Hall"));
    store.services.floorPlan.loadCanvas(floor);
    store.services.floorPlan.addItem(item);
    QVERIFY(store.services.floorPlan.saveCanvas(floor));
}

QList<Operation> menuOperations()
{
    return {
        {QStringLiteral("add a category"),
         [](TestStore &store, const QString &text) { store.services.menu.addCategory(text); }},
        {QStringLiteral("rename a category"),
         [](TestStore &store, const QString &text) {
             store.services.menu.renameCategory(1, text);
         }},
        {QStringLiteral("add a dish"),
         [](TestStore &store, const QString &text) {
             store.services.menu.addMenuItem(text, 1, 5.0, true, true, QStringLiteral("L"));
         }},
        {QStringLiteral("add a dish of a portion"),
         [](TestStore &store, const QString &text) {
             store.services.menu.addMenuItem(QStringLiteral("Tea"), 1, 5.0, true, true, text);
         }},
        {QStringLiteral("edit a dish"),
         [](TestStore &store, const QString &text) {
             store.services.menu.editMenuItem(1, text, 1, 5.0, true, true, QStringLiteral("L"));
         }},
    };
}

QList<Operation> placeOperations()
{
    return {
        {QStringLiteral("add a table"),
         [](TestStore &store, const QString &text) { store.services.tables.addTable(text, 4); }},
        {QStringLiteral("edit a table"),
         [](TestStore &store, const QString &text) {
             store.services.tables.editTable(1, text, 4);
         }},
        {QStringLiteral("set a table's status"),
         [](TestStore &store, const QString &text) {
             store.services.tables.setTableStatus(1, text);
         }},
        {QStringLiteral("create a floor"),
         [](TestStore &store, const QString &text) { store.services.floorPlan.createFloor(text); }},
        {QStringLiteral("draw a wall with a label"),
         [](TestStore &store, const QString &text) {
             drawAndSave(store, {{QStringLiteral("type"), QStringLiteral("wall")},
                                 {QStringLiteral("label"), text}});
         }},
        {QStringLiteral("draw a wall of a colour"),
         [](TestStore &store, const QString &text) {
             drawAndSave(store, {{QStringLiteral("type"), QStringLiteral("wall")},
                                 {QStringLiteral("color"), text}});
         }},
        {QStringLiteral("draw a wall with metadata"),
         [](TestStore &store, const QString &text) {
             drawAndSave(store, {{QStringLiteral("type"), QStringLiteral("wall")},
                                 {QStringLiteral("metadata"), text}});
         }},
        {QStringLiteral("book for a name"),
         [](TestStore &store, const QString &text) {
             store.services.reservations.createReservation(
                 booking(text, QStringLiteral("1"), QString()));
         }},
        {QStringLiteral("book with notes"),
         [](TestStore &store, const QString &text) {
             store.services.reservations.createReservation(
                 booking(QStringLiteral("Ann"), QStringLiteral("1"), text));
         }},
    };
}

QList<Operation> orderOperations()
{
    return {
        {QStringLiteral("order with notes"),
         [](TestStore &store, const QString &text) {
             store.services.orders.createOrder(QStringLiteral("takeaway"), {TestStore::line(1)},
                                               {{QStringLiteral("notes"), text}});
         }},
        {QStringLiteral("order a line with notes"),
         [](TestStore &store, const QString &text) {
             store.orderTakeaway({TestStore::line(1, 1, text)});
         }},
        {QStringLiteral("order of a kind"),
         [](TestStore &store, const QString &text) {
             store.services.orders.createOrder(text, {TestStore::line(1)});
         }},
        {QStringLiteral("mark an order"),
         [](TestStore &store, const QString &text) {
             store.services.kitchenOrders.markState(1, text);
         }},
        {QStringLiteral("pay as a new member"),
         [](TestStore &store, const QString &text) {
             QVERIFY(store.services.checkout.completeCheckout(1, text, 0));
         }},
    };
}

QList<Operation> settingOperations()
{
    return {
        {QStringLiteral("rename a user"),
         [](TestStore &store, const QString &text) {
             store.services.users.updateUser(1, text, QStringLiteral("admin"));
         }},
        {QStringLiteral("give a role"),
         [](TestStore &store, const QString &text) {
             store.services.users.updateUser(1, QStringLiteral("mai"), text);
         }},
        {QStringLiteral("save the store's name"),
         [](TestStore &store, const QString &text) {
             store.services.settings.saveRestaurantSetting({{QStringLiteral("name"), text}});
         }},
        {QStringLiteral("save a printer"),
         [](TestStore &store, const QString &text) {
             store.services.settings.savePrinter({{QStringLiteral("system_name"), text},
                                                  {QStringLiteral("role"), text},
                                                  {QStringLiteral("paper_width"), 58},
                                                  {QStringLiteral("cut_mode"), text}});
         }},
        {QStringLiteral("save the tax's name"),
         [](TestStore &store, const QString &text) {
             store.services.settings.saveTaxSettings({{QStringLiteral("id"), 1},
                                                      {QStringLiteral("enabled"), true},
                                                      {QStringLiteral("rate"), 600},
                                                      {QStringLiteral("name"), text}});
         }},
        {QStringLiteral("save a currency"),
         [](TestStore &store, const QString &text) {
             store.services.settings.saveRegionalSettings(
                 {{QStringLiteral("locale"), QStringLiteral("en_US")},
                  {QStringLiteral("currency_code"), text}});
         }},
    };
}

QList<Operation> allOperations()
{
    return menuOperations() + placeOperations() + orderOperations() + settingOperations();
}

/// What was there before an operation and is no more, and what is there now and was not.
struct Change
{
    QStringList gone;
    QStringList made;
};

/// Stamps of the very second differ between two runs, so they are no part of a row here.
QStringList withoutStamps(QStringList rows)
{
    static const QRegularExpression stamp(
        QStringLiteral("\\d{4}-\\d\\d-\\d\\d[T ]\\d\\d:\\d\\d:\\d\\d"));
    return rows.replaceInStrings(stamp, QStringLiteral("now"));
}

Change changeBy(const Operation &operation, const QString &text, TestStore &store)
{
    const QStringList before = withoutStamps(dumpOf(store.database));
    operation.write(store, text);
    const QStringList after = withoutStamps(dumpOf(store.database));
    Change change;
    for (const QString &row : before) {
        if (!after.contains(row)) {
            change.gone.append(row);
        }
    }
    for (const QString &row : after) {
        if (!before.contains(row)) {
            change.made.append(row);
        }
    }
    return change;
}

/// The same rows, told with the benign text in the place of the other one.
QStringList translated(const QStringList &rows, const QString &text, const QString &benign)
{
    QStringList told = rows;
    return told.replaceInStrings(text, benign);
}

std::unique_ptr<TestStore> makeStore()
{
    auto store = std::make_unique<TestStore>();
    store->addDish({});
    store->addTable(QStringLiteral("T1"));
    store->addTable(QStringLiteral("T2"));
    store->database.run(QStringLiteral(
        "INSERT INTO users (username, password, role) VALUES ('mai', 'x', 'admin')"));
    store->setMembershipEnabled(true);
    store->orderTakeaway({TestStore::line(1)});
    // The first numbers of a day are drawn; those after them follow.
    store->database.run(QStringLiteral("UPDATE orders SET display_number = 4100"));
    store->database.run(QStringLiteral("UPDATE order_sessions SET display_number = 4200"));
    return store;
}
} // namespace

/// Texts that were typed to do harm, through everything that writes one.
class tst_HostileTexts : public ZelvanTest
{
    Q_OBJECT

private slots:
    void areStoredAsTypedAndTouchNothingElse_data();
    void areStoredAsTypedAndTouchNothingElse();
    void areSearchedForAsTyped_data() { addTexts(); }
    void areSearchedForAsTyped();

private:
    static void addTexts();
};

void tst_HostileTexts::addTexts()
{
    QTest::addColumn<QString>("text");
    const QMap<QString, QString> texts = hostileTexts();
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        // SQLite takes no longer pattern than 50,000 bytes.
        if (it.value().size() < 1000) {
            QTest::newRow(qPrintable(it.key())) << it.value();
        }
    }
}

void tst_HostileTexts::areStoredAsTypedAndTouchNothingElse_data()
{
    QTest::addColumn<qsizetype>("number");
    const QList<Operation> operations = allOperations();
    for (qsizetype number = 0; number < operations.size(); ++number) {
        QTest::newRow(qPrintable(operations.at(number).name)) << number;
    }
}

void tst_HostileTexts::areStoredAsTypedAndTouchNothingElse()
{
    QFETCH(const qsizetype, number);
    const Operation operation = allOperations().at(number);
    const QString benign = QStringLiteral("Plain words");
    Change expected;
    {
        const std::unique_ptr<TestStore> store = makeStore();
        expected = changeBy(operation, benign, *store);
    }
    QVERIFY(!expected.made.isEmpty());

    const QMap<QString, QString> texts = hostileTexts();
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        const std::unique_ptr<TestStore> store = makeStore();

        const Change change = changeBy(operation, it.value(), *store);

        QVERIFY2(change.gone == expected.gone, qPrintable(it.key()));
        QVERIFY2(translated(change.made, it.value(), benign) == expected.made,
                 qPrintable(it.key()));
    }
}

void tst_HostileTexts::areSearchedForAsTyped()
{
    QFETCH(const QString, text);
    const std::unique_ptr<TestStore> store = makeStore();
    store->addMember(QStringLiteral("555"), 1);
    QVERIFY(store->services.checkout.completeCheckout(1, text, 0));

    store->services.members.searchMembers(text);

    QCOMPARE(store->services.members.membersModel()->rowCount(), 1);
}

ZELVAN_TEST(tst_HostileTexts)
#include "tst_hostiletexts.moc"
