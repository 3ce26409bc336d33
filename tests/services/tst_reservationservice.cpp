// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/ReservationRepository.h"
#include "repositories/TableRepository.h"
#include "services/ReservationService.h"
#include "services/TableService.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>

namespace {
QDateTime at(const char *time, const char *day = "2026-06-01")
{
    return QDateTime::fromString(QStringLiteral("%1T%2:00").arg(day, time), Qt::ISODate);
}

QVariantMap booking(int tableId, const QDateTime &start, int minutes,
                    const QString &status = "booked")
{
    return {{"customerName", "Mei"},
            {"customerPhone", "555"},
            {"pax", 4},
            {"tableId", tableId},
            {"reservationDateTime", start},
            {"durationMinutes", minutes},
            {"status", status},
            {"notes", "window"}};
}

QVariantMap withId(QVariantMap map, int id)
{
    map.insert("id", id);
    return map;
}
} // namespace

class tst_ReservationService : public ZelvanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itsSignaturesAreThoseTheScreensCall();
    void aBookingIsStoredReservesItsTableAndIsTold();
    void aBookingOfAnyDateOverridesAnyStatus();
    void absentKeysAreEmptyOrZero();
    void spansThatOverlapAreRefusedSilently_data();
    void spansThatOverlapAreRefusedSilently();
    void aStatusFreesItsSlotOrNot_data();
    void aStatusFreesItsSlotOrNot();
    void anotherTableIsNoConflict();
    void aFailedInsertChangesNothing();

    void anUpdateIgnoresItsOwnRowAndKeepsTheTablesStatus();
    void anUpdateOntoAnotherBookingIsRefusedWhateverItsStatus();
    void aFailedUpdateTellsNothing();

    void aCancellationFreesTheTableWhateverItIs();
    void cancellingAnUnknownReservationIsRefused_data();
    void cancellingAnUnknownReservationIsRefused();
    void aFailedCancellationTellsNothing();
    void aDeletionTouchesNeitherTableNorScreens();

    void theEarliestActiveReservationComesFirst();
    void seatedAloneIsFoundForTheCheckout();
    void withoutOneTheMapIsEmpty();
    void aDaysReservationsComeInOrder();

private:
    [[nodiscard]] QString tableStatus() const
    {
        return m_database->value("SELECT status FROM tables WHERE id = 1").toString();
    }
    [[nodiscard]] QString reservationStatus(int id) const
    {
        return m_database
            ->value(QStringLiteral("SELECT status FROM reservations WHERE id = %1").arg(id))
            .toString();
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<ReservationRepository> m_reservations;
    std::unique_ptr<TableRepository> m_tables;
    std::unique_ptr<TableService> m_tableService;
    std::unique_ptr<ReservationService> m_service;
};

void tst_ReservationService::init()
{
    ZelvanTest::init();
    m_database = std::make_unique<TestDatabase>();
    m_database->run("INSERT INTO tables (table_name, capacity, status) VALUES "
                    "('A1', 4, 'available'), ('A2', 4, 'available')");
    m_reservations = std::make_unique<ReservationRepository>(m_database->handle());
    m_tables = std::make_unique<TableRepository>(m_database->handle());
    m_tableService = std::make_unique<TableService>(m_tables.get());
    m_service = std::make_unique<ReservationService>(m_reservations.get(), m_tableService.get());
}

void tst_ReservationService::cleanup()
{
    m_service.reset();
    m_tableService.reset();
    m_tables.reset();
    m_reservations.reset();
    m_database.reset();
}

void tst_ReservationService::itsSignaturesAreThoseTheScreensCall()
{
    const QMetaObject &meta = ReservationService::staticMetaObject;
    for (const char *signature :
         {"getActiveReservationByTable(int)", "createReservation(QVariantMap)",
          "updateReservation(QVariantMap)", "deleteReservation(int)", "cancelReservation(int)",
          "getReservationsByDate(QDate)", "isTableAvailable(int,QDateTime,int)",
          "reservationChanged(int)"}) {
        QVERIFY2(meta.indexOfMethod(signature) >= 0, signature);
    }
    QVERIFY(meta.indexOfMethod("getSeatedReservationByTable(int)") < 0);
}

void tst_ReservationService::aBookingIsStoredReservesItsTableAndIsTold()
{
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);
    QString statusWhenTold;
    connect(m_service.get(), &ReservationService::reservationChanged, this,
            [&] { statusWhenTold = tableStatus(); });

    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));

    QCOMPARE(m_database->value("SELECT reservation_datetime FROM reservations").toString(),
             QStringLiteral("2026-06-01 18:00:00"));
    QCOMPARE(m_service->getActiveReservationByTable(1), withId(booking(1, at("18:00"), 90), 1));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst(), QVariantList({1}));
    QCOMPARE(statusWhenTold, QStringLiteral("reserved"));
}

