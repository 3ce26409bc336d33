// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/MembershipSettings.h"

#include <QSqlDatabase>

#include <optional>

/// The one row of `membership_settings`. Virtual so that the loyalty rules can be proved without
/// SQL.
class MembershipSettingsRepository
{
public:
    explicit MembershipSettingsRepository(const QSqlDatabase &database);
    virtual ~MembershipSettingsRepository() = default;
    Q_DISABLE_COPY_MOVE(MembershipSettingsRepository)

    /// Absent when there is no row or the statement failed.
    [[nodiscard]] virtual std::optional<MembershipSettings> get();
    /// Always writes id 1. A failed save is only logged.
    void save(const MembershipSettings &settings);

private:
    QSqlDatabase m_database;
};
