// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/RegionalSettings.h"

#include <QSqlDatabase>

#include <optional>

/// The one row of `regional_settings`. A failed save is only logged.
class RegionalSettingsRepository final
{
public:
    explicit RegionalSettingsRepository(const QSqlDatabase &database);

    /// Always writes id 1, whatever the record says.
    void save(const RegionalSettings &settings);
    /// Absent when there is no row or the statement failed.
    [[nodiscard]] std::optional<RegionalSettings> fetch() const;

private:
    QSqlDatabase m_database;
};
