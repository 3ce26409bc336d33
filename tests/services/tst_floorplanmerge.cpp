// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FloorStore.h"
#include "support/ModelRows.h"
#include "support/ZelvanTest.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

/// What a floor shows once its drawing, the tables and the reservations have met.
class tst_FloorPlanMerge : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_store.reset(); }

    void anEmptyOrUnknownFloorIsShownEmpty();
    void aTableShowsItsSeatsAndItsStatus();
    void otherItemsPassThroughUnchanged();
    void aTableWhoseRowHasGoneShowsNeither();
    void aBookingIsLaidOverWhateverTheStatus();
    void theEarliestBookingCountsWhateverItsDate();
    void theCopyHoldsTheReservationAndItsLabels();
    void aStatusIsNotLaidOverThePlan_data();
    void aStatusIsNotLaidOverThePlan();
    void metadataThatIsNoObjectIsReplaced_data();
    void metadataThatIsNoObjectIsReplaced();
    void hostileTextStaysText();
    void aStoredCopyOutlivesItsReservation();
    void withoutABookingTheMetadataStaysAsItIs();

private:
    /// A table of the floor with id 1; its id.
    int drawTable(const QString &metadata = R"({"table_type":"circle"})");
    void book(int tableId, const QString &time, const QString &status = "booked");
    [[nodiscard]] QVariant shown(int row, const QByteArray &role)
    {
        return ModelRows::value(*m_store->service.canvasModel(), row, role);
    }
    [[nodiscard]] QJsonObject shownMetadata(int row)
    {
        return QJsonDocument::fromJson(shown(row, "metadata").toString().toUtf8()).object();
    }

    std::unique_ptr<FloorStore> m_store;
};

void tst_FloorPlanMerge::init()
{
    ZelvanTest::init();
    m_store = std::make_unique<FloorStore>();
    m_store->database.run(
        "INSERT INTO floors (name, floor_number, sort_order) VALUES ('Hall', 1, 1)");
}

int tst_FloorPlanMerge::drawTable(const QString &metadata)
{
    const int table = m_store->database.insert(
        "INSERT INTO tables (table_name, capacity, status) VALUES ('A1', 6, 'occupied')");
    CanvasItem item;
    item.table_id = table;
    item.type = "table";
    item.metadata = metadata;
    QList<CanvasItem> items = m_store->items.fetchByFloor(1);
    items.append(item);
    if (!m_store->items.saveAll(1, items)) {
        qFatal("cannot store the floor");
    }
    return table;
}

void tst_FloorPlanMerge::book(int tableId, const QString &time, const QString &status)
{
    m_store->database.run(
        QStringLiteral("INSERT INTO reservations (customer_name, customer_phone, pax, table_id, "
                       "reservation_datetime, duration_minutes, status, notes) "
                       "VALUES ('Mei', '555', 4, %1, '%2', 90, '%3', 'window')")
            .arg(tableId)
            .arg(time, status));
}

void tst_FloorPlanMerge::anEmptyOrUnknownFloorIsShownEmpty()
{
    drawTable();
    m_store->service.loadCanvas(1);

    m_store->service.loadCanvas(99);

    QCOMPARE(m_store->service.canvasModel()->rowCount(), 0);
    QCOMPARE(m_store->service.currentFloorId(), 99);
}

void tst_FloorPlanMerge::aTableShowsItsSeatsAndItsStatus()
{
    drawTable();

    m_store->service.loadCanvas(1);

    QCOMPARE(shown(0, "capacity"), QVariant(6));
    QCOMPARE(shown(0, "status"), QVariant("occupied"));
}

void tst_FloorPlanMerge::otherItemsPassThroughUnchanged()
{
    m_store->service.addItem({{"type", "wall"}, {"metadata", "not json"}});
    m_store->service.addItem({{"type", "table"}});
    QVERIFY(m_store->service.saveCanvas(1));

    m_store->service.loadCanvas(1);

    QCOMPARE(shown(0, "metadata"), QVariant("not json"));
    for (int row = 0; row < 2; ++row) {
        QVERIFY(!shown(row, "capacity").isValid());
        QVERIFY(!shown(row, "status").isValid());
    }
}

void tst_FloorPlanMerge::aTableWhoseRowHasGoneShowsNeither()
{
    drawTable();
    m_store->database.run("PRAGMA foreign_keys = OFF");
    m_store->database.run("DELETE FROM tables");

    m_store->service.loadCanvas(1);

    QCOMPARE(m_store->service.canvasModel()->rowCount(), 1);
    QVERIFY(!shown(0, "capacity").isValid());
    QVERIFY(!shown(0, "status").isValid());
}

void tst_FloorPlanMerge::aBookingIsLaidOverWhateverTheStatus()
{
    book(drawTable(), "2026-06-01 18:00:00");

    m_store->service.loadCanvas(1);

    QCOMPARE(shown(0, "status"), QVariant("reserved"));
    QCOMPARE(m_store->database.value("SELECT status FROM tables"), QVariant("occupied"));
}

