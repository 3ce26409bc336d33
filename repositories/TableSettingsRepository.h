// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/TableSettings.h"

#include <QSqlDatabase>

#include <optional>

/// The one row of `table_settings`. A failed save is only logged.
class TableSettingsRepository final
{
public:
    explicit TableSettingsRepository(const QSqlDatabase &database);

    /// Always writes id 1, whatever the record says.
    void save(const TableSettings &settings);
    /// Absent when there is no row or the statement failed.
    [[nodiscard]] std::optional<TableSettings> fetch() const;

private:
    QSqlDatabase m_database;
};
