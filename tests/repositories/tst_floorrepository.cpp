// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/FloorRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db;
    FloorRepository floors{db.handle()};
};

Floor floorAt(const QString &name, int sortOrder)
{
    Floor floor;
    floor.name = name;
    floor.floor_number = sortOrder + 10;
    floor.sort_order = sortOrder;
    floor.is_active = 0;
    return floor;
}
} // namespace

class tst_FloorRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedFloorIsReadBackWhole();
    void floorsComeBySortOrderInactiveOnesToo();
    void anUpdateChangesTheFourFields();
    void removingAFloorTakesItsItemsAlong();
    void failuresOfReadsAndCreationAreLoggedThoseOfChangesAreNot();
};

void tst_FloorRepository::aCreatedFloorIsReadBackWhole()
{
    Fixture f;

    QCOMPARE(f.floors.create(floorAt(QStringLiteral("Ground"), 3)), 1);

    const std::optional<Floor> found = f.floors.fetchById(1);
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->name, QStringLiteral("Ground"));
    QCOMPARE(found->floor_number, 13);
    QCOMPARE(found->sort_order, 3);
    QCOMPARE(found->is_active, 0);
    QVERIFY(!f.floors.fetchById(2));
}

void tst_FloorRepository::floorsComeBySortOrderInactiveOnesToo()
{
    Fixture f;
    f.floors.create(floorAt(QStringLiteral("Roof"), 2));
    f.floors.create(floorAt(QStringLiteral("Cellar"), -1));

    const QList<Floor> all = f.floors.fetchAll();

    QCOMPARE(all.size(), 2);
    QCOMPARE(all.at(0).name, QStringLiteral("Cellar"));
    QCOMPARE(all.at(1).name, QStringLiteral("Roof"));
}

void tst_FloorRepository::anUpdateChangesTheFourFields()
{
    Fixture f;
    f.floors.create(floorAt(QStringLiteral("Ground"), 1));
    f.floors.create(floorAt(QStringLiteral("Roof"), 2));
    Floor changed = floorAt(QStringLiteral("Garden"), 5);
    changed.id = 1;
    changed.is_active = 1;

    QVERIFY(f.floors.update(changed));

    const std::optional<Floor> found = f.floors.fetchById(1);
    QCOMPARE(found->name, QStringLiteral("Garden"));
    QCOMPARE(found->floor_number, 15);
    QCOMPARE(found->sort_order, 5);
    QCOMPARE(found->is_active, 1);
    QCOMPARE(f.floors.fetchById(2)->name, QStringLiteral("Roof"));
}

void tst_FloorRepository::removingAFloorTakesItsItemsAlong()
{
    Fixture f;
    f.floors.create(floorAt(QStringLiteral("Ground"), 1));
    f.db.run(QStringLiteral("INSERT INTO canvas_items (floor_id, type, x, y, width, height) "
                            "VALUES (1, 'wall', 0, 0, 1, 1)"));

    QVERIFY(f.floors.remove(1));

    QVERIFY(f.floors.fetchAll().isEmpty());
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM canvas_items")).toInt(), 0);
}

void tst_FloorRepository::failuresOfReadsAndCreationAreLoggedThoseOfChangesAreNot()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE floors RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QCOMPARE(f.floors.create(Floor()), -1); }),
             line("Failed to create floor:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.floors.fetchById(1)); }), line("Failed to fetch floor:"));
    QCOMPARE(logOf([&] { QVERIFY(f.floors.fetchAll().isEmpty()); }),
             line("Failed to fetch floors:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.floors.update(Floor())); }), QString());
    QCOMPARE(logOf([&] { QVERIFY(!f.floors.remove(1)); }), QString());
}

ZELVAN_TEST(tst_FloorRepository)
#include "tst_floorrepository.moc"