void tst_ReservationService::aBookingOfAnyDateOverridesAnyStatus()
{
    m_database->run("UPDATE tables SET status = 'occupied'");

    QVERIFY(m_service->createReservation(booking(1, at("18:00", "2036-01-01"), 90)));

    QCOMPARE(tableStatus(), QStringLiteral("reserved"));
}

void tst_ReservationService::absentKeysAreEmptyOrZero()
{
    m_database->run("PRAGMA foreign_keys = OFF");

    QVERIFY(m_service->createReservation({{"reservationDateTime", at("18:00")}}));

    const QVariantMap expected{{"id", 1},
                               {"customerName", ""},
                               {"customerPhone", ""},
                               {"pax", 0},
                               {"tableId", 0},
                               {"reservationDateTime", at("18:00")},
                               {"durationMinutes", 0},
                               {"status", ""},
                               {"notes", ""}};
    QCOMPARE(m_service->getActiveReservationByTable(0), expected);
}

void tst_ReservationService::spansThatOverlapAreRefusedSilently_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<bool>("free");

    // Against 18:00 for 90 minutes.
    QTest::newRow("a minute before its end") << "19:29" << 30 << false;
    QTest::newRow("in the second it ends") << "19:30" << 90 << true;
    QTest::newRow("ending when it begins") << "17:00" << 60 << true;
    QTest::newRow("ending a minute later") << "17:00" << 61 << false;
    QTest::newRow("inside it") << "18:30" << 10 << false;
    QTest::newRow("around it") << "17:00" << 300 << false;
    QTest::newRow("the same span") << "18:00" << 90 << false;
    QTest::newRow("no time at all, inside it") << "18:30" << 0 << false;
    QTest::newRow("no time at all, at its start") << "18:00" << 0 << true;
}

void tst_ReservationService::spansThatOverlapAreRefusedSilently()
{
    QFETCH(QString, start);
    QFETCH(int, minutes);
    QFETCH(bool, free);
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);
    const QDateTime begin = at(qPrintable(start));

    QCOMPARE(m_service->isTableAvailable(1, begin, minutes), free);
    QCOMPARE(m_service->createReservation(booking(1, begin, minutes)), free);

    QCOMPARE(changed.count(), free ? 1 : 0);
}

void tst_ReservationService::aStatusFreesItsSlotOrNot_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("free");

    QTest::newRow("booked") << "booked" << false;
    QTest::newRow("seated") << "seated" << false;
    QTest::newRow("no_show") << "no_show" << false;
    QTest::newRow("cancelled") << "cancelled" << true;
    QTest::newRow("completed") << "completed" << true;
}

void tst_ReservationService::aStatusFreesItsSlotOrNot()
{
    QFETCH(QString, status);
    QFETCH(bool, free);
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90, status)));

    QCOMPARE(m_service->createReservation(booking(1, at("18:00"), 90)), free);
}

void tst_ReservationService::anotherTableIsNoConflict()
{
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));

    QVERIFY(m_service->createReservation(booking(2, at("18:00"), 90)));
}

void tst_ReservationService::aFailedInsertChangesNothing()
{
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);
    m_database->run("CREATE TRIGGER refuse BEFORE INSERT ON reservations "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");

    expectLog(QtWarningMsg, "Failed to create reservation:");
    QVERIFY(!m_service->createReservation(booking(1, at("18:00"), 90)));

    QCOMPARE(tableStatus(), QStringLiteral("available"));
    QCOMPARE(changed.count(), 0);
}

void tst_ReservationService::anUpdateIgnoresItsOwnRowAndKeepsTheTablesStatus()
{
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));
    m_database->run("UPDATE tables SET status = 'occupied'");
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);

    const QVariantMap seated = withId(booking(1, at("18:15"), 60, "seated"), 1);
    QVERIFY(m_service->updateReservation(seated));

    QCOMPARE(m_service->getActiveReservationByTable(1), seated);
    QCOMPARE(tableStatus(), QStringLiteral("occupied"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst(), QVariantList({1}));
}

void tst_ReservationService::anUpdateOntoAnotherBookingIsRefusedWhateverItsStatus()
{
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));
    QVERIFY(m_service->createReservation(booking(1, at("20:00"), 90)));
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);

    for (const char *status : {"booked", "completed", "cancelled"}) {
        QVERIFY(!m_service->updateReservation(withId(booking(1, at("19:00"), 90, status), 1)));
    }

    QCOMPARE(reservationStatus(1), QStringLiteral("booked"));
    QCOMPARE(changed.count(), 0);
}

