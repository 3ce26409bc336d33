// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/records/Order.h"
#include "core/records/OrderItem.h"
#include "core/records/OrderSession.h"
#include "printing/KitchenTicketBuilder.h"
#include "support/ChineseLabels.h"
#include "support/PaperStore.h"
#include "support/PrintedPaper.h"
#include "support/ZelvanTest.h"

#include <memory>

using PrintedPaper::bytes;

namespace {
const QString dateInUs = QStringLiteral("M/d/yy");
const QString dateInGermany = QStringLiteral("dd.MM.yy");
const QString dateInChina = QStringLiteral("yyyy/M/d");

OrderSession session(const QString &type, std::optional<int> table = std::nullopt)
{
    OrderSession made;
    made.order_type = type;
    made.table_id = table;
    return made;
}

OrderItem item(const QString &name, int quantity, const QString &portion = {},
               const QString &notes = {})
{
    OrderItem made;
    made.item_name = name;
    made.quantity = quantity;
    made.portion_size = portion;
    made.notes = notes;
    made.price = 1250;
    return made;
}
} // namespace

class tst_KitchenTicketBuilder : public ZelvanTest
{
    Q_OBJECT

private slots:
    void initTestCase() { m_store = std::make_unique<PaperStore>(); }
    void init();
    void cleanupTestCase() { m_store.reset(); }

    void aTicketIsLaidOutToTheByte_data();
    void aTicketIsLaidOutToTheByte();
    void aRowIsFilledToTheLine_data();
    void aRowIsFilledToTheLine();
    void theDateIsThatOfTheStoresLocale_data();
    void theDateIsThatOfTheStoresLocale();
    void theLocaleIsReadAtEachBuild();
    void theLabelsArePrintedInChinese();
    void everyLineOfTheOrderIsPrintedInItsOrder();

private:
    [[nodiscard]] QByteArray ticket(const OrderSession &of, const QList<OrderItem> &items,
                                    const Printer &on) const;

    std::unique_ptr<PaperStore> m_store;
};

void tst_KitchenTicketBuilder::init()
{
    ZelvanTest::init();
    m_store->useLocale(QStringLiteral("en_US"));
}

QByteArray tst_KitchenTicketBuilder::ticket(const OrderSession &of, const QList<OrderItem> &items,
                                            const Printer &on) const
{
    Order order;
    order.id = 3;
    order.display_number = 42;
    return KitchenTicketBuilder(m_store->settings).build(order, of, items, on);
}

void tst_KitchenTicketBuilder::aTicketIsLaidOutToTheByte_data()
{
    QTest::addColumn<OrderSession>("of");
    QTest::addColumn<QList<OrderItem>>("items");
    QTest::addColumn<Printer>("on");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("dine-in with a table, 58 mm, partial cut")
        << session("dine_in", 7)
        << QList<OrderItem>({item("Noodle Soup", 3, "Large", "no onion"), item("Tea", 12)})
        << PaperStore::printer(58, "partial")
        << bytes("\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                 "Order #42"
                 "\x1b\x45\x00\n\n"
                 "\nDine In | Table 7\n"
                 "{date} {time}\n"
                 "--------------------------------\n"
                 "\x1b\x61\x00"
                 " Noodle Soup (Large)          3x\n"
                 "  - no onion\n\n"
                 "\x1b\x61\x00"
                 " Tea                         12x\n\n"
                 "--------------------------------\n\n\n"
                 "\x1b\x64\x03\x1d\x56\x01\n\n");
    QTest::newRow("dine-in without a table, 80 mm, full cut")
        << session("dine_in") << QList<OrderItem>({item("Tea", 1)})
        << PaperStore::printer(80, "full")
        << bytes("\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                 "Order #42"
                 "\x1b\x45\x00\n\n"
                 "\nDine In\n"
                 "{date} {time}\n"
                 "------------------------------------------------\n"
                 "\x1b\x61\x00"
                 " Tea                                          1x\n\n"
                 "------------------------------------------------\n\n\n"
                 "\x1b\x64\x03\x1d\x56\x00\n\n");
    QTest::newRow("takeaway without lines stays centred, no cut")
        << session("takeaway", 7) << QList<OrderItem>() << PaperStore::printer()
        << bytes("\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                 "Order #42"
                 "\x1b\x45\x00\n\n"
                 "TAKEAWAY\n"
                 "{date} {time}\n"
                 "--------------------------------\n"
                 "--------------------------------\n\n\n\n\n");
    QTest::newRow("delivery") << session("delivery") << QList<OrderItem>()
                              << PaperStore::printer(76, "")
                              << bytes(
                                     "\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                                     "Order #42"
                                     "\x1b\x45\x00\n\n"
                                     "DELIVERY\n"
                                     "{date} {time}\n"
                                     "------------------------------------------------\n"
                                     "------------------------------------------------\n\n\n\n\n");
    QTest::newRow("a word of its own is upper-cased, paper of no width is 58 mm")
        << session("drive_thru %1") << QList<OrderItem>() << PaperStore::printer(0, "Full")
        << bytes("\x1b\x40\x1b\x61\x01\x1b\x45\x01"
                 "Order #42"
                 "\x1b\x45\x00\n\n"
                 "DRIVE_THRU %1\n"
                 "{date} {time}\n"
                 "--------------------------------\n"
                 "--------------------------------\n\n\n\n\n");
}

