// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/ReservationRepository.h"
#include "support/LogCapture.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    Fixture() { db.run(QStringLiteral("INSERT INTO tables (table_name) VALUES ('T1'), ('T2')")); }

    TestDatabase db;
    ReservationRepository reservations{db.handle()};
};

Reservation booking(const QString &name, const QString &isoTime, int tableId = 1)
{
    Reservation reservation;
    reservation.customer_name = name;
    reservation.customer_phone = QStringLiteral("555");
    reservation.pax = 4;
    reservation.table_id = tableId;
    reservation.reservation_datetime = QDateTime::fromString(isoTime, Qt::ISODate);
    reservation.duration_minutes = 90;
    reservation.status = QStringLiteral("booked");
    reservation.notes = QStringLiteral("window");
    return reservation;
}

QStringList namesOf(const QList<Reservation> &reservations)
{
    QStringList names;
    for (const Reservation &reservation : reservations) {
        names.append(reservation.customer_name);
    }
    return names;
}
} // namespace

class tst_ReservationRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aCreatedReservationIsReadBackWhole();
    void theTimeIsStoredAsLocalText();
    void anInvalidTimeStaysInvalid();
    void aStoredTimeIsReadAsQtParsesIt_data();
    void aStoredTimeIsReadAsQtParsesIt();
    void anUnknownReservationHasTheIdMinusOne();
    void anUpdateChangesEveryFieldAndStampsTheChange();
    void aStatusUpdateChangesTheStatusOnly();
    void aRemovedReservationIsGone();
    void listsComeByAscendingTime();
    void aReservationOfNoTableIsRefused();
    void everyFailureIsLogged();
};

void tst_ReservationRepository::aCreatedReservationIsReadBackWhole()
{
    Fixture f;

    QVERIFY(f.reservations.create(
        booking(QStringLiteral("Lee"), QStringLiteral("2026-05-06T18:30:15"), 2)));

    const Reservation found = f.reservations.fetchById(1);
    QCOMPARE(found.id, 1);
    QCOMPARE(found.customer_name, QStringLiteral("Lee"));
    QCOMPARE(found.customer_phone, QStringLiteral("555"));
    QCOMPARE(found.pax, 4);
    QCOMPARE(found.table_id, 2);
    QCOMPARE(found.reservation_datetime, QDateTime(QDate(2026, 5, 6), QTime(18, 30, 15)));
    QCOMPARE(found.duration_minutes, 90);
    QCOMPARE(found.status, QStringLiteral("booked"));
    QCOMPARE(found.notes, QStringLiteral("window"));
}

void tst_ReservationRepository::theTimeIsStoredAsLocalText()
{
    Fixture f;

    QVERIFY(f.reservations.create(
        booking(QStringLiteral("Lee"), QStringLiteral("2026-05-06T08:03:05"))));

    QCOMPARE(f.db.value(QStringLiteral("SELECT CAST(reservation_datetime AS TEXT) FROM "
                                       "reservations"))
                 .toString(),
             QStringLiteral("2026-05-06 08:03:05"));
}

void tst_ReservationRepository::anInvalidTimeStaysInvalid()
{
    Fixture f;

    QVERIFY(f.reservations.create(booking(QStringLiteral("Lee"), QString())));

    QVERIFY(!f.reservations.fetchById(1).reservation_datetime.isValid());
}

void tst_ReservationRepository::aStoredTimeIsReadAsQtParsesIt_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("readable");

    QTest::newRow("plain") << "2026-05-06 18:30:15" << true;
    QTest::newRow("midnight") << "2026-12-31 00:00:00" << true;
    QTest::newRow("leap day") << "2028-02-29 23:59:59" << true;
    QTest::newRow("no such day") << "2026-02-29 18:30:00" << false;
    QTest::newRow("no such hour") << "2026-05-06 24:00:00" << false;
    QTest::newRow("a letter") << "2026-05-06 18:3o:00" << false;
    QTest::newRow("a sign") << "2026-05-06 18:+3:00" << false;
    QTest::newRow("the T between") << "2026-05-06T18:30:00" << false;
    QTest::newRow("no seconds") << "2026-05-06 18:30" << false;
    QTest::newRow("something after it") << "2026-05-06 18:30:00Z" << false;
}

