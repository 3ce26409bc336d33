// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Restaurant.h"

#include <QSqlDatabase>

#include <optional>

/// The one row of `restaurant`. A failed save is only logged.
class RestaurantRepository final
{
public:
    explicit RestaurantRepository(const QSqlDatabase &database);

    /// Always writes id 1, whatever the record says.
    void save(const Restaurant &restaurant);
    /// Absent when there is no row or the statement failed.
    [[nodiscard]] std::optional<Restaurant> fetch() const;

private:
    QSqlDatabase m_database;
};