void tst_FloorPlanMerge::theEarliestBookingCountsWhateverItsDate()
{
    const int table = drawTable();
    book(table, "2026-06-01 20:00:00");
    book(table, "2026-06-01 18:00:00", "cancelled");
    book(table, "2036-06-01 19:00:00");

    m_store->service.loadCanvas(1);

    const QJsonObject copy = shownMetadata(0).value("reservation").toObject();
    QCOMPARE(copy.value("time_label").toString(), QStringLiteral("08:00 PM"));
}

void tst_FloorPlanMerge::theCopyHoldsTheReservationAndItsLabels()
{
    book(drawTable(), "2026-06-01 08:05:00");

    m_store->service.loadCanvas(1);

    const QJsonObject expected{
        {"table_type", "circle"},
        {"reservation", QJsonObject{{"id", 1},
                                    {"customer_name", "Mei"},
                                    {"customer_phone", "555"},
                                    {"pax", 4},
                                    {"reservation_datetime", "2026-06-01T08:05:00.000"},
                                    {"duration_minutes", 90},
                                    {"status", "booked"},
                                    {"notes", "window"},
                                    {"time_label", "08:05 AM"},
                                    {"date_label", "01 Jun 2026"},
                                    {"datetime_label", "01 Jun 2026 08:05 AM"}}}};
    QCOMPARE(shownMetadata(0), expected);
    QCOMPARE(shown(0, "metadata").toString(),
             QString::fromUtf8(QJsonDocument(expected).toJson(QJsonDocument::Compact)));
}

void tst_FloorPlanMerge::aStatusIsNotLaidOverThePlan_data()
{
    QTest::addColumn<QString>("status");

    for (const char *status : {"seated", "cancelled", "completed", "no_show"}) {
        QTest::newRow(status) << status;
    }
}

void tst_FloorPlanMerge::aStatusIsNotLaidOverThePlan()
{
    QFETCH(QString, status);
    book(drawTable(), "2026-06-01 18:00:00", status);

    m_store->service.loadCanvas(1);

    QCOMPARE(shown(0, "status"), QVariant("occupied"));
    QVERIFY(!shownMetadata(0).contains("reservation"));
}

void tst_FloorPlanMerge::metadataThatIsNoObjectIsReplaced_data()
{
    QTest::addColumn<QString>("metadata");

    QTest::newRow("empty") << "";
    QTest::newRow("not JSON") << "{table_type: circle}";
    QTest::newRow("an array") << R"([{"table_type":"circle"}])";
    QTest::newRow("a text after the object") << R"({"table_type":"circle"} x)";
    QTest::newRow("nested a million deep") << QString(1'000'000, QLatin1Char('['));
    QTest::newRow("objects nested deep")
        << QStringLiteral(R"({"a":)").repeated(200'000) + "1" + QString(200'000, QLatin1Char('}'));
}

void tst_FloorPlanMerge::metadataThatIsNoObjectIsReplaced()
{
    QFETCH(QString, metadata);
    book(drawTable(metadata), "2026-06-01 18:00:00");

    m_store->service.loadCanvas(1);

    QCOMPARE(shownMetadata(0).keys(), QStringList({"reservation"}));
}

void tst_FloorPlanMerge::hostileTextStaysText()
{
    const QString script = R"-(<img src=x onerror="alert(1)">'); DROP TABLE tables; --)-";
    const QJsonObject drawn{{"table_type", script}};
    const int table =
        drawTable(QString::fromUtf8(QJsonDocument(drawn).toJson(QJsonDocument::Compact)));
    book(table, "2026-06-01 18:00:00");

    m_store->service.loadCanvas(1);
    QVERIFY(m_store->service.saveCanvas(1));
    m_store->service.loadCanvas(1);

    QCOMPARE(shownMetadata(0).value("table_type").toString(), script);
    QCOMPARE(m_store->database.value("SELECT COUNT(*) FROM tables"), QVariant(1));
}

void tst_FloorPlanMerge::aStoredCopyOutlivesItsReservation()
{
    const int table = drawTable();
    book(table, "2026-06-01 18:00:00");
    m_store->service.loadCanvas(1);
    QVERIFY(m_store->service.saveCanvas(1));
    m_store->database.run("UPDATE reservations SET status = 'completed'");

    m_store->service.loadCanvas(1);

    QCOMPARE(shown(0, "status"), QVariant("occupied"));
    QCOMPARE(shownMetadata(0).value("reservation").toObject().value("id").toInt(), 1);

    book(table, "2026-07-01 18:00:00");
    m_store->service.loadCanvas(1);
    QCOMPARE(shownMetadata(0).value("reservation").toObject().value("id").toInt(), 2);
}

void tst_FloorPlanMerge::withoutABookingTheMetadataStaysAsItIs()
{
    drawTable("not json");

    m_store->service.loadCanvas(1);

    QCOMPARE(shown(0, "metadata"), QVariant("not json"));
}

ZELVAN_TEST(tst_FloorPlanMerge)
#include "tst_floorplanmerge.moc"