void tst_ReservationRepository::aStoredTimeIsReadAsQtParsesIt()
{
    QFETCH(QString, stored);
    QFETCH(bool, readable);
    Fixture f;
    f.db.run(QStringLiteral("INSERT INTO reservations (table_id, reservation_datetime) "
                            "VALUES (1, '%1')")
                 .arg(stored));

    const QDateTime read = f.reservations.fetchById(1).reservation_datetime;

    QCOMPARE(read.isValid(), readable);
    QCOMPARE(read, QDateTime::fromString(stored, QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

void tst_ReservationRepository::anUnknownReservationHasTheIdMinusOne()
{
    Fixture f;

    QCOMPARE(f.reservations.fetchById(1).id, -1);
    QCOMPARE(f.reservations.fetchById(0).id, -1);
}

void tst_ReservationRepository::anUpdateChangesEveryFieldAndStampsTheChange()
{
    Fixture f;
    QVERIFY(f.reservations.create(
        booking(QStringLiteral("Lee"), QStringLiteral("2026-05-06T18:00:00"))));
    f.db.run(QStringLiteral("UPDATE reservations SET updated_at = '2001', created_at = '2001'"));
    Reservation changed = booking(QStringLiteral("Kim"), QStringLiteral("2026-05-07T19:00:00"), 2);
    changed.id = 1;
    changed.customer_phone = QStringLiteral("777");
    changed.pax = 2;
    changed.duration_minutes = 60;
    changed.status = QStringLiteral("seated");
    changed.notes = QStringLiteral("garden");

    QVERIFY(f.reservations.update(changed));

    const Reservation found = f.reservations.fetchById(1);
    QCOMPARE(found.customer_name, QStringLiteral("Kim"));
    QCOMPARE(found.customer_phone, QStringLiteral("777"));
    QCOMPARE(found.pax, 2);
    QCOMPARE(found.table_id, 2);
    QCOMPARE(found.reservation_datetime, QDateTime(QDate(2026, 5, 7), QTime(19, 0)));
    QCOMPARE(found.duration_minutes, 60);
    QCOMPARE(found.status, QStringLiteral("seated"));
    QCOMPARE(found.notes, QStringLiteral("garden"));
    QVERIFY(f.db
                .value(QStringLiteral(
                    "SELECT updated_at > '2020-01-01' AND created_at = '2001' FROM reservations"))
                .toBool());
}

void tst_ReservationRepository::aStatusUpdateChangesTheStatusOnly()
{
    Fixture f;
    QVERIFY(f.reservations.create(
        booking(QStringLiteral("Lee"), QStringLiteral("2026-05-06T18:00:00"))));
    QVERIFY(f.reservations.create(
        booking(QStringLiteral("Kim"), QStringLiteral("2026-05-06T20:00:00"))));
    f.db.run(QStringLiteral("UPDATE reservations SET updated_at = '2001'"));

    QVERIFY(f.reservations.updateStatus(1, QStringLiteral("cancelled")));

    QCOMPARE(f.reservations.fetchById(1).status, QStringLiteral("cancelled"));
    QCOMPARE(f.reservations.fetchById(1).customer_name, QStringLiteral("Lee"));
    QCOMPARE(f.reservations.fetchById(2).status, QStringLiteral("booked"));
    QCOMPARE(
        f.db.value(QStringLiteral("SELECT COUNT(*) FROM reservations WHERE updated_at = '2001'"))
            .toInt(),
        1);
}

void tst_ReservationRepository::aRemovedReservationIsGone()
{
    Fixture f;
    QVERIFY(f.reservations.create(
        booking(QStringLiteral("Lee"), QStringLiteral("2026-05-06T18:00:00"))));
    QVERIFY(f.reservations.create(
        booking(QStringLiteral("Kim"), QStringLiteral("2026-05-06T20:00:00"))));

    QVERIFY(f.reservations.remove(1));

    QCOMPARE(namesOf(f.reservations.fetchAll()), QStringList{QStringLiteral("Kim")});
}

void tst_ReservationRepository::listsComeByAscendingTime()
{
    Fixture f;
    for (const Reservation &reservation :
         {booking(QStringLiteral("late"), QStringLiteral("2026-05-06T23:59:59")),
          booking(QStringLiteral("next day"), QStringLiteral("2026-05-07T00:00:00")),
          booking(QStringLiteral("early"), QStringLiteral("2026-05-06T00:00:00")),
          booking(QStringLiteral("other table"), QStringLiteral("2026-05-06T12:00:00"), 2)}) {
        QVERIFY(f.reservations.create(reservation));
    }

    const QString early = QStringLiteral("early");
    const QString other = QStringLiteral("other table");
    const QString late = QStringLiteral("late");
    const QString next = QStringLiteral("next day");
    QCOMPARE(namesOf(f.reservations.fetchByDate(QDate(2026, 5, 6))),
             (QStringList{early, other, late}));
    QCOMPARE(namesOf(f.reservations.fetchAll()), (QStringList{early, other, late, next}));
    QCOMPARE(namesOf(f.reservations.fetchByTable(1)), (QStringList{early, late, next}));
    QVERIFY(f.reservations.fetchByDate(QDate(2026, 5, 5)).isEmpty());
}

void tst_ReservationRepository::aReservationOfNoTableIsRefused()
{
    Fixture f;

    const QString log = logOf([&] {
        QVERIFY(!f.reservations.create(
            booking(QStringLiteral("Lee"), QStringLiteral("2026-05-06T18:00:00"), 0)));
    });

    QCOMPARE(log, QStringLiteral("warning [database] Failed to create reservation: <QSqlError>"));
}

void tst_ReservationRepository::everyFailureIsLogged()
{
    Fixture f;
    const auto line = [](const char *text) {
        return QStringLiteral("warning [database] %1 <QSqlError>").arg(QLatin1String(text));
    };
    f.db.run(QStringLiteral("ALTER TABLE reservations RENAME TO elsewhere"));

    QCOMPARE(logOf([&] { QVERIFY(!f.reservations.create(Reservation())); }),
             line("Failed to create reservation:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.reservations.update(Reservation())); }),
             line("Failed to update reservation:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.reservations.updateStatus(1, QString())); }),
             line("Failed to update status:"));
    QCOMPARE(logOf([&] { QVERIFY(!f.reservations.remove(1)); }),
             line("Failed to delete reservation:"));
    QCOMPARE(logOf([&] { QCOMPARE(f.reservations.fetchById(1).id, -1); }),
             line("Failed to get reservation:"));
    QCOMPARE(logOf([&] { QVERIFY(f.reservations.fetchByDate(QDate(2026, 1, 1)).isEmpty()); }),
             line("Failed to get reservations by date:"));
    QCOMPARE(logOf([&] { QVERIFY(f.reservations.fetchAll().isEmpty()); }),
             line("Failed to get reservations:"));
    QCOMPARE(logOf([&] { QVERIFY(f.reservations.fetchByTable(1).isEmpty()); }),
             line("Failed to get reservations by table:"));
}

ZELVAN_TEST(tst_ReservationRepository)
#include "tst_reservationrepository.moc"
