// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/TableRepository.h"
#include "services/TableService.h"
#include "support/ModelRows.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>

class tst_TableService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itsSignaturesAreThoseTheScreensCall();
    void theListFillsOnFirstUse();
    void anEmptyRestaurantIsAskedAtEveryRead();

    void aTableIsAddedAvailableUnderItsTrimmedName();
    void aTableIsRefused_data();
    void aTableIsRefused();
    void aFailedInsertAnswersZero();

    void anEditKeepsTheStatus();
    void anEditIsRefused_data();
    void anEditIsRefused();

    void aTableIsRemoved();
    void anUnknownTableIsNotRemoved();
    void aSessionGoesOnWithoutItsTable();

    void aStatusIsStoredAndToldInOrder();
    void aStatusOfAnUnknownTableIsToldToo();
    void aFailedStatusIsToldToo();
    void whatIsStoredIsToldOnceMore();

private:
    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<TableRepository> m_tables;
    std::unique_ptr<TableService> m_service;
};

void tst_TableService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_tables = std::make_unique<TableRepository>(m_database->handle());
    m_service = std::make_unique<TableService>(m_tables.get());
}

void tst_TableService::cleanup()
{
    m_service.reset();
    m_tables.reset();
    m_database.reset();
}

void tst_TableService::itsSignaturesAreThoseTheScreensCall()
{
    const QMetaObject &meta = TableService::staticMetaObject;
    for (const char *signature : {"addTable(QString,int)", "editTable(int,QString,int)",
                                  "removeTable(int)", "setTableStatus(int,QString)"}) {
        QVERIFY2(meta.indexOfMethod(signature) >= 0, signature);
    }
    QVERIFY(meta.indexOfSignal("tablesChanged()") <
            meta.indexOfSignal("tableStatusChanged(int,QString)"));
}

void tst_TableService::theListFillsOnFirstUse()
{
    m_database->run("INSERT INTO tables (table_name, capacity, status) "
                    "VALUES ('A1', 4, 'available')");

    const TableModel *model = m_service->tableModel();
    QSignalSpy resets(model, &QAbstractItemModel::modelReset);

    QCOMPARE(ModelRows::column(*model, "name"), QVariantList({"A1"}));
    QCOMPARE(m_service->property("tableModel").value<TableModel *>(), model);
    QCOMPARE(resets.count(), 0);
}

void tst_TableService::anEmptyRestaurantIsAskedAtEveryRead()
{
    const TableModel *model = m_service->tableModel();
    QSignalSpy resets(model, &QAbstractItemModel::modelReset);

    QCOMPARE(m_service->tableModel(), model);
    QCOMPARE(m_service->tableModel(), model);

    QCOMPARE(resets.count(), 2);
}

void tst_TableService::aTableIsAddedAvailableUnderItsTrimmedName()
{
    QSignalSpy changed(m_service.get(), &TableService::tablesChanged);

    QCOMPARE(m_service->addTable("  A1 ", 4), 1);

    QCOMPARE(changed.count(), 1);
    const TableModel &model = *m_service->tableModel();
    QCOMPARE(ModelRows::column(model, "name"), QVariantList({"A1"}));
    QCOMPARE(ModelRows::column(model, "capacity"), QVariantList({4}));
    QCOMPARE(ModelRows::column(model, "status"), QVariantList({"available"}));
}

void tst_TableService::aTableIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QString>("line");

    QTest::newRow("blank name") << "  " << 4 << "Cannot add empty table name";
    QTest::newRow("no seats") << "A1" << 0 << "Capacity must be greater than 0";
    QTest::newRow("negative seats") << "A1" << -1 << "Capacity must be greater than 0";
}

void tst_TableService::aTableIsRefused()
{
    QFETCH(QString, name);
    QFETCH(int, capacity);
    QFETCH(QString, line);
    QSignalSpy changed(m_service.get(), &TableService::tablesChanged);

    expectLog(QtWarningMsg, line);
    QCOMPARE(m_service->addTable(name, capacity), -1);

    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_database->value("SELECT COUNT(*) FROM tables"), QVariant(0));
}

void tst_TableService::aFailedInsertAnswersZero()
{
    m_database->run("CREATE TRIGGER refuse BEFORE INSERT ON tables "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    expectLog(QtWarningMsg, "create failed:");
    QCOMPARE(m_service->addTable("A1", 4), 0);
}

void tst_TableService::anEditKeepsTheStatus()
{
    m_database->run("INSERT INTO tables (table_name, capacity, status) "
                    "VALUES ('A1', 4, 'occupied')");
    QSignalSpy changed(m_service.get(), &TableService::tablesChanged);

    QVERIFY(m_service->editTable(1, " B2 ", 6));

    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_database->value("SELECT table_name || capacity || status FROM tables").toString(),
             QStringLiteral("B26occupied"));
    QCOMPARE(ModelRows::column(*m_service->tableModel(), "name"), QVariantList({"B2"}));
}

