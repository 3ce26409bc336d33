// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/RestaurantRepository.h"
#include "support/LogRecorder.h"
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

namespace {
struct Fixture
{
    TestDatabase db{TestDatabase::Content::Schema};
    RestaurantRepository repository{db.handle()};
};

Restaurant first()
{
    Restaurant settings;
    settings.name = QStringLiteral("Zelvan");
    settings.address = QStringLiteral("Main Street 1");
    settings.phone_number = QStringLiteral("123");
    settings.email = QStringLiteral("a@b");
    settings.website = QStringLiteral("w1");
    return settings;
}

Restaurant second()
{
    Restaurant settings;
    settings.name = QStringLiteral("Other");
    settings.address = QStringLiteral("Side Street 2");
    settings.phone_number = QStringLiteral("456");
    settings.email = QStringLiteral("c@d");
    settings.website = QStringLiteral("w2");
    return settings;
}
} // namespace

class tst_RestaurantRepository : public ZelvanTest
{
    Q_OBJECT

private slots:
    void anEmptyTableYieldsNothing();
    void aSavedRowIsReadBackWhole();
    void aSecondSaveReplacesTheFirst();
    void theRowIsNumberOneWhateverTheRecordSays();
    void savingMovesNoTimeStamp();
    void absentFieldsAreNullAndEmptyTextsAreNot();
    void everyFailureIsLogged();
};

void tst_RestaurantRepository::anEmptyTableYieldsNothing()
{
    Fixture f;

    QVERIFY(!f.repository.fetch().has_value());
}

void tst_RestaurantRepository::aSavedRowIsReadBackWhole()
{
    Fixture f;

    f.repository.save(first());

    const std::optional<Restaurant> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->id, 1);
    QCOMPARE(found->name, QStringLiteral("Zelvan"));
    QCOMPARE(found->address, QStringLiteral("Main Street 1"));
    QCOMPARE(found->phone_number, std::optional(QStringLiteral("123")));
    QCOMPARE(found->email, std::optional(QStringLiteral("a@b")));
    QCOMPARE(found->website, std::optional(QStringLiteral("w1")));
}

void tst_RestaurantRepository::aSecondSaveReplacesTheFirst()
{
    Fixture f;
    f.repository.save(first());

    f.repository.save(second());

    const std::optional<Restaurant> found = f.repository.fetch();
    QVERIFY(found);
    QCOMPARE(found->name, QStringLiteral("Other"));
    QCOMPARE(found->address, QStringLiteral("Side Street 2"));
    QCOMPARE(found->phone_number, std::optional(QStringLiteral("456")));
    QCOMPARE(found->email, std::optional(QStringLiteral("c@d")));
    QCOMPARE(found->website, std::optional(QStringLiteral("w2")));
    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM restaurant")).toInt(), 1);
}

void tst_RestaurantRepository::theRowIsNumberOneWhateverTheRecordSays()
{
    Fixture f;
    Restaurant settings = first();
    settings.id = 5;

    f.repository.save(settings);

    QCOMPARE(f.db.value(QStringLiteral("SELECT id FROM restaurant")).toInt(), 1);
}

void tst_RestaurantRepository::savingMovesNoTimeStamp()
{
    Fixture f;
    f.repository.save(first());
    f.db.run(QStringLiteral("UPDATE restaurant SET created_at = '2001'"));

    f.repository.save(second());

    QCOMPARE(f.db.value(QStringLiteral("SELECT COUNT(*) FROM restaurant WHERE created_at = '2001'"))
                 .toInt(),
             1);
}

void tst_RestaurantRepository::absentFieldsAreNullAndEmptyTextsAreNot()
{
    Fixture f;

    f.repository.save(Restaurant());

    QVERIFY(f.repository.fetch());
    QVERIFY(!f.repository.fetch()->phone_number.has_value());
    QVERIFY(!f.repository.fetch()->email.has_value());
    QVERIFY(!f.repository.fetch()->website.has_value());
    Restaurant blank;
    blank.phone_number = QString();
    blank.email = QString();
    blank.website = QString();
    f.repository.save(blank);
    QVERIFY(f.repository.fetch()->phone_number.has_value());
    QVERIFY(f.repository.fetch()->email.has_value());
    QVERIFY(f.repository.fetch()->website.has_value());
}

void tst_RestaurantRepository::everyFailureIsLogged()
{
    Fixture f;
    f.db.run(QStringLiteral("DROP TABLE restaurant"));

    QCOMPARE(logOf([&] { f.repository.save(first()); }),
             QStringLiteral("warning [database] Failed to save restaurant: <error text>"));
    QCOMPARE(logOf([&] { QVERIFY(!f.repository.fetch().has_value()); }),
             QStringLiteral("warning [database] Failed to fetch restaurant: <error text>"));
}

ZELVAN_TEST(tst_RestaurantRepository)
#include "tst_restaurantrepository.moc"
