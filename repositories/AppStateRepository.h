// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/AppStateEntry.h"

#include <QSqlDatabase>
#include <QString>

#include <optional>

/// Key-value access to `app_state`.
class AppStateRepository final
{
public:
    explicit AppStateRepository(const QSqlDatabase &database);

    bool save(const AppStateEntry &entry);
    [[nodiscard]] bool exists(const QString &key) const;
    bool remove(const QString &key);
    /// Absent when there is no row or the statement failed.
    [[nodiscard]] std::optional<QString> fetch(const QString &key) const;

private:
    QSqlDatabase m_database;
};