void tst_TableService::anEditIsRefused_data()
{
    QTest::addColumn<int>("tableId");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QString>("line");

    QTest::newRow("unknown table, silently") << 9 << " " << 0 << "";
    QTest::newRow("blank name") << 1 << " " << 0 << "Table name cannot be empty";
    QTest::newRow("no seats") << 1 << "B2" << 0 << "Capacity must be greater than 0";
}

void tst_TableService::anEditIsRefused()
{
    QFETCH(int, tableId);
    QFETCH(QString, name);
    QFETCH(int, capacity);
    QFETCH(QString, line);
    m_database->run("INSERT INTO tables (table_name, capacity, status) "
                    "VALUES ('A1', 4, 'available')");
    QSignalSpy changed(m_service.get(), &TableService::tablesChanged);

    if (!line.isEmpty()) {
        expectLog(QtWarningMsg, line);
    }
    QVERIFY(!m_service->editTable(tableId, name, capacity));

    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_database->value("SELECT table_name || capacity FROM tables").toString(),
             QStringLiteral("A14"));
}

void tst_TableService::aTableIsRemoved()
{
    QCOMPARE(m_service->addTable("A1", 4), 1);
    QSignalSpy changed(m_service.get(), &TableService::tablesChanged);

    QVERIFY(m_service->removeTable(1));

    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_service->tableModel()->rowCount(), 0);
}

void tst_TableService::anUnknownTableIsNotRemoved()
{
    QSignalSpy changed(m_service.get(), &TableService::tablesChanged);

    QVERIFY(!m_service->removeTable(9));

    QCOMPARE(changed.count(), 0);
}

void tst_TableService::aSessionGoesOnWithoutItsTable()
{
    QCOMPARE(m_service->addTable("A1", 4), 1);
    m_database->run("INSERT INTO order_sessions (display_number, table_id, order_type, status) "
                    "VALUES (1, 1, 'dine_in', 'open')");

    QVERIFY(m_service->removeTable(1));

    QCOMPARE(m_database->value("SELECT status || ifnull(table_id, ' none') FROM order_sessions")
                 .toString(),
             QStringLiteral("open none"));
}

void tst_TableService::aStatusIsStoredAndToldInOrder()
{
    QCOMPARE(m_service->addTable("A1", 4), 1);
    QStringList told;
    connect(m_service.get(), &TableService::tablesChanged, this,
            [&told] { told.append("tables"); });
    connect(m_service.get(), &TableService::tableStatusChanged, this,
            [&](int tableId, const QString &status) {
                told.append(QStringLiteral("%1 %2").arg(tableId).arg(status));
                told +=
                    ModelRows::column(*m_service->tableModel(), "status").constFirst().toString();
            });

    QVERIFY(m_service->setTableStatus(1, "any text"));

    QCOMPARE(told, QStringList({"1 any text", "any text", "tables"}));
    QCOMPARE(m_database->value("SELECT status FROM tables").toString(), QStringLiteral("any text"));
}

void tst_TableService::aStatusOfAnUnknownTableIsToldToo()
{
    QSignalSpy tables(m_service.get(), &TableService::tablesChanged);
    QSignalSpy status(m_service.get(), &TableService::tableStatusChanged);

    QVERIFY(m_service->setTableStatus(9, "occupied"));

    QCOMPARE(tables.count(), 1);
    QCOMPARE(status.count(), 1);
    QCOMPARE(status.constFirst(), QVariantList({9, "occupied"}));
}

void tst_TableService::aFailedStatusIsToldToo()
{
    QCOMPARE(m_service->addTable("A1", 4), 1);
    m_database->run("CREATE TRIGGER refuse BEFORE UPDATE ON tables "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");
    QSignalSpy status(m_service.get(), &TableService::tableStatusChanged);

    expectLog(QtWarningMsg, "setTableState failed:");
    QVERIFY(m_service->setTableStatus(1, "occupied"));

    QCOMPARE(status.count(), 1);
}

void tst_TableService::whatIsStoredIsToldOnceMore()
{
    const int table = m_service->addTable("A1", 4);
    QCOMPARE(ModelRows::column(*m_service->tableModel(), "status"), QVariantList({"available"}));
    m_database->run("UPDATE tables SET status = 'occupied'");
    QSignalSpy status(m_service.get(), &TableService::tableStatusChanged);
    QSignalSpy tables(m_service.get(), &TableService::tablesChanged);

    m_service->announceStoredStatus(table);

    QCOMPARE(status, QList<QVariantList>({{table, "occupied"}}));
    QCOMPARE(tables.count(), 1);
    QCOMPARE(ModelRows::column(*m_service->tableModel(), "status"), QVariantList({"occupied"}));
    m_service->announceStoredStatus(99);
    QCOMPARE(status.count(), 1);
}

ZELVAN_TEST(tst_TableService)
#include "tst_tableservice.moc"
