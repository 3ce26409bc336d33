// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Floor.h"

#include <QList>
#include <QSqlDatabase>

#include <optional>

/// The SQL of `floors`.
class FloorRepository final
{
public:
    explicit FloorRepository(const QSqlDatabase &database);

    /// The new id, -1 on failure.
    int create(const Floor &floor);
    /// False on failure, of which nothing is logged.
    bool update(const Floor &floor);
    /// Takes the floor's items along, by the foreign key. False on failure, of which nothing is
    /// logged.
    bool remove(int floorId);

    [[nodiscard]] std::optional<Floor> fetchById(int floorId) const;
    /// By ascending sort order.
    [[nodiscard]] QList<Floor> fetchAll() const;

private:
    QSqlDatabase m_database;
};
