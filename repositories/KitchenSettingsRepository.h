// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/KitchenSettings.h"

#include <QSqlDatabase>

#include <optional>

/// The one row of `kitchen_settings`. A failed save is only logged.
class KitchenSettingsRepository final
{
public:
    explicit KitchenSettingsRepository(const QSqlDatabase &database);

    /// Always writes id 1, whatever the record says.
    void save(const KitchenSettings &settings);
    /// Absent when there is no row or the statement failed.
    [[nodiscard]] std::optional<KitchenSettings> fetch() const;

private:
    QSqlDatabase m_database;
};
