// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/RestaurantRepository.h"

#include "repositories/Statement.h"

namespace {
FailureReport failure(const char *text)
{
    return {text, lcDatabase, QtWarningMsg, FailureReport::Error::Text};
}
} // namespace

RestaurantRepository::RestaurantRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto saveSql = R"(
    INSERT INTO restaurant (id, name, address, phone_number, email, website)
    VALUES (1, :name, :address, :phone_number, :email, :website)
    ON CONFLICT(id) DO UPDATE SET name = excluded.name, address = excluded.address,
        phone_number = excluded.phone_number, email = excluded.email,
        website = excluded.website)";

void RestaurantRepository::save(const Restaurant &restaurant)
{
    Statement statement(m_database, saveSql, failure("Failed to save restaurant:"));
    statement.bind(":name", restaurant.name);
    statement.bind(":address", restaurant.address);
    statement.bind(":phone_number", restaurant.phone_number);
    statement.bind(":email", restaurant.email);
    statement.bind(":website", restaurant.website);
    // A failure is only logged: saves of settings answer nothing.
    std::ignore = statement.run();
}

constexpr auto fetchSql = R"(
    SELECT id, name, address, phone_number, email, website FROM restaurant
    ORDER BY id ASC
    LIMIT 1)";

std::optional<Restaurant> RestaurantRepository::fetch() const
{
    Statement statement(m_database, fetchSql, failure("Failed to fetch restaurant:"));
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    Restaurant restaurant;
    restaurant.id = statement.integer(0);
    restaurant.name = statement.text(1);
    restaurant.address = statement.text(2);
    restaurant.phone_number = statement.optionalText(3);
    restaurant.email = statement.optionalText(4);
    restaurant.website = statement.optionalText(5);
    return restaurant;
}