void tst_KitchenTicketBuilder::aTicketIsLaidOutToTheByte()
{
    QFETCH(OrderSession, of);
    QFETCH(QList<OrderItem>, items);
    QFETCH(Printer, on);
    QFETCH(QByteArray, expected);

    const auto papers =
        PrintedPaper::inOneSecond(expected, dateInUs, [&] { return ticket(of, items, on); });

    QCOMPARE(papers.printed, papers.expected);
}

void tst_KitchenTicketBuilder::aRowIsFilledToTheLine_data()
{
    QTest::addColumn<OrderItem>("line");
    QTest::addColumn<QByteArray>("row");

    QTest::newRow("40 letters keep one blank")
        << item("Forty letters of soup with noodles, fish", 2)
        << QByteArray(" Forty letters of soup with noodles, fish 2x\n\n");
    QTest::newRow("28 letters fill the line") << item("Twenty-eight letters of soup", 2)
                                              << QByteArray(" Twenty-eight letters of soup 2x\n\n");
    QTest::newRow("10 Chinese letters take 20 columns")
        << item("宫保鸡丁盖浇饭大份辣", 2) << QByteArray(" 宫保鸡丁盖浇饭大份辣         2x\n\n");
    QTest::newRow("a Chinese portion counts too")
        << item("Tea", 2, "大杯") << QByteArray(" Tea (大杯)                   2x\n\n");
    QTest::newRow("a quantity of three digits")
        << item("Tea", 120) << QByteArray(" Tea                        120x\n\n");
}

void tst_KitchenTicketBuilder::aRowIsFilledToTheLine()
{
    QFETCH(OrderItem, line);
    QFETCH(QByteArray, row);

    const QByteArray paper = ticket(session("dine_in"), {line}, PaperStore::printer());

    QVERIFY2(paper.contains(bytes("\n\x1b\x61\x00") + PrintedPaper::local(row)), paper.constData());
}

void tst_KitchenTicketBuilder::theDateIsThatOfTheStoresLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("dateFormat");

    QTest::newRow("US") << "en_US" << dateInUs;
    QTest::newRow("German") << "de_DE" << dateInGermany;
    QTest::newRow("Chinese") << "zh_CN" << dateInChina;
}

void tst_KitchenTicketBuilder::theDateIsThatOfTheStoresLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, dateFormat);
    m_store->useLocale(locale);

    const auto papers = PrintedPaper::inOneSecond("TAKEAWAY\n{date} {time}\n----", dateFormat, [&] {
        return ticket(session("takeaway"), {}, PaperStore::printer());
    });

    QVERIFY2(papers.printed.contains(papers.expected), papers.printed.constData());
}

void tst_KitchenTicketBuilder::theLocaleIsReadAtEachBuild()
{
    const KitchenTicketBuilder builder(m_store->settings);
    const QByteArray first = builder.build({}, session("takeaway"), {}, PaperStore::printer());
    m_store->useLocale(QStringLiteral("zh_CN"));

    const QByteArray second = builder.build({}, session("takeaway"), {}, PaperStore::printer());

    const QByteArray chineseYear = QByteArray::number(QDate::currentDate().year()) + '/';
    QVERIFY(!first.contains(chineseYear));
    QVERIFY(second.contains(chineseYear));
}

void tst_KitchenTicketBuilder::theLabelsArePrintedInChinese()
{
    const ChineseLabels labels;

    const QByteArray atTable = ticket(session("dine_in", 7), {}, PaperStore::printer());
    const QByteArray noTable = ticket(session("dine_in"), {}, PaperStore::printer());
    const QByteArray away = ticket(session("takeaway"), {}, PaperStore::printer());
    const QByteArray delivered = ticket(session("delivery"), {}, PaperStore::printer());

    QVERIFY(atTable.contains(bytes("\x1b\x45\x01订单 #42\x1b\x45\x00\n\n\n堂食 | 餐桌 7\n")));
    QVERIFY(noTable.contains(bytes("\n\n\n堂食\n")));
    QVERIFY(away.contains(bytes("\x00\n\n打包\n")));
    QVERIFY(delivered.contains(bytes("\x00\n\n外卖\n")));
}

void tst_KitchenTicketBuilder::everyLineOfTheOrderIsPrintedInItsOrder()
{
    const QList<OrderItem> lines{item("B", 1), item("A", 2), item("B", 1)};

    const QByteArray paper = ticket(session("takeaway"), lines, PaperStore::printer());

    const QByteArray left = bytes("\x1b\x61\x00");
    const QByteArray b = left + " B                            1x\n\n";
    const QByteArray a = left + " A                            2x\n\n";
    QVERIFY(paper.contains(b + a + b + "----"));
}

ZELVAN_TEST(tst_KitchenTicketBuilder)
#include "tst_kitchenticketbuilder.moc"
