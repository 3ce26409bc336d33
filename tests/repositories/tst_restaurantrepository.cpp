// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/RestaurantRepository.h"
#include "support/SettingsRowTest.h"
#include "support/TestDatabase.h"

class tst_RestaurantRepository final
    : public SettingsRowTestOf<RestaurantRepository, Restaurant, &Restaurant::name,
                               &Restaurant::address, &Restaurant::phone_number, &Restaurant::email,
                               &Restaurant::website>
{
    Q_OBJECT

public:
    tst_RestaurantRepository();

private slots:
    void absentFieldsAreNullAndEmptyTextsAreNot();
};

tst_RestaurantRepository::tst_RestaurantRepository()
    : SettingsRowTestOf(
          {QStringLiteral("restaurant"),
           QStringLiteral("warning [database] Failed to save restaurant: <error text>"),
           QStringLiteral("warning [database] Failed to fetch restaurant: <error text>")},
          {.name = QStringLiteral("Zelvan"),
           .address = QStringLiteral("Main Street 1"),
           .phone_number = QStringLiteral("123"),
           .email = QStringLiteral("a@b"),
           .website = QStringLiteral("w1")},
          {.name = QStringLiteral("Other"),
           .address = QStringLiteral("Side Street 2"),
           .phone_number = QStringLiteral("456"),
           .email = QStringLiteral("c@d"),
           .website = QStringLiteral("w2")})
{}

void tst_RestaurantRepository::absentFieldsAreNullAndEmptyTextsAreNot()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    RestaurantRepository repository(db.handle());

    repository.save(Restaurant());

    QVERIFY(repository.fetch());
    QVERIFY(!repository.fetch()->phone_number.has_value());
    QVERIFY(!repository.fetch()->email.has_value());
    QVERIFY(!repository.fetch()->website.has_value());
    Restaurant blank;
    blank.phone_number = QString();
    blank.email = QString();
    blank.website = QString();
    repository.save(blank);
    QVERIFY(repository.fetch()->phone_number.has_value());
    QVERIFY(repository.fetch()->email.has_value());
    QVERIFY(repository.fetch()->website.has_value());
}

ZELVAN_TEST(tst_RestaurantRepository)
#include "tst_restaurantrepository.moc"
