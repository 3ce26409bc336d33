// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "printing/EscPosBuilder.h"
#include "support/TestEnvironment.h"
#include "support/ZelvanTest.h"

#include <QMap>

class tst_EscPosBuilder : public ZelvanTest
{
    Q_OBJECT

private slots:
    void theBufferIsEmptyAtTheStart();
    void eachCommandIsItsBytes_data();
    void eachCommandIsItsBytes();
    void cutFeedsThreeLinesFirstOrDoesNothing_data();
    void cutFeedsThreeLinesFirstOrDoesNothing();
    void textIsInTheLocalEncodingWithoutATerminator();
    void commandsFollowOneAnother();
};

using Command = void (*)(EscPosBuilder &);

void tst_EscPosBuilder::theBufferIsEmptyAtTheStart()
{
    QCOMPARE(EscPosBuilder().data(), QByteArray());
}

void tst_EscPosBuilder::eachCommandIsItsBytes_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<QByteArray>("hex");

    const auto row = [](const char *name, Command command, const char *hex) {
        QTest::newRow(name) << command << QByteArray(hex);
    };
    row(
        "initialize", [](EscPosBuilder &paper) { paper.initialize(); }, "1b40");
    row(
        "bold on", [](EscPosBuilder &paper) { paper.setBold(true); }, "1b4501");
    row(
        "bold off", [](EscPosBuilder &paper) { paper.setBold(false); }, "1b4500");
    row(
        "left", [](EscPosBuilder &paper) { paper.alignLeft(); }, "1b6100");
    row(
        "center", [](EscPosBuilder &paper) { paper.alignCenter(); }, "1b6101");
    row(
        "right", [](EscPosBuilder &paper) { paper.alignRight(); }, "1b6102");
    row(
        "newline", [](EscPosBuilder &paper) { paper.newline(); }, "0a");
}

void tst_EscPosBuilder::eachCommandIsItsBytes()
{
    QFETCH(Command, command);
    QFETCH(QByteArray, hex);

    EscPosBuilder paper;
    command(paper);

    QCOMPARE(paper.data().toHex(), hex);
}

void tst_EscPosBuilder::cutFeedsThreeLinesFirstOrDoesNothing_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QByteArray>("hex");

    QTest::newRow("full") << "full" << QByteArray("1b64031d5600");
    QTest::newRow("partial") << "partial" << QByteArray("1b64031d5601");
    QTest::newRow("none") << "none" << QByteArray();
    QTest::newRow("empty") << "" << QByteArray();
    QTest::newRow("another case") << "Full" << QByteArray();
    QTest::newRow("unknown") << "tear" << QByteArray();
}

void tst_EscPosBuilder::cutFeedsThreeLinesFirstOrDoesNothing()
{
    QFETCH(QString, mode);
    QFETCH(QByteArray, hex);

    EscPosBuilder paper;
    paper.cut(mode);

    QCOMPARE(paper.data().toHex(), hex);
}

void tst_EscPosBuilder::textIsInTheLocalEncodingWithoutATerminator()
{
    EscPosBuilder paper;
    paper.text(QStringLiteral("é菜"));

    // A Chinese Windows has GBK, a Western one a question mark for what it has no letter for.
    const QMap<int, QByteArray> byCodePage{
        {65001, "c3a9e88f9c"}, {936, "a8a6b2cb"}, {1252, "e93f"}};
    const QByteArray wanted = qgetenv("ZELVAN_TEST_CODE_PAGE");
    QVERIFY(wanted.isEmpty() || wanted.toInt() == TestEnvironment::codePage());
    QVERIFY(byCodePage.contains(TestEnvironment::codePage()));
    QCOMPARE(paper.data().toHex(), byCodePage.value(TestEnvironment::codePage()));
}

void tst_EscPosBuilder::commandsFollowOneAnother()
{
    EscPosBuilder paper;
    paper.initialize();
    paper.text(QStringLiteral("a"));
    paper.newline();
    paper.text(QString());
    paper.cut(QStringLiteral("full"));

    QCOMPARE(paper.data().toHex(), QByteArray("1b40610a1b64031d5600"));
}

ZELVAN_TEST(tst_EscPosBuilder)
#include "tst_escposbuilder.moc"