void tst_ReservationService::aFailedUpdateTellsNothing()
{
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));
    m_database->run("CREATE TRIGGER refuse BEFORE UPDATE ON reservations "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);

    expectLog(QtWarningMsg, "Failed to update reservation:");
    QVERIFY(!m_service->updateReservation(withId(booking(1, at("18:00"), 90, "seated"), 1)));

    QCOMPARE(changed.count(), 0);
}

void tst_ReservationService::aCancellationFreesTheTableWhateverItIs()
{
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));
    QVERIFY(m_service->createReservation(booking(1, at("20:00"), 90)));
    m_database->run("UPDATE tables SET status = 'occupied'");
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);

    QVERIFY(m_service->cancelReservation(1));

    QCOMPARE(reservationStatus(1), QStringLiteral("cancelled"));
    QCOMPARE(reservationStatus(2), QStringLiteral("booked"));
    QCOMPARE(tableStatus(), QStringLiteral("available"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst(), QVariantList({1}));
}

void tst_ReservationService::cancellingAnUnknownReservationIsRefused_data()
{
    QTest::addColumn<int>("id");

    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("unknown") << 9;
}

void tst_ReservationService::cancellingAnUnknownReservationIsRefused()
{
    QFETCH(int, id);

    expectLog(QtWarningMsg, "Cancel failed: reservation not found");
    QVERIFY(!m_service->cancelReservation(id));
}

void tst_ReservationService::aFailedCancellationTellsNothing()
{
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));
    m_database->run("CREATE TRIGGER refuse BEFORE UPDATE ON reservations "
                    "BEGIN SELECT RAISE(ABORT, 'refused'); END");
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);

    expectLog(QtWarningMsg, "Failed to update status:");
    QVERIFY(!m_service->cancelReservation(1));

    QCOMPARE(tableStatus(), QStringLiteral("reserved"));
    QCOMPARE(changed.count(), 0);
}

void tst_ReservationService::aDeletionTouchesNeitherTableNorScreens()
{
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 90)));
    QSignalSpy changed(m_service.get(), &ReservationService::reservationChanged);

    QVERIFY(m_service->deleteReservation(1));

    QCOMPARE(m_database->value("SELECT COUNT(*) FROM reservations"), QVariant(0));
    QCOMPARE(tableStatus(), QStringLiteral("reserved"));
    QCOMPARE(changed.count(), 0);
}

void tst_ReservationService::theEarliestActiveReservationComesFirst()
{
    QVERIFY(m_service->createReservation(booking(1, at("20:00"), 60)));
    QVERIFY(m_service->createReservation(booking(1, at("12:00"), 60, "cancelled")));
    QVERIFY(m_service->createReservation(booking(1, at("13:00"), 60, "completed")));
    QVERIFY(m_service->createReservation(booking(1, at("14:00"), 60, "no_show")));
    QVERIFY(m_service->createReservation(booking(1, at("18:00", "2020-01-01"), 60)));

    QCOMPARE(m_service->getActiveReservationByTable(1).value("id").toInt(), 5);
}

void tst_ReservationService::seatedAloneIsFoundForTheCheckout()
{
    QVERIFY(m_service->createReservation(booking(1, at("12:00"), 60)));
    QVERIFY(m_service->createReservation(booking(1, at("20:00"), 60, "seated")));
    QVERIFY(m_service->createReservation(booking(1, at("18:00"), 60, "seated")));

    QCOMPARE(m_service->getSeatedReservationByTable(1).value("id").toInt(), 3);
}

void tst_ReservationService::withoutOneTheMapIsEmpty()
{
    QVERIFY(m_service->createReservation(booking(1, at("12:00"), 60, "cancelled")));

    QVERIFY(m_service->getActiveReservationByTable(1).isEmpty());
    QVERIFY(m_service->getSeatedReservationByTable(1).isEmpty());
    QVERIFY(m_service->getActiveReservationByTable(9).isEmpty());
}

void tst_ReservationService::aDaysReservationsComeInOrder()
{
    QVERIFY(m_service->createReservation(booking(1, at("20:00"), 60)));
    QVERIFY(m_service->createReservation(booking(2, at("12:00"), 60, "cancelled")));
    QVERIFY(m_service->createReservation(booking(2, at("12:00", "2026-06-02"), 60)));

    const QVariantList day = m_service->getReservationsByDate(QDate(2026, 6, 1));

    QCOMPARE(day.size(), 2);
    QCOMPARE(day.at(0).toMap().value("id").toInt(), 2);
    QCOMPARE(day.at(1).toMap().value("id").toInt(), 1);
    QVERIFY(m_service->getReservationsByDate(QDate(2026, 6, 3)).isEmpty());
}

ZELVAN_TEST(tst_ReservationService)
#include "tst_reservationservice.moc"
