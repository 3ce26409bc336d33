// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/TaxSettings.h"

#include <QSqlDatabase>

#include <optional>

/// The one row of `tax_settings`. A failed save is only logged.
class TaxSettingsRepository final
{
public:
    explicit TaxSettingsRepository(const QSqlDatabase &database);

    /// Always writes id 1, whatever the record says.
    void save(const TaxSettings &settings);
    /// Absent when there is no row or the statement failed.
    [[nodiscard]] std::optional<TaxSettings> fetch() const;

private:
    QSqlDatabase m_database;
};
