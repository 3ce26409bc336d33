// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Table.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The SQL of `tables`.
class TableRepository final
{
public:
    explicit TableRepository(const QSqlDatabase &database);

    /// The new id, 0 when the insert failed.
    int create(const Table &table);
    void update(const Table &table);
    bool setTableState(int id, const QString &status);
    bool remove(int id);

    [[nodiscard]] std::optional<Table> getTableById(int id) const;
    [[nodiscard]] QList<Table> getAllTables() const;

private:
    QSqlDatabase m_database;
};
